// The toolbar's commands one by one, by clicks.
#include "Shop.h"

#include "support/Dialogs.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

using Toolbar = Shop;

} // namespace

TEST_F(Toolbar, PartHidesWhatIsNoPartFieldAndAllShowsItAgain)
{
    ASSERT_TRUE(load());
    EXPECT_EQ(columns(), AllColumns);
    QSignalSpy replaced(&grid, &KOVAVSFDataGrid::RecordsetChanged);
    click(u"Part"_s);
    EXPECT_EQ(columns(), PartColumns);
    EXPECT_TRUE(isPressed(u"Part"_s));
    EXPECT_FALSE(isPressed(u"All"_s));
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelPart);
    EXPECT_TRUE(statement().startsWith(u"SELECT ID,名称 FROM 商品"_s)) << qUtf8Printable(statement());
    click(u"All"_s);
    EXPECT_EQ(columns(), AllColumns);
    EXPECT_TRUE(isPressed(u"All"_s));
    EXPECT_FALSE(isPressed(u"Part"_s));
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelAll);
    EXPECT_EQ(replaced.count(), 0) << "only the layout changed";
}

TEST_F(Toolbar, PartWithoutPartFieldsPressesAllAndLeavesTheGridAsItIs)
{
    ASSERT_TRUE(load(statementOfAll(), {}));
    const QString before = statement();
    click(u"Part"_s);
    EXPECT_TRUE(isPressed(u"All"_s));
    EXPECT_FALSE(isPressed(u"Part"_s));
    EXPECT_EQ(columns(), AllColumns);
    EXPECT_EQ(statement(), before);
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelAll);
}

TEST_F(Toolbar, AllOpensItsStatementWhenTheResultHasFewerFields)
{
    ASSERT_TRUE(load());
    click(u"Part"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); }});
    click(u"QuickFilter"_s); // opened from the part statement
    EXPECT_EQ(table->model()->columnCount(), 2);
    click(u"All"_s);
    EXPECT_EQ(columns(), AllColumns);
    EXPECT_EQ(rows(), 6) << "the condition stays";
    EXPECT_TRUE(isPressed(u"All"_s));
}

TEST_F(Toolbar, PartFieldsThatTheStatementHasNotAreRefusedWithTheReason)
{
    const QString grouped = u"SELECT 城市, count(*) AS 数 FROM 商品 GROUP BY 城市"_s;
    ASSERT_TRUE(load(grouped, u"SELECT 名称 FROM 商品"_s));
    EXPECT_FALSE(button(u"Part"_s)->isEnabled());
    EXPECT_TRUE(button(u"Part"_s)->toolTip().contains(
        u"部分字段的语句与当前语句的字段对应不上，不能只显示这些字段。"_s))
        << qUtf8Printable(button(u"Part"_s)->toolTip());
    click(u"All"_s);
    EXPECT_EQ(columns(), (QStringList{u"城市"_s, u"数"_s}));

    ASSERT_TRUE(load(grouped, u"SELECT 城市 FROM 商品"_s));
    click(u"Part"_s);
    EXPECT_EQ(columns(), QStringList(u"城市"_s));
}

TEST_F(Toolbar, AColumnKeepsItsWidthThroughPartAndReload)
{
    ASSERT_TRUE(load());
    table->setColumnWidth(1, 200);
    table->setColumnWidth(3, 150);
    click(u"Part"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); }});
    click(u"QuickFilter"_s);
    EXPECT_EQ(table->columnWidth(1), 200);
    click(u"All"_s);
    EXPECT_EQ(table->columnWidth(1), 200);
    EXPECT_EQ(table->columnWidth(3), 150);
}

