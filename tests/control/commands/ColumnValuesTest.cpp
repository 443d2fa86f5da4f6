// Filtering by the values of a column, from its menu.
#include "ColumnValuesFixture.h"

#include <QtWidgets/QProgressBar>

using namespace KovaTest;
using namespace Qt::StringLiterals;

TEST_F(ColumnValues, WhatIsTickedIsOneMoreConditionOfTheBar)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
                               EXPECT_EQ(dialog.windowTitle(), u"按列筛选：城市"_s);
                               tickAll(dialog, false);
                               EXPECT_FALSE(part<QAbstractButton>(dialog, "cmdOK").isEnabled());
                               tick(dialog, u"大连"_s);
                               tick(dialog, u"杭州"_s);
                               tick(dialog, u"（空值）"_s);
                               press(dialog, "cmdOK");
                           },
                           [](QDialog &dialog) {
                               tick(dialog, u"绿茶"_s);
                               EXPECT_FALSE(listed(dialog).contains(u"x 挂面"_s)) << "it is not shown";
                               waitWhile(dialog, u"x （空值）"_s); // until their number is known: none
                               press(dialog, "cmdOK");
                           }});
    open(u"城市"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"5"_s, u"8"_s, u"9"_s, u"11"_s}));
    EXPECT_EQ(spoken(u"城市"_s), u"城市，已筛选"_s);
    EXPECT_EQ(conditions().size(), 1) << conditions().join(u'|').toStdString();
    open(u"名称"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"5"_s, u"8"_s, u"9"_s}));
    EXPECT_EQ(conditions().value(1), u"名称 ≠ “绿茶”"_s);
    QTest::mouseClick(grid.findChild<QToolButton *>(u"Condition1"_s), Qt::LeftButton);
    EXPECT_EQ(conditions(), QStringList(u"名称 ≠ “绿茶”"_s));
    EXPECT_EQ(rows(), records - 1);
    // Each step is one of the history.
    click(u"ToPreview"_s);
    EXPECT_EQ(conditions().size(), 2);
    click(u"ToPreview"_s);
    EXPECT_EQ(conditions().size(), 1);
    click(u"ToPreview"_s);
    EXPECT_EQ(rows(), records);
}

TEST_F(ColumnValues, AColumnsChoiceIsChangedWhereItWasMade)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
                               tick(dialog, u"大连"_s);
                               tick(dialog, u"（空值）"_s);
                               press(dialog, "cmdOK");
                           },
                           [](QDialog &dialog) {
                               waitFor(dialog, u"  （空值）"_s);
                               EXPECT_TRUE(listed(dialog).contains(u"  大连"_s))
                                   << "what it left out is offered";
                               EXPECT_TRUE(listed(dialog).contains(u"x 杭州"_s));
                               tick(dialog, u"大连"_s);
                               tick(dialog, u"杭州"_s);
                               press(dialog, "cmdOK");
                           },
                           [](QDialog &dialog) {
                               waitFor(dialog, u"  杭州"_s);
                               tickAll(dialog, true);
                               press(dialog, "cmdOK");
                           }});
    open(u"城市"_s);
    EXPECT_EQ(texts(u"ID"_s),
              QStringList({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"6"_s, u"7"_s, u"10"_s, u"11"_s, u"12"_s}));
    open(u"城市"_s);
    EXPECT_EQ(texts(u"ID"_s),
              QStringList({u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s, u"10"_s, u"12"_s}));
    EXPECT_EQ(conditions().size(), 1) << conditions().join(u'|').toStdString();
    open(u"城市"_s);
    EXPECT_EQ(rows(), records);
    EXPECT_EQ(conditions(), QStringList());
}

TEST_F(ColumnValues, AFilterThatLeavesNoRecordIsChangedThereToo)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
                               tickAll(dialog, false);
                               tick(dialog, u"大连"_s);
                               press(dialog, "cmdOK");
                           },
                           [](QDialog &dialog) {
                               waitFor(dialog, u"x 大连"_s);
                               EXPECT_TRUE(listed(dialog).contains(u"  杭州"_s));
                               press(dialog, "cmdCancel");
                           }});
    open(u"城市"_s);
    EXPECT_EQ(rows(), 2);
    database.run(
        u"DELETE FROM 商品 WHERE 城市='大连'; INSERT INTO 商品 (ID,名称,城市) VALUES (20,'x','大连')"_s);
    open(u"城市"_s);
    EXPECT_EQ(conditions(), QStringList(u"城市 = “大连”"_s));
}

