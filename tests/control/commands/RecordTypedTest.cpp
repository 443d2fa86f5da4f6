// What people type into the fields of a single record: as they write it, and stored as the field has it.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtTest/QTest>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class RecordTyped : public Shop, public testing::WithParamInterface<bool>
{
protected:
    RecordTyped()
    {
        database.run(
            u"CREATE TABLE 订货 (ID INTEGER PRIMARY KEY, 数量 INTEGER, 日期 DATE, 时刻 TIMESTAMP, 时间 TIME,"
            " 加急 BOOLEAN, 名称 VARCHAR(20) NOT NULL, 单价 NUMERIC(8,2) NOT NULL, 照片 BLOB NOT NULL);"
            "INSERT INTO 订货 VALUES (1, 5, '2024-01-05', NULL, NULL, 0, '茶', 9.5, x'00')"_s);
        grid.PutLanguage(isEnglish ? u"en"_s : u"zh-CN"_s);
        QCoreApplication::processEvents();
    }
    ~RecordTyped() override { grid.PutLanguage({}); }

    void showRecord()
    {
        ASSERT_TRUE(load(u"SELECT * FROM 订货"_s, {}));
        click(u"SingleRecord"_s);
    }
    // With an input method, as Chinese is typed.
    void type(const QString &field, const QString &text)
    {
        makeCurrent(field);
        QTest::keyClick(list, Qt::Key_F2);
        edit->selectAll();
        compose(*edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    QString saved(const QString &field)
    {
        QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
        return database.ask(u"SELECT typeof(%1) || ' ' || %1 FROM 订货 WHERE ID = 1"_s.arg(field));
    }

    const bool isEnglish = GetParam();
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, RecordTyped, testing::Bool(),
                         [](const auto &each) { return each.param ? "English" : "Chinese"; });

TEST_P(RecordTyped, NumbersAndDaysAreReadAsTheFilterReadsThem)
{
    showRecord();
    type(u"数量"_s, u"１２"_s);
    EXPECT_EQ(listed(u"数量"_s), u"12"_s);
    EXPECT_EQ(saved(u"数量"_s), u"integer 12"_s);
    type(u"单价"_s, u"－１．５"_s);
    EXPECT_EQ(saved(u"单价"_s), u"real -1.5"_s);
    type(u"日期"_s, u"2024年3月1日"_s);
    EXPECT_EQ(listed(u"日期"_s), u"2024-03-01"_s);
    EXPECT_EQ(saved(u"日期"_s), u"text 2024-03-01"_s);
    type(u"时刻"_s, u"2024年3月1日　８：３０"_s);
    EXPECT_EQ(saved(u"时刻"_s), u"text 2024-03-01 08:30:00"_s);
    type(u"时间"_s, u"８：３０"_s);
    EXPECT_EQ(saved(u"时间"_s), u"text 08:30:00"_s);
    type(u"加急"_s, isEnglish ? u"Yes"_s : u"是"_s);
    EXPECT_EQ(saved(u"加急"_s), u"integer 1"_s);
    type(u"名称"_s, u"１２"_s);
    EXPECT_EQ(saved(u"名称"_s), u"text １２"_s) << "a text stays as it is";
    EXPECT_EQ(messages.texts(), QStringList());
}

TEST_P(RecordTyped, WhatIsNoOneValueIsRefused)
{
    showRecord();
    const QString refused = isEnglish ? u"The value \"%1\" does not fit"_s : u"值“%1”不适合字段"_s;
    for (const auto &[field, text] : {std::pair{u"数量"_s, u"十二"_s},
                                      {u"日期"_s, u"2024年3月"_s},
                                      {u"日期"_s, u"2024年2月30日"_s},
                                      {u"加急"_s, u"也许"_s}}) {
        type(field, text);
        ASSERT_EQ(messages.texts().size(), 1) << qUtf8Printable(text);
        EXPECT_TRUE(messages.texts().front().contains(refused.arg(text)))
            << qUtf8Printable(messages.texts().front());
        EXPECT_TRUE(edit->isVisible() && edit->text() == text) << "it can be corrected";
        messages.clear();
        QTest::keyClick(edit, Qt::Key_Escape);
    }
    EXPECT_EQ(saved(u"数量"_s), u"integer 5"_s);
}

TEST_P(RecordTyped, NullIsRefusedAtOnceWhereAValueIsNeeded)
{
    showRecord();
    const auto needed = [this](const QString &field) {
        const QString refused = isEnglish ? u"The input is not valid: The field \"%1\" cannot be empty."_s
                                          : u"输入的内容无效：字段“%1”不能为空。"_s;
        return QStringList(refused.arg(field));
    };
    for (const QString &field : {u"名称"_s, u"单价"_s}) {
        makeCurrent(field);
        QTest::keyClick(list, Qt::Key_F2);
        QTest::keyClick(edit, Qt::Key_0, Qt::ControlModifier);
        EXPECT_EQ(messages.texts(), needed(field));
        EXPECT_TRUE(edit->isVisible() && grid.window()->focusWidget() == edit);
        messages.clear();
        QTest::keyClick(edit, Qt::Key_Escape);
    }
    type(u"单价"_s, u""_s); // an emptied number is none
    EXPECT_EQ(messages.texts(), needed(u"单价"_s));
    messages.clear();
    QTest::keyClick(edit, Qt::Key_Escape);
    QTest::keyClick(list, Qt::Key_I, Qt::ControlModifier | Qt::ShiftModifier);
    makeCurrent(u"照片"_s);
    QTest::keyClick(list, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(messages.texts(), needed(u"照片"_s));
    messages.clear();
    EXPECT_EQ(saved(u"名称"_s), u"text 茶"_s);
    EXPECT_EQ(database.ask(u"SELECT hex(照片) FROM 订货"_s), u"00"_s);

    makeCurrent(u"数量"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(edit, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(messages.texts(), QStringList());
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(database.ask(u"SELECT 数量 IS NULL FROM 订货"_s), u"1"_s) << "which takes it";
}

TEST_P(RecordTyped, ANarrowWindowStillSaysThatTheRecordIsNotSaved)
{
    showRecord();
    type(u"数量"_s, u"3"_s);
    const auto *save = grid.findChild<QWidget *>(u"cmdSaveRecord"_s);
    const auto *line = grid.findChild<QLabel *>(u"lblStatement"_s);
    const QString mark = isEnglish ? u"(not saved)"_s : u"（未保存）"_s;
    for (int width = 900; width >= 500; width -= 20) {
        grid.resize(width, 500);
        const int whole = line->fontMetrics().horizontalAdvance(isEnglish ? u"Record 1 of 1 (not saved)"_s
                                                                          : u"第 1 条，共 1 条（未保存）"_s);
        const int brief =
            line->fontMetrics().horizontalAdvance(isEnglish ? u"1/1 (not saved)"_s : u"1/1（未保存）"_s);
        EXPECT_GE(line->width(), width >= 720 ? whole : brief) << width;
        const QString shown = line->property("shownText").toString();
        EXPECT_TRUE(shown.contains(mark)) << width << ' ' << shown.toStdString();
        EXPECT_GE(save->width(), save->minimumSizeHint().width()) << width;
        EXPECT_LT(save->geometry().right(), line->geometry().left()) << width;
    }
}

TEST_P(RecordTyped, NullIsAlsoWrittenWhereTheValueIsOnlySelected)
{
    showRecord();
    const auto shownNow = [this] { return grid.findChild<QLabel *>(u"lblStatement"_s)->toolTip(); };
    const QString shown = shownNow();
    makeCurrent(u"数量"_s);
    QTest::keyClick(list, Qt::Key_0, Qt::ControlModifier);
    EXPECT_FALSE(edit->isVisible());
    EXPECT_TRUE(list->isVisible()) << "it is not the key of the whole table here";
    EXPECT_EQ(shownNow(), shown);
    auto *const save = grid.findChild<QAbstractButton *>(u"cmdSaveRecord"_s);
    EXPECT_TRUE(save->isVisible());
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(database.ask(u"SELECT 数量 IS NULL FROM 订货"_s), u"1"_s);

    makeCurrent(u"单价"_s);
    QTest::keyClick(list, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(messages.texts().size(), 1) << "a value is needed";
    EXPECT_TRUE(edit->isVisible());
    messages.clear();
    QTest::keyClick(edit, Qt::Key_Escape);

    grid.PutReadOnly(true);
    QTest::keyClick(list, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(shownNow(), shown);
    EXPECT_EQ(messages.texts(), QStringList());
    EXPECT_FALSE(save->isVisible());
}

TEST_P(RecordTyped, ANewRecordWithoutANeededValueSaysWhichOne)
{
    ASSERT_TRUE(load(u"SELECT * FROM 订货"_s, {}));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Plus, Qt::ControlModifier);
    makeCurrent(u"名称"_s);
    QTest::keyClick(list, Qt::Key_F2);
    QTest::keyClick(edit, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(messages.texts(), QStringList()) << "it is empty already";
    type(u"数量"_s, u"3"_s);
    QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
    const QString refused =
        isEnglish ? u"The record was not saved: The field \"名称\" cannot be empty.\n"
                    "The operation violates a database constraint: NOT NULL constraint failed: 订货.名称"_s
                  : u"记录没有保存：字段“名称”不能为空。\n"
                    "操作违反了数据库的约束：NOT NULL constraint failed: 订货.名称"_s;
    EXPECT_EQ(messages.texts(), QStringList(refused));
    EXPECT_EQ(listed(u"数量"_s), u"3"_s) << "nothing typed is lost";
    messages.clear();
    QTest::keyClick(list, Qt::Key_Escape);
}
