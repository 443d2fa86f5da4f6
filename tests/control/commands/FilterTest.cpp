// The filter dialog and the host's filter, the quick filter and the filter on the selected cell.
#include "Shop.h"

#include "support/Dialogs.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

using Filters = Shop;

void applyCondition(KOVAVSFDataGrid &grid, const QString &condition)
{
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid,
                     [&grid, condition](qint32 &cancel, const QString &) {
                         EXPECT_EQ(cancel, 1);
                         EXPECT_EQ(grid.PassQurryFilter(), QString()) << "cleared before the host is asked";
                         grid.PutPassQurryFilter(condition);
                         cancel = 0;
                     });
}

} // namespace

TEST_F(Filters, TheDialogsConditionIsAppliedAndRecorded)
{
    ASSERT_TRUE(load());
    QStringList bases;
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid,
                     [&](qint32 &, const QString &base) { bases.append(base); });
    WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"ID > 9"_s); }});
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(grid.SQLFilter(), u"SELECT * FROM 商品  WHERE ID > 9 "_s);
    EXPECT_EQ(bases, QStringList(statementOfAll()));
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records);
}

TEST_F(Filters, ARefusedConditionComesBackAsItWasTyped)
{
    ASSERT_TRUE(load());
    const QString refused = u"abs(-9223372036854775808) = ID"_s; // which only running it shows
    WindowAnswers dialogs({[&](QDialog &dialog) { filter(dialog, refused); },
                           [&](QDialog &dialog) {
                               EXPECT_EQ(part<QLineEdit>(dialog, "txtCondition").text(), refused);
                               const QString notice = part<QLabel>(dialog, "lblNotice").text();
                               EXPECT_TRUE(notice.contains(u"integer overflow")) << qUtf8Printable(notice);
                               EXPECT_EQ(rows(), records);
                               filter(dialog, u"ID > 9"_s);
                           }});
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(grid.SQLFilter(), u"SELECT * FROM 商品  WHERE ID > 9 "_s);
    EXPECT_TRUE(messages.shown().empty());
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records);
}

TEST_F(Filters, AnAliasCanBeTypedWhereTheDatabaseTakesIt)
{
    ASSERT_TRUE(load(u"SELECT ID AS 编号, 名称 FROM 商品 WHERE ID > 6 OR 停用 = 1"_s, {}));
    WindowAnswers dialogs({[](QDialog &dialog) {
        auto &condition = part<QLineEdit>(dialog, "txtCondition");
        compose(condition, u"编号 > 9"_s);
        const auto &count = part<QLabel>(dialog, "lblCount");
        EXPECT_TRUE(QTest::qWaitFor([&] { return count.text() == u"约 3 条"_s; }))
            << qUtf8Printable(count.text());
        press(dialog, "cmd_Filter");
    }});
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"编号"_s), QStringList({u"10"_s, u"11"_s, u"12"_s}));
    EXPECT_EQ(messages.texts(), QStringList());
}

TEST_F(Filters, GivingUpARefusedConditionKeepsWhatIsShown)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[&](QDialog &dialog) { filter(dialog, u"abs(-9223372036854775808) = ID"_s); },
                           [](QDialog &dialog) { cancel(dialog); }});
    click(u"Filter"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(statement(), statementOfAll());
    EXPECT_TRUE(messages.shown().empty());
}

TEST_F(Filters, AFilterThatFindsNothingShowsTheWayBack)
{
    ASSERT_TRUE(load());
    const WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"ID > 100"_s); }});
    click(u"Filter"_s);
    const auto *hint = grid.findChild<QLabel *>(u"lblEmpty"_s);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().contains(button(u"ToPreview"_s)->text())) << qUtf8Printable(hint->text());
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_FALSE(hint->isVisible());
}

