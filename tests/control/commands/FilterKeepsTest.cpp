// The conditions in force when the filter dialog opens: none is lost unless the user drops it.
#include "FilterInForceFixture.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class FilterKeeps : public FilterInForce
{
};

} // namespace

TEST_F(FilterKeeps, WhatHasNoRowIsALineThatIsKept)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s);
    const QString words = conditions().value(0);
    ASSERT_TRUE(words.endsWith(u" 个字段之一 包含“茶”"_s)) << words.toStdString();
    filterWith([&](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog), QStringList(u"x 保留："_s + words));
        EXPECT_EQ(sentence(dialog), u"（"_s + words + u"）。"_s);
        EXPECT_EQ(counted(dialog), u"约 6 条"_s);
        fill(dialog, 1, u"城市"_s, u"等于"_s, u"杭州"_s);
        EXPECT_EQ(sentence(dialog), u"（"_s + words + u"），并且【城市】等于“杭州”。"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return part<QLabel>(dialog, "lblCount").text() == u"约 2 条"_s; }));
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList({u"1"_s, u"11"_s}));
    EXPECT_EQ(conditions(), QStringList({words, u"城市 = “杭州”"_s}));
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog).size(), 1);
        EXPECT_EQ(row(dialog, 1), u"城市 等于 杭州"_s);
        QTest::mouseClick(&part<QCheckBox>(dialog, "chkKept1"), Qt::LeftButton, {}, {8, 8});
        EXPECT_EQ(sentence(dialog), u"【城市】等于“杭州”。"_s);
        fill(dialog, 1, u"城市"_s, u"等于"_s, u"厦门"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList({u"3"_s, u"12"_s}));
    EXPECT_EQ(conditions(), QStringList(u"城市 = “厦门”"_s));
    EXPECT_EQ(grid.SQLFilter(), u"SELECT * FROM 商品  WHERE 城市 = '厦门' "_s);
}

TEST_F(FilterKeeps, ColumnsWithTheSameNameEndingKeepTheirOwnConditions)
{
    database.run(u"CREATE TABLE 库存 (ID INTEGER PRIMARY KEY, 数量 INTEGER, 库存数量 INTEGER);"
                 "INSERT INTO 库存 VALUES (1,3,3),(2,3,7),(3,7,3),(4,5,3),(5,7,9),"
                 "(6,1,1),(7,2,2),(8,4,4),(9,6,6),(10,8,8)"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 库存"_s, {}));
    tickAlone(u"数量"_s, {u"3"_s, u"7"_s});
    tickAlone(u"库存数量"_s, {u"3"_s, u"7"_s});
    ASSERT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    tickAlone(u"库存数量"_s, {u"3"_s, u"9"_s});
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"1"_s, u"3"_s, u"5"_s}));
    // How the second one is written depends on whether the number of records without a value had come.
    ASSERT_EQ(conditions().size(), 2);
    EXPECT_EQ(conditions().first(), u"数量 是 3, 7 之一"_s);
}

TEST_F(FilterKeeps, KeptConditionsNeedNoOther)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s);
    const QStringList found = ids();
    ASSERT_EQ(found.size(), 6);
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog).size(), 1);
        EXPECT_EQ(row(dialog, 1), u"ID 等于 "_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), found);
    filterWith([&](QDialog &dialog) {
        auto &line = part<QCheckBox>(dialog, "chkKept1");
        line.setFocus();
        QTest::keyClick(&line, Qt::Key_Space);
        press(dialog, "cmd_Filter");
        EXPECT_TRUE(dialog.isVisible()) << "nothing is left to filter by";
        QTest::keyClick(&line, Qt::Key_Space);
        fill(dialog, 1, u"ID"_s, u"大于"_s, found.at(4));
        ok(dialog);
    });
    EXPECT_EQ(ids(), found.last(1));
}

TEST_F(FilterKeeps, EscapeAsksOnceALineIsUnticked)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s);
    messages.answerNext(QMessageBox::No);
    filterWith([this](QDialog &dialog) {
        QTest::mouseClick(&part<QCheckBox>(dialog, "chkKept1"), Qt::LeftButton, {}, {8, 8});
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_EQ(messages.texts(), QStringList(u"放弃已输入的条件吗？"_s));
        EXPECT_TRUE(dialog.isVisible());
        QTest::mouseClick(&part<QCheckBox>(dialog, "chkKept1"), Qt::LeftButton, {}, {8, 8});
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible()) << "all is as it was";
    });
    EXPECT_EQ(conditions().size(), 1);
}

