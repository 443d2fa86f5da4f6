// Paging through more records than a page holds, and the page box.
#include <KOVAVSFDataGrid>

#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Numbers from 1, without a table.
QString numbers(int count)
{
    return u"with recursive N(n) as (select 1 union all select n + 1 from N where n < %1) select n as 编号 from N"_s
        .arg(count);
}

struct Pages : testing::Test
{
    Pages()
    {
        grid.resize(900, 500);
        grid.show();
        grid.PutConnectionString(database.connectionString());
        grid.PutDBType(KOVAVSFDataGrid::dbAccess);
    }

    bool load(const QString &statement)
    {
        grid.PutSQLShow({});
        grid.PutSQLShow(statement);
        return grid.IsLoadData();
    }
    void goTo(const QString &page)
    {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, page);
        QTest::mouseClick(grid.findChild<QPushButton *>(u"cmdPgae"_s), Qt::LeftButton);
    }
    QString label() const { return grid.findChild<QLabel *>(u"lblFieldCount"_s)->text(); }
    int rows() const { return table->model()->rowCount(); }

    TestDatabase database{u"CREATE TABLE T (A INTEGER); INSERT INTO T VALUES (1)"_s};
    KOVAVSFDataGrid grid;
    QTableView *table = grid.findChild<QTableView *>(u"vsfgDataGrid"_s);
    QLineEdit *box = grid.findChild<QLineEdit *>(u"txtPage"_s);
};

} // namespace

TEST_F(Pages, APageHolds999999Records)
{
    ASSERT_TRUE(load(numbers(999999)));
    EXPECT_EQ(rows(), 999999);
    EXPECT_EQ(label(), u"第1页共1页  只显示999999条以内的记录"_s);
    EXPECT_EQ(grid.CellTextL(999999, 1), u"999999"_s);
}

TEST_F(Pages, OneMoreMakesASecondPageOfOneRow)
{
    ASSERT_TRUE(load(numbers(1000000)));
    EXPECT_EQ(rows(), 999999);
    EXPECT_EQ(label(), u"第1页共2页  只显示999999条以内的记录"_s);
    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    goTo(u"2"_s);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(grid.CellTextL(1, 1), u"1000000"_s);
    EXPECT_EQ(grid.CellTextL(1, 0), u"1"_s) << "rows count anew on each page";
    EXPECT_EQ(label(), u"第2页共2页  只显示999999条以内的记录"_s);
    EXPECT_EQ(grid.GetGridRowL(), 1);
    EXPECT_EQ(grid.CurrPosition(), 1000000) << "the recordset stands on the first row's record";
    EXPECT_EQ(moves.count(), 0) << "filling is no move";

    goTo(u"1"_s);
    EXPECT_EQ(rows(), 999999);
    EXPECT_EQ(grid.CurrPosition(), 1);
    EXPECT_EQ(grid.CellTextL(2, 1), u"2"_s);
}

TEST_F(Pages, TheLabelIsSeenWhole)
{
    ASSERT_TRUE(load(numbers(1000000)));
    const auto *shown = grid.findChild<QLabel *>(u"lblFieldCount"_s);
    EXPECT_GE(shown->width(), shown->sizeHint().width());
}

TEST_F(Pages, APageAfterTheLastBecomesTheLast)
{
    ASSERT_TRUE(load(numbers(1000000)));
    goTo(u"7"_s);
    EXPECT_EQ(label(), u"第2页共2页  只显示999999条以内的记录"_s);
    EXPECT_EQ(box->text(), u"2"_s);
    EXPECT_EQ(grid.CellTextL(1, 1), u"1000000"_s);
}

TEST_F(Pages, LocatingARecordFromALaterPageShowsTheFirst)
{
    ASSERT_TRUE(load(numbers(1000000)));
    goTo(u"2"_s);
    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    EXPECT_TRUE(grid.LocateSelRecord(500));
    EXPECT_EQ(label(), u"第1页共2页  只显示999999条以内的记录"_s);
    EXPECT_EQ(grid.GetGridRowL(), 500);
    EXPECT_EQ(grid.CurrPosition(), 500);
    ASSERT_EQ(moves.count(), 1);
    EXPECT_EQ(moves.at(0).at(0).toInt(), 3);
    EXPECT_EQ(moves.at(0).at(1).toInt(), 499);
}

// The text typed into the page box, and the page that is shown; 0 if a message is shown instead.
struct TypedPage : Pages, testing::WithParamInterface<std::pair<const char *, int>>
{
};

INSTANTIATE_TEST_SUITE_P(Texts, TypedPage,
                         testing::Values(std::pair("1", 1), std::pair("1x", 1), std::pair("12abc", 1),
                                         std::pair("0", 0), std::pair("-3", 0), std::pair("abc", 0),
                                         std::pair("", 0), std::pair(" 1 ", 1),
                                         std::pair("99999999999999", 1)));

TEST_P(TypedPage, ShowsAPageOrAsksForAPositiveNumber)
{
    ASSERT_TRUE(load(u"select A from T"_s));
    MessageAnswers messages;
    box->clear();
    goTo(QString::fromUtf8(GetParam().first));
    if (GetParam().second == 0) {
        EXPECT_EQ(messages.texts(), QStringList(u"请在页数输入正整数."_s));
        EXPECT_EQ(messages.shown().front().buttons, QMessageBox::Ok);
    } else {
        EXPECT_EQ(messages.texts(), QStringList());
        EXPECT_EQ(box->text(), QString::number(GetParam().second));
    }
    EXPECT_EQ(grid.CellTextL(1, 1), u"1"_s);
}

TEST_F(Pages, EnterInThePageBoxGoesThere)
{
    ASSERT_TRUE(load(numbers(1000000)));
    box->setText(u"2"_s);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(rows(), 1);
}