TEST_F(Filters, FromTheOriginStartsAgainAndFromTheResultRefines)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { filter(dialog, u"ID > 9"_s); },
                           [](QDialog &dialog) { filter(dialog, u"ID < 3"_s); },
                           [](QDialog &dialog) { filter(dialog, u"ID = 2"_s); }});
    click(u"Filter"_s);
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"2"_s})) << "from the first statement";
    click(u"FromResult"_s);
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList(u"2"_s));
    click(u"ToPreview"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"2"_s}));
}

TEST_F(Filters, ACancelledDialogLosesNoHistory)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); },
                           [](QDialog &dialog) { find(dialog, u"杭州"_s); }, cancel});
    click(u"QuickFilter"_s);
    click(u"QuickFilter"_s);
    const QString shown = statement();
    click(u"Filter"_s);
    EXPECT_EQ(grid.SQLFilter(), QString());
    EXPECT_EQ(statement(), shown);
    EXPECT_EQ(rows(), 2);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), 6);
}

TEST_F(Filters, AHostsOwnConditionNeedsNoDialog)
{
    ASSERT_TRUE(load());
    applyCondition(grid, u"城市 = '大连'"_s);
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
    EXPECT_EQ(grid.PassQurryFilter(), u"城市 = '大连'"_s);
}

TEST_F(Filters, AHostsBlankConditionReloadsNothing)
{
    ASSERT_TRUE(load());
    grid.PutSQLFilter(u"SELECT 1"_s);
    QSignalSpy replaced(&grid, &KOVAVSFDataGrid::RecordsetChanged);
    applyCondition(grid, u"  "_s);
    click(u"Filter"_s);
    EXPECT_EQ(grid.SQLFilter(), QString());
    EXPECT_EQ(replaced.count(), 0);
    EXPECT_EQ(rows(), records);
}

TEST_F(Filters, AHostsWrongConditionIsReportedAndLosesNothing)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); }});
    click(u"QuickFilter"_s);
    applyCondition(grid, u"没有的字段 = 1"_s);
    click(u"Filter"_s);
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_TRUE(messages.texts().first().startsWith(u"错误描述为："_s));
    EXPECT_EQ(rows(), 6);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records);
}

TEST_F(Filters, AHostMayLoadSomethingElseFromTheEvent)
{
    ASSERT_TRUE(load());
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [this](qint32 &cancel, const QString &) {
        grid.PutSQLShow(u"SELECT ID FROM 订单"_s);
        EXPECT_TRUE(grid.IsLoadData());
        grid.PutPassQurryFilter(u"ID = 99"_s);
        cancel = 0;
    });
    click(u"Filter"_s);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(statement(), u"SELECT ID FROM 订单"_s);
}

TEST_F(Filters, AHostMayClearTheControlFromTheEvent)
{
    ASSERT_TRUE(load());
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid,
                     [this](qint32 &, const QString &) { grid.ClearObject(); });
    click(u"Filter"_s);
    EXPECT_EQ(grid.RecordSet(), nullptr);
}

TEST_F(Filters, TheHostIsNotAskedForTheQuickFilterNorForTheCellFilter)
{
    ASSERT_TRUE(load());
    int asked = 0;
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [&] { ++asked; });
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶"_s); }});
    click(u"QuickFilter"_s);
    choose(14, 1);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(asked, 0);
}

TEST_F(Filters, QuickFilterSearchesEveryFieldForEveryWord)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"茶 8"_s); }});
    click(u"QuickFilter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"10"_s}));
    EXPECT_TRUE(grid.SQLFilter().contains(u" (商品.[ID] LIKE '%茶%' OR 商品.[名称] LIKE '%茶%' "_s));
    EXPECT_FALSE(grid.SQLFilter().contains(u"停用"_s)) << "a Boolean is not searched";
    EXPECT_TRUE(grid.SQLFilter().contains(u") And  ("_s));
}

TEST_F(Filters, QuickFilterInOneField)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"大"_s, u"名称"_s); }});
    click(u"QuickFilter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList(u"5"_s));
}