TEST_F(Toolbar, SelFieldShowsTheChosenFieldsWithoutReopening)
{
    ASSERT_TRUE(load());
    QSignalSpy changed(&grid, &KOVAVSFDataGrid::ShowFieldsChange);
    QSignalSpy replaced(&grid, &KOVAVSFDataGrid::RecordsetChanged);
    WindowAnswers dialogs({[](QDialog &dialog) { tick(dialog, {u"ID"_s, u"Unit Price"_s}); }});
    click(u"SelField"_s);
    EXPECT_EQ(columns(), QStringList({u"ID"_s, u"Unit Price"_s}));
    EXPECT_TRUE(isPressed(u"Part"_s));
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelPart);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.at(0).at(0).toString(), u"SELECT ID,[Unit Price] FROM 商品"_s);
    EXPECT_EQ(grid.SQLFilter(), u"SELECT ID,[Unit Price] FROM 商品"_s);
    EXPECT_EQ(statement(), grid.SQLFilter());
    EXPECT_EQ(replaced.count(), 0);
    click(u"All"_s);
    click(u"Part"_s);
    EXPECT_EQ(columns(), QStringList({u"ID"_s, u"Unit Price"_s})) << "the later choice wins";
}

TEST_F(Toolbar, ACancelledFieldChoiceChangesNothing)
{
    ASSERT_TRUE(load());
    QSignalSpy changed(&grid, &KOVAVSFDataGrid::ShowFieldsChange);
    WindowAnswers dialogs({cancel});
    click(u"SelField"_s);
    EXPECT_EQ(columns(), AllColumns);
    EXPECT_TRUE(isPressed(u"All"_s));
    EXPECT_EQ(changed.count(), 0);
    EXPECT_EQ(grid.SQLFilter(), QString());
}

TEST_F(Toolbar, SelFieldOpensItsStatementWhenAChosenFieldHasNoColumn)
{
    ASSERT_TRUE(load());
    click(u"Part"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); },
                           [](QDialog &dialog) {
                               tick(dialog, {u"ID"_s, u"城市"_s});
                           }});
    click(u"QuickFilter"_s);
    click(u"SelField"_s);
    EXPECT_EQ(columns(), QStringList({u"ID"_s, u"城市"_s}));
    EXPECT_EQ(texts(u"城市"_s).first(), u"杭州"_s);
    EXPECT_EQ(rows(), 6);
}

TEST_F(Toolbar, FromResultFollowsItsFlag)
{
    ASSERT_TRUE(load());
    EXPECT_FALSE(isPressed(u"FromResult"_s));
    click(u"FromResult"_s);
    EXPECT_TRUE(isPressed(u"FromResult"_s));
    click(u"FromResult"_s);
    EXPECT_FALSE(isPressed(u"FromResult"_s));
}

TEST_F(Toolbar, BackAndOriginWalkTheHistory)
{
    ASSERT_TRUE(load());
    const QString first = statement();
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); },
                           [](QDialog &dialog) { find(dialog, u"杭州"_s); },
                           [](QDialog &dialog) { find(dialog, u"绿"_s); }});
    click(u"QuickFilter"_s);
    const QString second = statement();
    click(u"QuickFilter"_s);
    EXPECT_EQ(rows(), 2);
    click(u"QuickFilter"_s);
    EXPECT_EQ(rows(), 1);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), 2);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), 6);
    EXPECT_EQ(statement(), second);
    EXPECT_EQ(grid.SQLFilter().simplified(), second);
    click(u"ToOrigin"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(statement(), first);
    click(u"ToPreview"_s); // nowhere to go: the first one again
    EXPECT_EQ(statement(), first);
    EXPECT_EQ(rows(), records);
}

TEST_F(Toolbar, BackShowsTheFieldsAsTheyWereThen)
{
    ASSERT_TRUE(load());
    click(u"Part"_s);
    click(u"All"_s);
    click(u"ToPreview"_s);
    EXPECT_EQ(columns(), PartColumns);
    EXPECT_TRUE(isPressed(u"Part"_s));
    EXPECT_EQ(grid.ShowModel(), KOVAVSFDataGrid::ModelPart);
    click(u"ToOrigin"_s);
    EXPECT_EQ(columns(), AllColumns);
    EXPECT_TRUE(isPressed(u"All"_s));
}

TEST_F(Toolbar, ToFullTableDropsTheConditionAndKeepsTheSort)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID > 9 ORDER BY ID DESC"_s));
    EXPECT_EQ(rows(), 3);
    click(u"ToFullTable"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(texts(u"ID"_s).first(), u"12"_s);
    EXPECT_TRUE(isPressed(u"All"_s));
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), 3);
}

