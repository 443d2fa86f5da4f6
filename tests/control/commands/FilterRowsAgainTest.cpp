// The conditions in force that are rows when the filter dialog opens, and stay as they are until those are
// changed.
#include "FilterInForceFixture.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class FilterRowsAgain : public FilterInForce
{
};

} // namespace

TEST_F(FilterRowsAgain, TickedValuesAreARowAgain)
{
    ASSERT_TRUE(load());
    tickAlone(u"城市"_s, {u"大连"_s, u"杭州"_s});
    ASSERT_EQ(ids(), QStringList({u"1"_s, u"5"_s, u"8"_s, u"11"_s}));
    const QString shown = statement();
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(row(dialog, 1), u"城市 在列表中 大连, 杭州"_s);
        EXPECT_EQ(keptLines(dialog), QStringList());
        EXPECT_EQ(counted(dialog), u"约 4 条"_s);
        ok(dialog);
    });
    EXPECT_EQ(statement(), shown);
    filterByRow(2, u"ID"_s, u"小于"_s, u"8"_s);
    EXPECT_EQ(ids(), QStringList({u"1"_s, u"5"_s}));
    EXPECT_EQ(conditions().size(), 2);
}

TEST_F(FilterRowsAgain, ChangingADialogRowKeepsTheColumnMenusCondition)
{
    ASSERT_TRUE(load());
    filterByRow(1, u"ID"_s, u"小于"_s, u"9"_s);
    tickAlone(u"城市"_s, {u"大连"_s});
    ASSERT_EQ(ids(), QStringList({u"5"_s, u"8"_s}));
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(row(dialog, 1), u"ID 小于 9"_s);
        EXPECT_EQ(row(dialog, 2), u"城市 等于 大连"_s);
        fill(dialog, 1, u"ID"_s, u"小于"_s, u"6"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList(u"5"_s));
    EXPECT_EQ(conditions(), QStringList({u"ID < 6"_s, u"城市 = “大连”"_s}));
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records) << "the dialog filters from the origin, whose entry comes before";
}

TEST_F(FilterRowsAgain, AlternativesOfTheBuilderStayTogether)
{
    ASSERT_TRUE(load());
    filterWith([](QDialog &dialog) {
        fill(dialog, 1, u"ID"_s, u"小于"_s, u"3"_s);
        fill(dialog, 2, u"ID"_s, u"大于"_s, u"10"_s);
        part<QComboBox>(dialog, "cmbJoin1").setCurrentIndex(1);
        ok(dialog);
    });
    tickAlone(u"城市"_s, {u"杭州"_s});
    ASSERT_EQ(ids(), QStringList({u"1"_s, u"11"_s}));
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(row(dialog, 3), u"城市 等于 杭州"_s);
        EXPECT_EQ(sentence(dialog), u"（【ID】小于 3，或者【ID】大于 10），并且【城市】等于“杭州”。"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList({u"1"_s, u"11"_s}));
}

TEST_F(FilterRowsAgain, AConditionOnAnotherTablesFieldOfTheSameNameIsALine)
{
    ASSERT_TRUE(
        load(u"SELECT ID, 城市 FROM 商品 LEFT JOIN (SELECT ID FROM 商品 WHERE ID > 2) AS 后 USING (ID)"_s));
    filterOfHost(u"后.ID IS NULL"_s);
    ASSERT_EQ(ids(), QStringList({u"1"_s, u"2"_s}));
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog).size(), 1);
        fill(dialog, 1, u"ID"_s, u"大于"_s, u"1"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList(u"2"_s));
    click(u"ToOrigin"_s);
    filterOfHost(u"ID > 5"_s);
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(row(dialog, 1), u"ID 大于 5"_s) << "the field that is shown";
        cancel(dialog);
    });
}