TEST_F(Filters, QuickFilterInAFieldThatIsNotSearchedSaysSo)
{
    ASSERT_TRUE(load());
    for (const QString &field : {u"停用"_s, u"图片"_s}) {
        WindowAnswers dialogs({[&](QDialog &dialog) { find(dialog, u"True"_s, field); }});
        click(u"QuickFilter"_s);
        EXPECT_EQ(messages.texts(), QStringList(u"对不起，过滤操作不支持选中内容的数据类型！"_s))
            << qUtf8Printable(field);
        EXPECT_EQ(rows(), records);
        messages.clear();
    }
}

TEST_F(Filters, QuickFilterForSqlServerFindsBooleansAsTheyAreShown)
{
    grid.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    ASSERT_TRUE(load());
    ASSERT_EQ(texts(u"停用"_s).first(), u"False"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"True"_s, u"停用"_s); },
                           [](QDialog &dialog) { find(dialog, u"false"_s); }});
    click(u"QuickFilter"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"3"_s, u"7"_s}));
    click(u"ToPreview"_s);
    click(u"QuickFilter"_s);
    EXPECT_EQ(rows(), 9);
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
}

TEST_F(Filters, AStatementWithoutFromIsFilteredAsAnyOther)
{
    grid.PutSQLShow(u"SELECT 1 AS A, 'x' AS B UNION ALL SELECT 2, 'y'"_s);
    messages.clear(); // what is said of its missing FROM
    ASSERT_TRUE(grid.IsLoadData());
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"y"_s); },
                           [](QDialog &dialog) { filter(dialog, u"A = 1"_s); },
                           [](QDialog &dialog) { sort(dialog, {u"A"_s}, true); }});
    click(u"QuickFilter"_s);
    EXPECT_EQ(texts(u"A"_s), QStringList(u"2"_s));
    click(u"ToPreview"_s);
    click(u"Filter"_s);
    EXPECT_EQ(texts(u"A"_s), QStringList(u"1"_s));
    click(u"ToOrigin"_s);
    click(u"Sort"_s);
    EXPECT_EQ(texts(u"A"_s), QStringList({u"2"_s, u"1"_s}));
    EXPECT_TRUE(messages.shown().empty()) << qUtf8Printable(messages.texts().join(u'|'));
}

TEST_F(Filters, QuickFilterForSqlServerWritesNamesWithoutTable)
{
    grid.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    ASSERT_TRUE(load(u"SELECT ID,名称 FROM 商品"_s));
    WindowAnswers dialogs({[](QDialog &dialog) { find(dialog, u"ab cd"_s); }});
    click(u"QuickFilter"_s);
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
    EXPECT_TRUE(grid.SQLFilter().contains(
        u" (ID LIKE '%ab%' OR 名称 LIKE '%ab%' ) And  (ID LIKE '%cd%' OR 名称 LIKE '%cd%' ) "_s))
        << qUtf8Printable(grid.SQLFilter());
}

TEST_F(Filters, ACancelledQuickFilterClearsTheFilterTextAlone)
{
    ASSERT_TRUE(load());
    grid.PutSQLFilter(u"x"_s);
    WindowAnswers dialogs({cancel});
    click(u"QuickFilter"_s);
    EXPECT_EQ(grid.SQLFilter(), QString());
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(statement(), statementOfAll());
}

TEST_F(Filters, TheCellsOwnTypeAndTextDecide)
{
    ASSERT_TRUE(load());
    choose(14, 3, 1);
    EXPECT_EQ(texts(u"ID"_s), QStringList(u"3"_s));
    EXPECT_TRUE(grid.SQLFilter().contains(u"WHERE ID like 3"_s)) << qUtf8Printable(grid.SQLFilter());
    click(u"ToPreview"_s);
    choose(14, 5, 4);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
    EXPECT_TRUE(grid.SQLFilter().contains(u"WHERE 城市 like '大连'"_s));
}

