// The list of a field's values with ticks, over a real database.
#include "filter/ticks/ValueTicks.h"
#include "filter/ticks/TickList.h"

#include "filter/FilterSource.h"
#include "support/Dialogs.h"
#include "support/TestDatabase.h"

#include <QtTest/QSignalSpy>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QVBoxLayout>

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct Ticks : testing::Test
{
    Ticks() : ticks(new ValueTicks(&dialog))
    {
        (new QVBoxLayout(&dialog))->addWidget(ticks);
        dialog.resize(420, 520);
        present(dialog);
        source.setConnectionString(database.connectionString());
    }

    void start(const QString &caption, const TickedValues &ticked = {}, const QString &table = u"订单"_s)
    {
        source.setTable(table);
        for (const FilterField &candidate : source.readFields()) {
            if (candidate.caption == caption)
                field = candidate;
        }
        ASSERT_EQ(field.caption, caption);
        ticks->start(
            field.fieldClass,
            [this](const QString &search) { return source.tickRequest(field, condition, search); }, ticked);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !part<QProgressBar>(dialog, "prgReading").isVisible(); }));
    }
    // The entries of the list, each with its check box and count: "[x] 北京 2". Children are indented.
    QStringList listed() const
    {
        QStringList lines;
        for (int i = 0; i < list().topLevelItemCount(); ++i)
            addLines(lines, *list().topLevelItem(i), {});
        return lines;
    }
    static void addLines(QStringList &lines, const QTreeWidgetItem &item, const QString &indent)
    {
        const QString box = item.checkState(0) == Qt::Checked     ? u"[x] "_s
                            : item.checkState(0) == Qt::Unchecked ? u"[ ] "_s
                                                                  : u"[-] "_s;
        lines.append((indent + box + item.text(0) + u' ' + item.text(1)).trimmed());
        for (int i = 0; i < item.childCount(); ++i)
            addLines(lines, *item.child(i), indent + u' ');
    }
    bool becomes(const QStringList &lines) const
    {
        return QTest::qWaitFor([&] { return listed() == lines; });
    }
    // Presses the space bar on an entry, as who has no mouse does.
    void press(const QString &text) const
    {
        const auto found = list().findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1) << text.toStdString();
        list().setCurrentItem(found.front());
        QTest::keyClick(&list(), Qt::Key_Space);
    }
    void search(const QString &text) const
    {
        auto &edit = part<QLineEdit>(dialog, "txtSearch");
        edit.setFocus();
        edit.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&edit, Qt::Key_Delete);
        else
            compose(edit, text);
    }
    TickList &list() const { return part<TickList>(dialog, "lstTicks"); }
    QCheckBox &all() const { return part<QCheckBox>(dialog, "chkAll"); }
    std::string note() const { return part<QLabel>(dialog, "lblTicks").text().toStdString(); }
    std::string sql() const
    {
        const FilterCondition found = conditionOf(source.dialect(), field, ticks->ticked());
        return found.fault.isEmpty() ? found.sql.toStdString() : "fault";
    }
    // The records that the condition selects.
    QString selected() const
    {
        const QString where = QString::fromStdString(sql());
        return database.ask(
            u"SELECT group_concat(编号, ' ') FROM (SELECT 编号 FROM 订单 WHERE %1 ORDER BY 编号)"_s.arg(
                where.isEmpty() ? u"1"_s : where));
    }

    TestDatabase database{
        u"CREATE TABLE 订单 (编号 INTEGER, 城市 VARCHAR(20), 单价 DOUBLE, 日期 DATE, 时刻 TIMESTAMP, 已付 "
        u"BOOLEAN,"
        " 图 BLOB);"
        "INSERT INTO 订单 VALUES (1, '北京', 0.1, '2024-01-05', '2024-01-05 08:30:00', 1, x'00'),"
        " (2, '上海', 0.3, '2024-01-09', '2024-01-05 09:00:00', 0, NULL),"
        " (3, '北京', 0.3, '2024-03-01', '2024-02-01 00:00:00', 0, NULL),"
        " (4, NULL, NULL, NULL, NULL, NULL, x'01'), (5, '', 5, '2023-12-31', '2023-01-01 23:59:59', 1, NULL);"_s};
    FilterSource source;
    FilterField field;
    QString condition;
    QDialog dialog;
    ValueTicks *ticks;
};

} // namespace