TEST_F(FilterRowsAgain, ACellsConditionIsARowAndStaysAsItIsUntilTheRowIsChanged)
{
    ASSERT_TRUE(load());
    table->setCurrentIndex(table->model()->index(4, grid.GetBindFieldIndex(u"城市"_s) - 1));
    choose(14, 5, grid.GetBindFieldIndex(u"城市"_s));
    ASSERT_EQ(ids(), QStringList({u"5"_s, u"8"_s}));
    const QString made = grid.SQLFilter();
    ASSERT_TRUE(made.contains(u"城市 like '大连'"_s)) << made.toStdString();
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog), QStringList());
        EXPECT_EQ(row(dialog, 1), u"城市 等于 大连"_s);
        EXPECT_EQ(sentence(dialog), u"【城市】等于“大连”。"_s);
        ok(dialog);
    });
    EXPECT_EQ(grid.SQLFilter(), made);
    filterWith([](QDialog &dialog) {
        fill(dialog, 1, u"城市"_s, u"等于"_s, u"杭州"_s);
        EXPECT_EQ(part<QLineEdit>(dialog, "txtCondition").text(), u"城市 = '杭州'"_s);
        fill(dialog, 1, u"城市"_s, u"等于"_s, u"大连"_s);
        fill(dialog, 2, u"ID"_s, u"小于"_s, u"8"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList(u"5"_s));
    EXPECT_TRUE(grid.SQLFilter().contains(u"城市 like '大连' AND ID < 8"_s))
        << grid.SQLFilter().toStdString();
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(row(dialog, 1), u"城市 等于 大连"_s);
        EXPECT_EQ(row(dialog, 2), u"ID 小于 8"_s);
        fill(dialog, 1, u"城市"_s, u"等于"_s, u"杭州"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList(u"1"_s));
    EXPECT_TRUE(grid.SQLFilter().contains(u"城市 = '杭州' AND ID < 8"_s)) << grid.SQLFilter().toStdString();
}

TEST_F(FilterRowsAgain, WhatTheHostAndOneFieldsWordsAskForAreRows)
{
    ASSERT_TRUE(load());
    filterOfHost(u"ID > 2 and 城市 in ('大连', '厦门')"_s);
    findWords(u"茶"_s, u"名称"_s);
    ASSERT_EQ(conditions().size(), 3);
    const QStringList found = ids();
    const QString made = grid.SQLFilter();
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(row(dialog, 1), u"ID 大于 2"_s);
        EXPECT_EQ(row(dialog, 2), u"城市 在列表中 大连, 厦门"_s);
        EXPECT_EQ(row(dialog, 3), u"名称 包含 茶"_s);
        EXPECT_EQ(keptLines(dialog), QStringList());
        ok(dialog);
    });
    EXPECT_EQ(ids(), found);
    filterWith([](QDialog &dialog) {
        part<QComboBox>(dialog, "cmbJoin2").setCurrentIndex(1);
        part<QComboBox>(dialog, "cmbJoin1").setCurrentIndex(1);
        ok(dialog);
    });
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM 商品 WHERE ID > 2 OR 城市 IN ('大连', '厦门') OR 名称 LIKE "
                           "'%茶%'"_s),
              QString::number(rows()));
}

TEST_F(FilterRowsAgain, AnUnchangedConditionStillBelongsToTheColumnMenu)
{
    ASSERT_TRUE(load());
    const auto tickNull = [this] {
        WindowAnswers dialogs({[](QDialog &dialog) {
            waitFor(dialog, u"x 大连"_s);
            tick(dialog, u"（空值）"_s);
            press(dialog, "cmdOK");
        }});
        open(u"城市"_s);
    };
    tickNull();
    const QStringList before = conditions();
    ASSERT_EQ(before.size(), 1);
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog), QStringList());
        ok(dialog);
    });
    EXPECT_EQ(conditions(), before);
    filterByRow(2, u"ID"_s, u"小于"_s, u"99"_s);
    ASSERT_EQ(conditions().size(), 2);
    tickNull();
    EXPECT_EQ(conditions(), QStringList(u"ID < 99"_s)) << "and not one more";
}

TEST_F(FilterRowsAgain, ALaterColumnMenuConditionBelongsToTheColumnMenu)
{
    ASSERT_TRUE(load());
    filterByRow(1, u"城市"_s, u"等于"_s, u"大连"_s);
    click(u"ToOrigin"_s);
    tickAlone(u"城市"_s, {u"大连"_s});
    filterWith(ok);
    tickAlone(u"城市"_s, {u"杭州"_s});
    EXPECT_EQ(conditions(), QStringList(u"城市 = “杭州”"_s));
}

TEST_F(FilterRowsAgain, APartThatIsLeftOfSeveralRowsIsARowAgain)
{
    ASSERT_TRUE(load());
    filterWith([](QDialog &dialog) {
        fill(dialog, 1, u"ID"_s, u"小于"_s, u"9"_s);
        fill(dialog, 2, u"城市"_s, u"等于"_s, u"大连"_s);
        ok(dialog);
    });
    QTest::mouseClick(grid.findChild<QToolButton *>(u"Condition1"_s), Qt::LeftButton);
    ASSERT_EQ(conditions(), QStringList(u"城市 = “大连”"_s));
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(row(dialog, 1), u"城市 等于 大连"_s);
        fill(dialog, 2, u"ID"_s, u"大于"_s, u"5"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList(u"8"_s));
}