TEST_F(ColumnValues, DaysAreOnePartOfTheBarAsWell)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
        tickAll(dialog, false);
        tick(dialog, u"1月"_s);
        tick(dialog, u"31日"_s);
        press(dialog, "cmdOK");
    }});
    open(u"日期"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"4"_s, u"7"_s}));
    EXPECT_EQ(conditions().size(), 1) << conditions().join(u'|').toStdString();
    QTest::mouseClick(grid.findChild<QToolButton *>(u"Condition1"_s), Qt::LeftButton);
    EXPECT_EQ(rows(), records);
}

TEST_F(ColumnValues, NumbersAndBooleans)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
                               tick(dialog, u"49.50"_s);
                               press(dialog, "cmdOK");
                           },
                           [](QDialog &dialog) {
                               tick(dialog, u"否"_s);
                               press(dialog, "cmdOK");
                           }});
    open(u"Unit Price"_s);
    EXPECT_FALSE(texts(u"ID"_s).contains(u"4"_s));
    EXPECT_EQ(rows(), records - 1);
    open(u"停用"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"3"_s, u"7"_s, u"12"_s}));
}

TEST_F(ColumnValues, GroupedRowsAndAliasesHaveThemToo)
{
    ASSERT_TRUE(load(u"SELECT 城市 AS 地方,COUNT(*) AS 数量 FROM 商品 WHERE ID < 9 GROUP BY 城市"_s, {}));
    WindowAnswers dialogs({[](QDialog &dialog) {
                               tick(dialog, u"1"_s);
                               press(dialog, "cmdOK");
                           },
                           [](QDialog &dialog) {
                               EXPECT_EQ(dialog.windowTitle(), u"按列筛选：地方"_s);
                               EXPECT_TRUE(QTest::qWaitFor([&] {
                                   return listed(dialog) == QStringList(u"x 大连"_s);
                               })) << listed(dialog).join(u'|').toStdString();
                               press(dialog, "cmdCancel");
                           }});
    open(u"数量"_s);
    EXPECT_EQ(texts(u"地方"_s), QStringList(u"大连"_s));
    open(u"地方"_s);
    EXPECT_EQ(rows(), 1);
}

TEST_F(ColumnValues, EnterInTheSearchShowsWhatItFinds)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[](QDialog &dialog) {
        ASSERT_EQ(dialog.focusWidget()->objectName(), u"txtSearch"_s);
        waitFor(dialog, u"x 花茶"_s);
        compose(*dialog.focusWidget(), u"茶"_s);
        EXPECT_EQ(listed(dialog).size(), 6);
        key(dialog, Qt::Key_Return);
    }});
    open(u"名称"_s);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"2"_s, u"4"_s, u"10"_s, u"11"_s, u"12"_s}));
}

// A column whose values never come to an end: the window stays alive, and the button ends it.
TEST_F(ColumnValues, OfAStatementOfTheHostAreReadInTheBackground)
{
    database.run(u"CREATE VIEW 数 AS SELECT 1 AS 值"_s);
    grid.PutTableType(KOVAVSFDataGrid::DefSQL);
    ASSERT_TRUE(load(u"SELECT * FROM 数"_s, u"SELECT 值 FROM 数"_s));
    database.run(u"DROP VIEW 数; CREATE VIEW 数 AS WITH RECURSIVE n(i) AS "
                 "(SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i AS 值 FROM n"_s);
    WindowAnswers dialogs({[](QDialog &dialog) {
        EXPECT_TRUE(part<QProgressBar>(dialog, "prgReading").isVisible());
        press(dialog, "cmdStop");
        EXPECT_EQ(part<QLabel>(dialog, "lblTicks").text(), u"已停止读取。可以输入文字搜索。"_s);
        press(dialog, "cmdCancel");
    }});
    open(u"值"_s);
}

TEST_F(ColumnValues, AConditionMadeOtherwiseIsNoChoiceOfValues)
{
    ASSERT_TRUE(load());
    QString chosen;
    WindowAnswers dialogs({[](QDialog &dialog) {
                               tickAll(dialog, false);
                               tick(dialog, u"3"_s);
                               press(dialog, "cmdOK");
                           },
                           [](QDialog &dialog) {
                               waitFor(dialog, u"x 3"_s);
                               EXPECT_FALSE(listed(dialog).contains(u"  5"_s))
                                   << "it is left out by the host";
                               dialog.reject();
                           }});
    open(u"ID"_s);
    ASSERT_EQ(texts(u"ID"_s), QStringList(u"3"_s));
    chosen = statement().section(u"WHERE "_s, 1).trimmed();
    ASSERT_TRUE(load());
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [&](qint32 &cancel, const QString &) {
        grid.PutPassQurryFilter(chosen);
        cancel = 0;
    });
    click(u"Filter"_s);
    ASSERT_EQ(texts(u"ID"_s), QStringList(u"3"_s));
    open(u"ID"_s);
}