TEST_F(Ticks, ListTheValuesWithTheNumberOfTheirRecords)
{
    start(u"城市"_s);
    EXPECT_TRUE(becomes({u"[x] （空值） 2"_s, u"[x] 上海 1"_s, u"[x] 北京 2"_s}));
    EXPECT_EQ(note(), "已选 3 个值，共 3 个") << "the records without a value have a box as well";
    EXPECT_EQ(all().checkState(), Qt::Checked);
    EXPECT_TRUE(ticks->ticked().isEverything());
}

TEST_F(Ticks, SelectTheRecordsOfWhatIsTicked)
{
    start(u"城市"_s);
    ASSERT_TRUE(becomes({u"[x] （空值） 2"_s, u"[x] 上海 1"_s, u"[x] 北京 2"_s}));
    QSignalSpy changes(ticks, &ValueTicks::changed);
    press(u"北京"_s);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(selected(), u"2 4 5"_s);
    EXPECT_EQ(all().checkState(), Qt::PartiallyChecked);
    press(u"（空值）"_s);
    EXPECT_EQ(selected(), u"2"_s);
    QTest::mouseClick(&all(), Qt::LeftButton, {}, {8, all().height() / 2});
    EXPECT_TRUE(ticks->ticked().isEverything());
    QTest::mouseClick(&all(), Qt::LeftButton, {}, {8, all().height() / 2});
    EXPECT_TRUE(ticks->ticked().isNothing());
    press(u"（空值）"_s);
    EXPECT_EQ(selected(), u"4 5"_s);
}

TEST_F(Ticks, OfNumbersAndBooleans)
{
    start(u"单价"_s);
    ASSERT_TRUE(becomes({u"[x] （空值） 1"_s, u"[x] 0.1 1"_s, u"[x] 0.3 2"_s, u"[x] 5 1"_s}));
    press(u"0.3"_s);
    EXPECT_EQ(selected(), u"1 4 5"_s);
    start(u"已付"_s);
    ASSERT_TRUE(becomes({u"[x] （空值） 1"_s, u"[x] 否 2"_s, u"[x] 是 2"_s}));
    press(u"否"_s);
    EXPECT_EQ(selected(), u"1 4 5"_s);
    press(u"（空值）"_s);
    EXPECT_EQ(selected(), u"1 5"_s);
}

// SQLite keeps no zeros of a decimal; the condition is on the value.
TEST_F(Ticks, ShowNumbersWithTheDecimalsOfTheirField)
{
    database.run(u"CREATE TABLE 价 (单价 DECIMAL(8,2)); INSERT INTO 价 VALUES (0.2), (0.25), (3), (0.2)"_s);
    start(u"单价"_s, {}, u"价"_s);
    ASSERT_TRUE(becomes({u"[x] 0.20 2"_s, u"[x] 0.25 1"_s, u"[x] 3.00 1"_s}))
        << listed().join(u'|').toStdString();
    search(u"0.20"_s);
    EXPECT_EQ(listed(), QStringList(u"[ ] 0.20 2"_s));
    press(u"0.20"_s);
    const QString where = QString::fromStdString(sql());
    EXPECT_FALSE(where.contains(u"0.20"_s)) << sql();
    EXPECT_EQ(database.ask(u"SELECT COUNT(*) || ' ' || MAX(单价) FROM 价 WHERE "_s + where), u"2 0.2"_s);
    search(u"3"_s);
    EXPECT_EQ(listed(), QStringList(u"[ ] 3.00 1"_s));
}

TEST_F(Ticks, OfPicturesWhetherThereIsOne)
{
    start(u"图"_s);
    EXPECT_EQ(listed(), (QStringList{u"[x] （空值）"_s, u"[x] （有值）"_s}));
    press(u"（空值）"_s);
    EXPECT_EQ(selected(), u"1 4"_s);
    press(u"（空值）"_s);
    press(u"（有值）"_s);
    EXPECT_EQ(selected(), u"2 3 5"_s);
}