TEST_F(Toolbar, ToFullTablePressesTheButtonOfItsEntry)
{
    ASSERT_TRUE(load());
    click(u"Part"_s);
    click(u"ToFullTable"_s);
    EXPECT_TRUE(isPressed(u"Part"_s));
    EXPECT_EQ(columns(), PartColumns);
}

TEST_F(Toolbar, PagesAreLeftAloneWhereThereIsOne)
{
    ASSERT_TRUE(load());
    grid.SetGridRow(5);
    for (const QString &key : {u"First"_s, u"Previous"_s, u"Next"_s, u"Last"_s}) {
        click(key);
        EXPECT_EQ(grid.GetGridRow(), 5) << qUtf8Printable(key);
    }
    EXPECT_EQ(pageLabel->text(), u"第1页共1页  只显示999999条以内的记录"_s);
}

TEST_F(Toolbar, CompressViewFitsTheShownColumns)
{
    ASSERT_TRUE(load());
    click(u"Part"_s);
    table->setColumnWidth(0, 3000);
    click(u"CompressView"_s);
    EXPECT_LT(table->columnWidth(0), 1400);
    EXPECT_EQ(table->columnWidth(0), table->columnWidth(1));
    EXPECT_EQ(columns(), PartColumns) << "hidden columns stay hidden";
}

// What leaves an empty result as it is, and what still works there.
TEST_F(Toolbar, AnEmptyResultLeavesMostCommandsIdle)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"没有这个"_s); }, cancel, cancel});
    click(u"QuickFilter"_s);
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(columns(), AllColumns);
    const QString empty = statement();
    int asked = 0;
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [&] { ++asked; });
    for (const QString &key :
         {u"All"_s, u"Part"_s, u"SingleRecord"_s, u"Filter"_s, u"FullScreen"_s, u"QuickFilter"_s}) {
        click(key);
        EXPECT_EQ(statement(), empty) << qUtf8Printable(key);
        EXPECT_TRUE(isPressed(u"All"_s)) << qUtf8Printable(key);
        EXPECT_FALSE(isPressed(u"Part"_s)) << qUtf8Printable(key);
        EXPECT_FALSE(isSingleRecordShown()) << qUtf8Printable(key);
    }
    EXPECT_EQ(asked, 0);
    click(u"Sort"_s);     // asks
    click(u"SelField"_s); // asks
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records);
}

TEST_F(Toolbar, AFailedStepIsReportedAndLosesNothing)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); }});
    click(u"QuickFilter"_s);
    const QString shown = statement();
    const QString filterBefore = grid.SQLFilter();
    database.run(u"ALTER TABLE 商品 RENAME TO 别处"_s);
    grid.SetGridRow(3);
    for (const QString &key : {u"ToPreview"_s, u"ToOrigin"_s, u"ToFullTable"_s}) {
        click(key);
        EXPECT_TRUE(messages.texts().isEmpty() || messages.texts().last().startsWith(u"错误描述为："_s));
        EXPECT_EQ(statement(), shown) << qUtf8Printable(key);
        EXPECT_EQ(rows(), 6) << qUtf8Printable(key);
        EXPECT_EQ(grid.GetGridRow(), 3) << qUtf8Printable(key);
        EXPECT_EQ(grid.SQLFilter(), filterBefore) << qUtf8Printable(key);
    }
    EXPECT_GE(messages.shown().size(), 1u);
    database.run(u"ALTER TABLE 别处 RENAME TO 商品"_s);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records) << "the way back is still there";
}

TEST_F(Toolbar, ACommandMovesThePositionThatOthersRead)
{
    ASSERT_TRUE(load());
    clickCell(4, 1);
    EXPECT_EQ(grid.CurrPosition(), 4);
    click(u"FromResult"_s);
    const auto line = grid.findChild<QLabel *>(u"lblStatement"_s);
    EXPECT_TRUE(line->text().startsWith(u"第 4 条，共 12 条"_s)) << qUtf8Printable(line->text());
    EXPECT_TRUE(line->toolTip().contains(statement()));
}

