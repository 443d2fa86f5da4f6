#include "grid/cells/FlexGridModel.h"
#include "grid/cells/TextCells.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct Model : testing::TestWithParam<int>
{
    FlexGridModel model{GetParam()};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Warning};
};

} // namespace

INSTANTIATE_TEST_SUITE_P(FixedColumns, Model, testing::Values(0, 1));

TEST_P(Model, BeginsEmptyWithTwoRowsAndColumns)
{
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.columnCount(), 2 - GetParam());
    EXPECT_EQ(model.index(0, 0).data().toString(), QString());
}

TEST_P(Model, HeadingsAreHeaderDataAndTheRestCells)
{
    auto cells = std::make_unique<TextCells>(3, 3);
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col)
            cells->setText(row, col, u"%1/%2"_s.arg(row).arg(col));
    }
    model.setSource(std::move(cells));
    const int fixed = GetParam();
    EXPECT_EQ(model.columnCount(), 3 - fixed);
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), u"0/%1"_s.arg(fixed));
    EXPECT_EQ(model.headerData(1, Qt::Vertical).toString(), fixed ? u"2/0"_s : QString());
    EXPECT_EQ(model.index(1, 0).data().toString(), u"2/%1"_s.arg(fixed));
    EXPECT_FALSE(model.headerData(5, Qt::Horizontal).isValid());
    EXPECT_FALSE(model.headerData(-1, Qt::Vertical).isValid());
}

TEST_P(Model, ReportsEachKindOfWrite)
{
    QSignalSpy cells(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy headings(&model, &QAbstractItemModel::headerDataChanged);
    EXPECT_TRUE(model.setText(1, GetParam(), u"cell"_s));
    EXPECT_EQ(cells.count(), 1);
    EXPECT_EQ(headings.count(), 0);
    EXPECT_TRUE(model.setText(0, GetParam(), u"heading"_s));
    EXPECT_EQ(headings.count(), 1);
    EXPECT_EQ(model.index(0, 0).data().toString(), u"cell"_s);
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), u"heading"_s);
}

// Without the model tester, which would visit each of its cells.
TEST(TextCells, AGridOfAnySizeIsCheap)
{
    auto cells = std::make_unique<TextCells>(1000000, 1000);
    EXPECT_TRUE(cells->setText(999999, 999, u"x"_s));
    EXPECT_EQ(cells->text(999999, 999), u"x"_s);
    EXPECT_TRUE(cells->setText(999999, 999, {}));
    EXPECT_EQ(cells->text(999999, 999), QString());
    FlexGridModel model(1);
    model.setSource(std::move(cells));
    EXPECT_EQ(model.rowCount(), 999999);
    EXPECT_EQ(model.columnCount(), 999);
}