TEST_F(Ticks, DaysAreATreeOfYearsAndMonths)
{
    start(u"日期"_s);
    ASSERT_TRUE(
        becomes({u"[x] （空值） 1"_s, u"[x] 2023年 1"_s, u"[x] 12月 1"_s, u"[x] 31日 1"_s, u"[x] 2024年 3"_s,
                 u"[x] 1月 2"_s, u"[x] 5日 1"_s, u"[x] 9日 1"_s, u"[x] 3月 1"_s, u"[x] 1日 1"_s}))
        << listed().join(u'|').toStdString();
    press(u"1月"_s);
    EXPECT_EQ(listed().at(4), u"[-] 2024年 3"_s);
    EXPECT_EQ(selected(), u"3 4 5"_s);
    press(u"（空值）"_s);
    EXPECT_EQ(selected(), u"3 5"_s);
    press(u"2024年"_s);
    EXPECT_EQ(selected(), u"1 2 3 5"_s);
    EXPECT_EQ(sql(), "日期 IS NOT NULL");
}

TEST_F(Ticks, MomentsAreListedByTheirDays)
{
    start(u"时刻"_s);
    ASSERT_TRUE(becomes({u"[x] （空值） 1"_s, u"[x] 2023年 1"_s, u"[x] 1月 1"_s, u"[x] 1日 1"_s,
                         u"[x] 2024年 3"_s, u"[x] 1月 2"_s, u"[x] 5日 2"_s, u"[x] 2月 1"_s, u"[x] 1日 1"_s}))
        << listed().join(u'|').toStdString();
    press(u"5日"_s);
    EXPECT_EQ(selected(), u"3 4 5"_s);
    press(u"2月"_s);
    press(u"（空值）"_s);
    EXPECT_EQ(selected(), u"5"_s);
}

TEST_F(Ticks, BeginAsTheyWereLeft)
{
    start(u"日期"_s, {false, {u"2024年"_s}, false});
    ASSERT_TRUE(QTest::qWaitFor([&] { return listed().value(0) == u"[ ] （空值） 1"_s; }));
    ASSERT_EQ(listed().size(), 10);
    EXPECT_EQ(listed().at(1), u"[ ] 2023年 1"_s);
    EXPECT_EQ(listed().at(4), u"[x] 2024年 3"_s);
    press(u"3月"_s);
    EXPECT_EQ(selected(), u"1 2"_s);
}

TEST_F(Ticks, WhatIsOpenStaysOpenWhenAllAreTicked)
{
    start(u"日期"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return listed().size() == 10; }));
    const auto year = [this] { return list().findItems(u"2024年"_s, Qt::MatchExactly).front(); };
    EXPECT_FALSE(year()->isExpanded());
    list().setCurrentItem(year());
    QTest::keyClick(&list(), Qt::Key_Right);
    QTest::mouseClick(&all(), Qt::LeftButton, {}, {8, all().height() / 2});
    EXPECT_TRUE(year()->isExpanded());
    EXPECT_EQ(list().currentItem(), year());
    EXPECT_EQ(year()->checkState(0), Qt::Unchecked);
}

TEST_F(Ticks, OnlyTheRecordsThatMeetTheConditionAreCounted)
{
    condition = u"编号 < 3 OR 编号 = 4"_s;
    start(u"城市"_s);
    EXPECT_TRUE(becomes({u"[x] （空值） 1"_s, u"[x] 上海 1"_s, u"[x] 北京 1"_s}));
}

TEST_F(Ticks, ASearchTicksWhatItFindsAndEnterTicksAllOfIt)
{
    start(u"城市"_s);
    ASSERT_TRUE(becomes({u"[x] （空值） 2"_s, u"[x] 上海 1"_s, u"[x] 北京 2"_s}));
    search(u"海"_s);
    EXPECT_EQ(listed(), QStringList(u"[ ] 上海 1"_s));
    EXPECT_EQ(all().text(), u"全选搜索结果"_s);
    EXPECT_TRUE(ticks->ticked().isNothing());
    QTest::keyClick(&part<QLineEdit>(dialog, "txtSearch"), Qt::Key_Return);
    EXPECT_EQ(selected(), u"2"_s);
    search(u"京"_s);
    EXPECT_EQ(listed(), QStringList(u"[ ] 北京 2"_s));
    press(u"北京"_s);
    EXPECT_EQ(selected(), u"1 2 3"_s);
    search({});
    EXPECT_EQ(listed(), (QStringList{u"[ ] （空值） 2"_s, u"[x] 上海 1"_s, u"[x] 北京 2"_s}));
}

TEST_F(Ticks, ASearchThatIsGivenUpChangesNothing)
{
    start(u"城市"_s);
    search(u"无"_s);
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(note(), "没有包含“无”的值");
    EXPECT_FALSE(all().isEnabled());
    search({});
    EXPECT_TRUE(ticks->ticked().isEverything());
    EXPECT_EQ(listed().size(), 3);
}