TEST_F(Toolbar, AnotherControlCannotBlockThisOne)
{
    ASSERT_TRUE(load());
    TestDatabase other(u"CREATE TABLE U (X TEXT)"_s);
    KOVAVSFDataGrid second;
    second.PutConnectionString(other.connectionString());
    second.PutSQLShow(u"SELECT X FROM U"_s);
    ASSERT_TRUE(second.IsLoadData()); // without a record
    click(u"Part"_s);
    EXPECT_EQ(columns(), PartColumns);
    click(u"SingleRecord"_s);
    EXPECT_TRUE(isSingleRecordShown());
}

TEST_F(Toolbar, SetFieldNameAndSetSortFnAskAsTheButtonsDo)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { tick(dialog, {u"名称"_s}); },
                           [](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); }});
    grid.PutDisplayEable(false); // a host's call ignores the toolbar's state
    grid.SetFieldName();
    EXPECT_EQ(columns(), QStringList(u"名称"_s));
    grid.SetSortFN();
    EXPECT_EQ(texts(u"名称"_s).first(), u"白茶"_s);
}

TEST_F(Toolbar, PartWithoutAPartStatementShowsAllFields)
{
    ASSERT_TRUE(load());
    click(u"Part"_s);
    EXPECT_EQ(columns(), PartColumns);
    ASSERT_TRUE(load(statementOfAll(), {})); // the part view stays
    WindowAnswers dialogs({[](QDialog &dialog) { tick(dialog, {u"ID"_s}); }});
    click(u"SelField"_s);
    EXPECT_EQ(columns(), QStringList(u"ID"_s));
    click(u"ToOrigin"_s);
    click(u"Part"_s);
    EXPECT_TRUE(isPressed(u"All"_s));
    EXPECT_EQ(columns(), AllColumns);
}

TEST_F(Toolbar, TheWayBackHidesNothingThatAllShowed)
{
    ASSERT_TRUE(load(u"SELECT ID,名称,城市 FROM 商品"_s));
    click(u"All"_s);
    const QStringList all{u"ID"_s, u"名称"_s, u"城市"_s};
    EXPECT_EQ(columns(), all);
    click(u"ToPreview"_s);
    EXPECT_EQ(columns(), all);
    click(u"ToOrigin"_s);
    EXPECT_EQ(columns(), all);
    EXPECT_TRUE(isPressed(u"All"_s));
}

TEST_F(Toolbar, RowsBeyondASixteenBitNumberAreCountedByTheLongCall)
{
    database.run(
        u"CREATE TABLE 多 (ID INTEGER); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n "
        "WHERE i < 70000) INSERT INTO 多 SELECT i FROM n"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 多"_s, {}));
    for (const qint32 row : {32767, 32768, 65537, 70000}) {
        grid.SetGridRow(row);
        EXPECT_EQ(grid.GetGridRow(), 32767);
        EXPECT_EQ(grid.GetGridRowL(), row);
    }
}

// What is shown then belongs to another connection, and so would what the commands make of it.
TEST_F(Toolbar, IsGreyAfterAnotherConnectionStringUntilALoad)
{
    ASSERT_TRUE(load());
    const QStringList needHistory{u"All"_s,  u"Part"_s,        u"SelField"_s,  u"Filter"_s,  u"QuickFilter"_s,
                                  u"Sort"_s, u"ToFullTable"_s, u"ToPreview"_s, u"ToOrigin"_s};
    const auto grey = [&] {
        QStringList keys;
        for (const QString &key : needHistory) {
            if (!button(key)->isEnabled())
                keys += key;
        }
        return keys;
    };
    EXPECT_EQ(grey(), QStringList());
    const QString connection = grid.ConnectionString();
    grid.PutConnectionString(u"Provider=SQLite;Data Source=/nowhere/shop.db"_s);
    EXPECT_EQ(grey(), needHistory);
    EXPECT_TRUE(button(u"Sort"_s)->toolTip().contains(u"请先加载数据"_s));
    grid.PutSQLShow(u"SELECT * FROM nothing"_s);
    EXPECT_FALSE(grid.IsLoadData());
    EXPECT_EQ(grey(), needHistory) << "the load has failed";
    EXPECT_EQ(rows(), records) << "what was shown can still be read";
    grid.PutConnectionString(connection);
    EXPECT_EQ(grey(), needHistory);
    messages.clear();
    ASSERT_TRUE(load());
    EXPECT_EQ(grey(), QStringList());
}