TEST_F(FilterKeeps, TheHostsConditionIsKeptInItsBrackets)
{
    ASSERT_TRUE(load());
    filterOfHost(u"城市 = '杭州' OR 城市 = '厦门'"_s);
    ASSERT_EQ(rows(), 4);
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog), QStringList(u"x 保留：城市 = “杭州”，或者 城市 = “厦门”"_s));
        fill(dialog, 1, u"ID"_s, u"小于"_s, u"11"_s);
        EXPECT_EQ(sentence(dialog), u"（城市 = “杭州”，或者 城市 = “厦门”），并且【ID】小于 11。"_s);
        part<QCheckBox>(dialog, "chkSql").click();
        EXPECT_EQ(keptLines(dialog), QStringList(u"x 保留：城市 = '杭州' OR 城市 = '厦门'"_s));
        EXPECT_EQ(part<QLineEdit>(dialog, "txtCondition").text(), u"ID < 11"_s);
        part<QCheckBox>(dialog, "chkSql").click(); // which the next dialog would begin with
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList({u"1"_s, u"3"_s}));
    EXPECT_EQ(grid.SQLFilter(), u"SELECT * FROM 商品  WHERE (城市 = '杭州' OR 城市 = '厦门') AND ID < 11 "_s);
}

TEST_F(FilterKeeps, ATypedConditionIsJoinedToWhatIsKept)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s);
    filterWith([](QDialog &dialog) { filter(dialog, u"ID = 1 OR ID = 5 OR ID = 11"_s); });
    EXPECT_EQ(ids(), QStringList({u"1"_s, u"11"_s}));
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog).size(), 1);
        EXPECT_EQ(part<QLineEdit>(dialog, "txtCondition").text(), u"ID = 1 OR ID = 5 OR ID = 11"_s);
        EXPECT_EQ(counted(dialog), u"约 2 条"_s);
        cancel(dialog);
    });
}

TEST_F(FilterKeeps, ATopNOverOtherRecordsIsAKeptLine)
{
    ASSERT_TRUE(load());
    tickAlone(u"城市"_s, {u"大连"_s, u"杭州"_s});
    click(u"FromResult"_s);
    filterByRow(1, u"Unit Price"_s, u"前 N 个"_s, u"1"_s);
    ASSERT_EQ(ids(), QStringList(u"1"_s)) << "among four";
    click(u"FromResult"_s);
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(row(dialog, 1), u"城市 在列表中 大连, 杭州"_s);
        EXPECT_EQ(keptLines(dialog), QStringList(u"x 保留：Unit Price 是最大的 1 个之一"_s));
        EXPECT_EQ(counted(dialog), u"约 1 条"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList(u"1"_s));
}

TEST_F(FilterKeeps, TheBuilderOfAHeadingBeginsWithThemToo)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s);
    tickAlone(u"城市"_s, {u"杭州"_s, u"厦门"_s});
    WindowAnswers dialogs({[](QDialog &dialog) { press(dialog, "cmdByConditions"); },
                           [](QDialog &dialog) {
                               EXPECT_EQ(keptLines(dialog).size(), 1);
                               EXPECT_EQ(row(dialog, 1), u"城市 在列表中 厦门, 杭州"_s);
                               EXPECT_EQ(row(dialog, 2), u"ID 等于 "_s);
                               fill(dialog, 2, u"ID"_s, u"大于"_s, u"1"_s);
                               ok(dialog);
                           }});
    open(u"ID"_s);
    EXPECT_EQ(ids(), QStringList({u"11"_s, u"12"_s}));
}

TEST_F(FilterKeeps, NothingIsInTheWayWhereTheResultIsNarrowed)
{
    ASSERT_TRUE(load());
    findWords(u"茶"_s, u"名称"_s);
    click(u"FromResult"_s);
    table->setCurrentIndex(table->model()->index(0, 0));
    filterWith([](QDialog &dialog) {
        EXPECT_EQ(keptLines(dialog), QStringList());
        EXPECT_EQ(row(dialog, 1), u"ID 等于 1"_s);
        ok(dialog);
    });
    EXPECT_EQ(ids(), QStringList(u"1"_s));
    EXPECT_EQ(conditions().size(), 2);
}