TEST_F(Ticks, DaysAreFoundAsTheyAreWrittenAndSpoken)
{
    start(u"日期"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return listed().size() == 10; }));
    for (const QString &text : {u"2024-01"_s, u"2024年1月"_s}) {
        search(text);
        EXPECT_EQ(listed(), (QStringList{u"[ ] 2024年 2"_s, u"[ ] 1月 2"_s, u"[ ] 5日 1"_s, u"[ ] 9日 1"_s}));
    }
    press(u"2024年"_s);
    EXPECT_EQ(selected(), u"1 2"_s) << "what the search hides gets no tick";
}

TEST_F(Ticks, MoreThanTwoHundredValuesAreReportedAndFoundByASearch)
{
    database.run(u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 1344)"
                 " INSERT INTO 订单 (编号, 城市) SELECT i, printf('城%05d', i) FROM n"_s);
    start(u"城市"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return note() == "共 1,247 个值，只列出前 200 个，其余的请用搜索查找";
    })) << note();
    EXPECT_EQ(listed().size(), 201);
    press(u"上海"_s);
    EXPECT_EQ(sql(), "(城市 <> '上海' OR (城市 IS NULL OR 城市 = ''))");
    press(u"上海"_s);
    search(u"城0134"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return listed().size() == 5; })) << listed().join(u'|').toStdString();
    EXPECT_EQ(listed().front(), u"[ ] 城01340 1"_s);
    QTest::keyClick(&part<QLineEdit>(dialog, "txtSearch"), Qt::Key_Return);
    EXPECT_EQ(selected(), u"1340 1341 1342 1343 1344"_s);
    search(u"城"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return listed().size() == 200; }));
    EXPECT_FALSE(all().isEnabled()) << "what it found is not all listed";
    EXPECT_EQ(selected(), u"1340 1341 1342 1343 1344"_s);
}

TEST_F(Ticks, AreReachedWithoutAMouse)
{
    start(u"城市"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return listed().size() == 3; }));
    ticks->setFocus();
    EXPECT_EQ(dialog.focusWidget()->objectName(), u"txtSearch"_s);
    key(dialog, Qt::Key_Down);
    EXPECT_EQ(dialog.focusWidget()->objectName(), u"lstTicks"_s);
    key(dialog, Qt::Key_Down);
    key(dialog, Qt::Key_Space);
    EXPECT_EQ(listed().at(1), u"[ ] 上海 1"_s);
}

TEST_F(Ticks, AReadingThatTakesLongIsShownAndStopped)
{
    database.run(u"CREATE VIEW 无尽 AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
                 " SELECT CAST(i AS TEXT) AS 值 FROM n"_s);
    source.setTable(u"无尽"_s);
    field = source.readFields().front();
    ticks->start(field.fieldClass,
                 [this](const QString &search) { return source.tickRequest(field, {}, search); });
    EXPECT_TRUE(part<QProgressBar>(dialog, "prgReading").isVisible());
    EXPECT_EQ(note(), "正在读取该字段的值…");
    KovaTest::press(dialog, "cmdStop");
    EXPECT_FALSE(part<QProgressBar>(dialog, "prgReading").isVisible());
    EXPECT_EQ(note(), "已停止读取。可以输入文字搜索。");
    EXPECT_TRUE(ticks->ticked().isEverything());
}

TEST_F(Ticks, SayWhyNothingCanBeRead)
{
    start(u"城市"_s);
    database.run(u"ALTER TABLE 订单 RENAME TO 旧"_s);
    start(u"城市"_s, {}, u"旧"_s);
    source.setTable(u"没有"_s);
    ticks->start(field.fieldClass,
                 [this](const QString &search) { return source.tickRequest(field, {}, search); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return note().starts_with("无法读取已有的值："); })) << note();
    EXPECT_TRUE(ticks->ticked().isEverything());
}

TEST_F(Ticks, WhereEachRecordHasAValueNoEntryIsForThoseWithoutOne)
{
    start(u"编号"_s, {.areLeftOut = false, .values = {u"1"_s}});
    EXPECT_TRUE(becomes({u"[x] 1 1"_s, u"[ ] 2 1"_s, u"[ ] 3 1"_s, u"[ ] 4 1"_s, u"[ ] 5 1"_s}))
        << qUtf8Printable(listed().join(u'|'));
}