TEST_F(Filters, ACellOfAFieldWithABlankIsFilteredByItsQuotedName)
{
    ASSERT_TRUE(load());
    choose(14, 6, 3);
    EXPECT_EQ(texts(u"ID"_s), QStringList(u"6"_s));
}

TEST_F(Filters, ANullCellKeepsTheNulls)
{
    ASSERT_TRUE(load());
    choose(14, 9, 4);
    EXPECT_EQ(texts(u"ID"_s), QStringList(u"9"_s));
    EXPECT_TRUE(messages.shown().empty());
}

TEST_F(Filters, AnApostropheInTheCellIsReported)
{
    ASSERT_TRUE(load());
    choose(14, 10, 2);
    EXPECT_EQ(messages.texts(), QStringList(u"对不起，过滤内容中不能含有\"  ' \"符号!"_s));
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(grid.SQLFilter(), QString());
}

TEST_F(Filters, ACellOfAnotherTypeIsReported)
{
    ASSERT_TRUE(load());
    const QString refusal = u"对不起，过滤操作不支持选中内容的数据类型！"_s;
    choose(14, 1, 5);
    choose(14, 1, 6);
    EXPECT_EQ(messages.texts(), QStringList({refusal, refusal}));
    EXPECT_EQ(messages.shown().front().buttons, QMessageBox::Ok);
    EXPECT_EQ(rows(), records);
}

TEST_F(Filters, BytesInANumberColumnAreNoNumber)
{
    database.run(
        u"CREATE TABLE 字节 (ID INTEGER PRIMARY KEY, 数 NUMERIC); INSERT INTO 字节 VALUES (1, x'31')"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 字节"_s, {}));
    ASSERT_EQ(texts(u"数"_s), QStringList(u"<1 字节>"_s));
    choose(14, 1, 2);
    EXPECT_EQ(messages.texts(), QStringList(u"对不起，过滤操作不支持选中内容的数据类型！"_s));
    EXPECT_EQ(rows(), 1);
}

TEST_F(Filters, TheCellFilterOfTheListUsesItsField)
{
    ASSERT_TRUE(load());
    clickCell(8, 1);
    click(u"SingleRecord"_s);
    choose(14, listedRow(u"城市"_s) + 1);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"5"_s, u"8"_s}));
    EXPECT_EQ(listed(u"ID"_s), u"5"_s);
}

TEST_F(Filters, AStatementThatEndsWithASemicolonCanBeFiltered)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品;"_s));
    EXPECT_EQ(grid.SQLShow(), u"SELECT * FROM 商品;"_s) << "reads back as written";
    choose(14, 2, 2);
    EXPECT_EQ(rows(), 1);
    EXPECT_TRUE(messages.texts().isEmpty());
}

TEST_F(Filters, TheCellThatIsSeenAsSelectedIsMeantWhenThePartViewHidesTheColumn)
{
    ASSERT_TRUE(load(u"SELECT ID, 名称, 城市 FROM 商品"_s, u"SELECT 名称 FROM 商品"_s));
    click(u"Part"_s);
    clickCell(2, 2);
    EXPECT_EQ(grid.GetGridCol(), 2) << "the view stood there already, for the hidden first column";
    choose(14, 2, 2);
    EXPECT_TRUE(grid.SQLFilter().contains(u"WHERE 名称 like '普洱茶'"_s)) << qPrintable(grid.SQLFilter());
}

TEST_F(Filters, TheCurrentColumnComesBackWhenItIsShownAgain)
{
    ASSERT_TRUE(load(u"SELECT ID, 名称, 城市 FROM 商品"_s, u"SELECT 名称 FROM 商品"_s));
    EXPECT_EQ(grid.GetGridCol(), 1);
    EXPECT_EQ(table->currentIndex().column(), 0);
    click(u"Part"_s);
    EXPECT_EQ(table->currentIndex().column(), 1);
    click(u"All"_s);
    EXPECT_EQ(table->currentIndex().column(), grid.GetGridCol() - 1);
}
