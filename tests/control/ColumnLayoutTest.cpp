// The widths of the grid's columns and those in the field catalogue are kept in sync.
#include "session/layout/ColumnLayout.h"
#include "control/parts/GridWindow.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "grid/cells/TextCells.h"
#include "query/colShowSQLSentences.h"
#include "session/WindowRules.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

const QString Statement = u"select A,B,C from T"_s;

// A database of one table with the fields A, B and C.
struct OneTable final : FieldReader
{
    bool Open(const QString &) override { return true; }
    std::optional<std::vector<SourceField>> Read(const QString &, const QString &statement) override
    {
        std::vector<SourceField> fields;
        for (const QString &name : {u"A"_s, u"B"_s, u"C"_s}) {
            if (statement.contains(name))
                fields.push_back({name, 202});
        }
        return fields;
    }
};

// A window without a line of conditions.
struct PlainWindow final : GridWindow
{
    using GridWindow::GridWindow;
    void showConditions(const QStringList & /*words*/) override {}
    QWidget &progressWindow() override { return m_grid; }
    QRect progressPlace() const override { return {}; }
};

struct Layout : testing::Test
{
    Layout()
    {
        grid.resize(1000, 300);
        show({u"A"_s, u"B"_s, u"C"_s});
    }

    void show(const QStringList &headings)
    {
        auto cells = std::make_unique<TextCells>(4, static_cast<int>(headings.size()) + 1);
        int col = 0;
        for (const QString &heading : headings)
            cells->setText(0, ++col, heading);
        grid.Show(std::move(cells));
    }
    // Whether it became an entry of the history.
    bool record(const QString &statement, FieldView view, bool savesWidths, const QString &partFields)
    {
        history.SetAllFields(Statement);
        const auto before = history.Count();
        columns.RecordShowSQL(statement, view, savesWidths, partFields, colShowSQLSentences::NoSort(),
                              u"x"_s);
        return history.Count() == before + 1;
    }
    QList<int> widths() const
    {
        QList<int> list;
        for (int col = 1; col < grid.Cols(); ++col)
            list.append(grid.ColWidth(col));
        return list;
    }
    QList<int> kept() const
    {
        QList<int> list;
        for (const clsDataField &field : history.DataFields())
            list.append(field.FieldWidth);
        return list;
    }

    OneTable reader;
    colShowSQLSentences history{&reader};
    VSFlexGrid grid;
    GridToolbar toolbar;
    PlainWindow window{grid, toolbar};
    ColumnLayout columns{window, history};
};

} // namespace

TEST_F(Layout, AnEmptyStatementIsNotRecorded)
{
    EXPECT_FALSE(record({}, FieldView::All, true, {}));
    EXPECT_EQ(history.Count(), 0);
}

TEST_F(Layout, RecordingFillsTheCatalogueAndSavesTheWidthsWhenAsked)
{
    grid.PutColWidth(2, 1234);
    grid.PutColWidth(3, 0);
    ASSERT_TRUE(record(Statement, FieldView::All, true, colShowSQLSentences::NoPartField()));
    EXPECT_EQ(history.Count(), 1);
    EXPECT_EQ(kept(), QList<int>({960, 1234, 960})) << "a default and a hidden width are kept as the default";
    EXPECT_EQ(widths(), QList<int>({960, 1234, 960})) << "all fields are shown";
    EXPECT_EQ(history.ConnString(), u"x"_s);
}

TEST_F(Layout, RecordingWithoutTheSwitchSavesNothing)
{
    grid.PutColWidth(2, 1234);
    ASSERT_TRUE(record(Statement, FieldView::All, false, {}));
    EXPECT_EQ(kept(), QList<int>({0, 0, 0}));
    EXPECT_EQ(widths(), QList<int>({-1, 1234, -1})) << "without a saved width a column keeps its own";
}

TEST_F(Layout, AColumnDraggedToNothingIsSavedInModeOneAlone)
{
    grid.PutColWidth(1, 500);
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    grid.PutColWidth(1, 0);
    columns.SaveColumnWidths();
    EXPECT_EQ(kept(), QList<int>({500, 960, 960}));
    columns.ShowAllFieldColumns();
    EXPECT_EQ(grid.ColWidth(1), 500) << "back with its last width";

    grid.PutColWidth(1, 0);
    columns.SaveColumnWidths(HiddenWidths::AsDefault);
    EXPECT_EQ(kept(), QList<int>({960, 960, 960}));
    columns.ShowAllFieldColumns();
    EXPECT_EQ(grid.ColWidth(1), 960);
}

TEST_F(Layout, PartHidesTheOthersAndAllBringsThemBack)
{
    grid.PutColWidth(1, 500);
    grid.PutColWidth(2, 777);
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    ASSERT_TRUE(record(Statement, FieldView::Part, false, u"select A,C from T"_s));
    EXPECT_EQ(widths(), QList<int>({500, 0, 960}));
    columns.SaveColumnWidths();
    columns.ShowAllFieldColumns();
    EXPECT_EQ(widths(), QList<int>({500, 777, 960}));
}

TEST_F(Layout, PartGivesSavedWidthsInModeOneAlone)
{
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    ASSERT_TRUE(record(Statement, FieldView::Part, false, u"select A,C from T"_s));
    grid.PutColWidth(1, 333);
    columns.ShowPartFieldColumns(PartWidths::Unchanged);
    EXPECT_EQ(widths(), QList<int>({333, 0, 960}));
    columns.ShowPartFieldColumns(PartWidths::Kept);
    EXPECT_EQ(widths(), QList<int>({960, 0, 960}));
}

TEST_F(Layout, AKeptDefaultWidthIsTheDefault)
{
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    QString key;
    ASSERT_TRUE(history.DataFields().GetSelFieldKey(u"B"_s, key));
    history.DataFields().Update(key, [](clsDataField &field) { field.FieldWidth = -1; });
    grid.PutColWidth(2, 0);
    columns.ShowAllFieldColumns();
    EXPECT_EQ(grid.ColWidth(2), 960);
}

TEST_F(Layout, AColumnWithoutAFieldHasNoSavedWidthAndIsNeverHiddenByAll)
{
    show({u"A"_s, u"Sum"_s, u"a"_s});
    grid.PutColWidth(2, 888);
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    EXPECT_EQ(kept(), QList<int>({960, 0, 0})) << "names count letter for letter";
    EXPECT_EQ(widths(), QList<int>({960, 888, -1}));
    grid.PutColWidth(2, 0);
    columns.ShowAllFieldColumns();
    EXPECT_EQ(grid.ColWidth(2), 960) << "nothing else could bring it back";
}

TEST_F(Layout, FieldsOfOneNameAreLaidOutAlike)
{
    show({u"A"_s, u"A"_s, u"B"_s});
    grid.PutColWidth(1, 100);
    grid.PutColWidth(2, 200);
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    EXPECT_EQ(kept(), QList<int>({200, 960, 0}));
    EXPECT_EQ(widths(), QList<int>({200, 200, 960}));
}

TEST_F(Layout, NothingIsHiddenWhileNoColumnIsAPartField)
{
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    columns.ShowPartFieldColumns(PartWidths::Kept);
    EXPECT_EQ(std::ranges::count(widths(), 0), 0);
    grid.PutColWidth(2, 0); // by an earlier choice
    columns.ShowPartFieldColumns(PartWidths::Kept);
    EXPECT_EQ(std::ranges::count(widths(), 0), 0);
}

TEST_F(Layout, FittingSharesTheWidthAmongShownColumnsAndLeavesHiddenOnes)
{
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    grid.PutColWidth(2, 0);
    columns.fitColumns(controlRules.roundWidth);
    const int share = (1000 * 15 - 260 - 600) / 2;
    EXPECT_EQ(widths(), QList<int>({share, 0, share}));
}

TEST_F(Layout, FittingIntoNoRoomOrWithoutAHistoryChangesNothing)
{
    columns.fitColumns(controlRules.roundWidth);
    EXPECT_EQ(widths(), QList<int>({-1, -1, -1}));
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    grid.resize(50, 300);
    columns.fitColumns(controlRules.roundWidth);
    EXPECT_EQ(widths(), QList<int>({960, 960, 960}));
    EXPECT_FALSE(columns.columnsFit());
}

TEST_F(Layout, WidthsDontDriftByBeingSavedAndRestored)
{
    ASSERT_TRUE(record(Statement, FieldView::All, true, {}));
    grid.PutColWidth(1, 967); // no whole number of pixels
    for (int round = 0; round < 20; ++round) {
        columns.SaveColumnWidths();
        grid.PutColWidth(1, 0);
        columns.ShowAllFieldColumns();
    }
    EXPECT_EQ(grid.ColWidth(1), 967);
}
