// Conditions run on a database select exactly the rows that a plain loop over the same values selects.
#include "filter/conditions/FilterCondition.h"

#include "ado/Connection.h"
#include "ado/Recordset.h"
#include "query/conditions/Conditions.h"
#include "query/derivation/SqlText.h"
#include "sql/Names.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;
using enum FilterOperator;

namespace {

struct Row
{
    std::optional<QString> text;
    std::optional<double> number;
    std::optional<QDateTime> moment;
    std::optional<bool> flag;
};

// One of the pieces that are dangerous in a statement or a pattern, again and again.
QString randomText(std::mt19937 &random)
{
    static const QStringList pieces{u"'"_s,  u"%"_s,          u"_"_s,     u"["_s,       u"]"_s,
                                    u"!"_s,  u"\\"_s,         u"\""_s,    u" "_s,       u"a"_s,
                                    u"B"_s,  u" order by "_s, u"FROM "_s, u" Where "_s, u"北京"_s,
                                    u"，"_s, u"--"_s,         u"x%y"_s,   u"𠮷"_s};
    QString text;
    for (auto count = random() % 5; count > 0; --count)
        text += pieces.at(static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size())));
    return text;
}

QString literal(const std::optional<QString> &value)
{
    return value ? u'\'' + QString(*value).replace(u"'"_s, u"''"_s) + u'\'' : u"NULL"_s;
}

struct Selected : testing::Test
{
    Selected()
    {
        std::mt19937 random(20240131);
        const QDateTime start(QDate(2024, 1, 1), QTime(0, 0), Qt::UTC);
        QString script =
            u"CREATE TABLE T (ID INTEGER PRIMARY KEY, [Text %] VARCHAR(50), N NUMERIC(10,2), M TIMESTAMP, "
            "[Order] BOOLEAN, D DATE);"_s;
        // SQLite keeps a moment as the text that it was given.
        const QString forms[] = {u"yyyy-MM-dd HH:mm:ss"_s, u"yyyy-MM-ddTHH:mm:ss"_s, u"yyyy-MM-dd HH:mm"_s};
        for (int id = 0; id < 400; ++id) {
            Row row;
            if (random() % 8 != 0)
                row.text = randomText(random);
            if (random() % 8 != 0)
                row.number = (static_cast<int>(random() % 41) - 20) / 2.0;
            if (random() % 8 != 0)
                row.moment = start.addSecs(static_cast<qint64>(random() % 20) * 6 * 3600);
            if (random() % 8 != 0)
                row.flag = random() % 2 == 0;
            script += u"INSERT INTO T VALUES (%1, %2, %3, %4, %5, %6);"_s.arg(
                QString::number(id), literal(row.text), row.number ? QString::number(*row.number) : u"NULL"_s,
                literal(row.moment ? std::optional(row.moment->toString(forms[random() % 3])) : std::nullopt),
                row.flag ? QString::number(*row.flag ? 1 : 0) : u"NULL"_s,
                // Midnight can be the bare day as well.
                literal(row.moment ? std::optional(row.moment->toString(
                                         row.moment->time() == QTime(0, 0) && id % 2 == 0 ? u"yyyy-MM-dd"_s
                                                                                          : forms[id % 3]))
                                   : std::nullopt));
            rows.push_back(row);
        }
        database.run(u"BEGIN;"_s + script + u"COMMIT;"_s); // one wait for the disk instead of 400
        connection->Open(database.connectionString());
    }

    static FilterField field(const QString &name, FieldClass fieldClass)
    {
        return {name, writtenName(dialect, name), fieldClass};
    }

    // As filtering a sorted result and then filtering what is found once more writes it.
    static QString thatFiltersTwice(const QString &condition)
    {
        QString statement = u"select ID from T order by ID"_s;
        for (const QString &further : {condition, u"ID >= 0"_s}) {
            auto parts = SplitSQLSentence(statement);
            addCondition(*parts, further);
            statement = joinSQLSentence(*parts);
        }
        return statement;
    }

    void expectSame(const FilterChoice &choice, const std::function<bool(const Row &)> &wanted)
    {
        const FilterCondition condition = conditionOf(dialect, choice);
        ASSERT_TRUE(condition.fault.isEmpty()) << qUtf8Printable(condition.fault);
        QStringList expected;
        for (std::size_t id = 0; id < rows.size(); ++id) {
            if (wanted(rows[id]))
                expected.append(QString::number(id));
        }
        const QString statement = thatFiltersTwice(condition.sql);
        EXPECT_EQ(GetTableOfSQL(statement), u"T"_s);
        ADODB::Recordset found;
        found.Open(statement, connection);
        QStringList ids;
        for (qint64 record = 1; record <= found.RecordCount(); ++record)
            ids.append(found.CellText(record, 0));
        EXPECT_EQ(ids, expected) << qUtf8Printable(condition.sql);
    }

    QStringList selected(const QString &condition)
    {
        ADODB::Recordset found;
        found.Open(u"SELECT ID FROM T WHERE "_s + condition + u" ORDER BY ID"_s, connection);
        QStringList ids;
        for (qint64 record = 1; record <= found.RecordCount(); ++record)
            ids.append(found.CellText(record, 0));
        return ids;
    }

    static constexpr Dialect dialect{dbAccess, false, false, Engine::SQLite};
    KovaTest::TestDatabase database{QString()};
    std::shared_ptr<ADODB::Connection> connection = std::make_shared<ADODB::Connection>();
    std::vector<Row> rows;
};

// SQLite finds letters of the Latin alphabet in either case.
bool contains(const QString &text, const QString &part)
{
    return text.contains(part, Qt::CaseInsensitive);
}

} // namespace

TEST_F(Selected, ByText)
{
    std::mt19937 random(7);
    const FilterField text = field(u"Text %"_s, FieldClass::Text);
    for (int round = 0; round < 150; ++round) {
        const QString value = randomText(random);
        if (value.isEmpty())
            continue;
        const auto with = [&](FilterOperator op, const std::function<bool(const QString &)> &wanted) {
            expectSame({text, op, value, {}}, [&](const Row &row) { return row.text && wanted(*row.text); });
        };
        with(Equals, [&](const QString &t) { return t == value; });
        expectSame({text, NotEquals, value, {}}, [&](const Row &row) { return row.text != value; });
        with(Contains, [&](const QString &t) { return contains(t, value); });
        with(BeginsWith, [&](const QString &t) { return t.startsWith(value, Qt::CaseInsensitive); });
        with(EndsWith, [&](const QString &t) { return t.endsWith(value, Qt::CaseInsensitive); });
        with(Greater, [&](const QString &t) { return t.toUtf8() > value.toUtf8(); });
        with(AtMost, [&](const QString &t) { return t.toUtf8() <= value.toUtf8(); });
    }
}

TEST_F(Selected, ByEmptyAndOtherText)
{
    const FilterField text = field(u"Text %"_s, FieldClass::Text);
    expectSame({text, IsEmpty, {}, {}}, [](const Row &row) { return !row.text || row.text->isEmpty(); });
    expectSame({text, IsNotEmpty, {}, {}}, [](const Row &row) { return row.text && !row.text->isEmpty(); });
    expectSame({text, InList, u"a, 北京,\"，\", '"_s, {}}, [](const Row &row) {
        return row.text && QStringList{u"a"_s, u"北京"_s, u"，"_s, u"'"_s}.contains(*row.text);
    });
}

TEST_F(Selected, ByNumber)
{
    const FilterField number = field(u"N"_s, FieldClass::Number);
    for (const double limit : {-20.0, -3.5, 0.0, 0.25, 7.0, 100.0}) {
        const QString value = QString::number(limit);
        const auto with = [&](FilterOperator op, const std::function<bool(double)> &wanted) {
            expectSame({number, op, value, {}},
                       [&](const Row &row) { return row.number && wanted(*row.number); });
        };
        with(Equals, [&](double n) { return n == limit; });
        expectSame({number, NotEquals, value, {}}, [&](const Row &row) { return row.number != limit; });
        with(Greater, [&](double n) { return n > limit; });
        with(Less, [&](double n) { return n < limit; });
        with(AtLeast, [&](double n) { return n >= limit; });
        with(AtMost, [&](double n) { return n <= limit; });
    }
    expectSame({number, Between, u"-3.5"_s, u"2"_s},
               [](const Row &row) { return row.number && *row.number >= -3.5 && *row.number <= 2; });
    expectSame({number, InList, u"-3.5，0, 2"_s, {}}, [](const Row &row) {
        return row.number && (*row.number == -3.5 || *row.number == 0 || *row.number == 2);
    });
    expectSame({number, IsEmpty, {}, {}}, [](const Row &row) { return !row.number; });
}

TEST_F(Selected, ByDayAndMoment)
{
    const FilterField moment = field(u"M"_s, FieldClass::Moment);
    const QDate day(2024, 1, 3);
    const auto onDay = [&](FilterOperator op, const std::function<bool(QDate)> &wanted) {
        expectSame({moment, op, u"2024年1月3日"_s, {}},
                   [&](const Row &row) { return row.moment && wanted(row.moment->date()); });
    };
    onDay(Equals, [&](QDate d) { return d == day; });
    expectSame({moment, NotEquals, u"2024年1月3日"_s, {}},
               [&](const Row &row) { return !row.moment || row.moment->date() != day; });
    onDay(Greater, [&](QDate d) { return d > day; });
    onDay(Less, [&](QDate d) { return d < day; });
    onDay(AtLeast, [&](QDate d) { return d >= day; });
    onDay(AtMost, [&](QDate d) { return d <= day; });
    const QDateTime noon(day, QTime(12, 0), Qt::UTC);
    expectSame({moment, Equals, u"2024-01-03 12:00"_s, {}},
               [&](const Row &row) { return row.moment == noon; });
    expectSame({moment, Greater, u"2024-01-03 12:00"_s, {}},
               [&](const Row &row) { return row.moment && *row.moment > noon; });
    expectSame({moment, Between, u"2024-01-02"_s, u"2024-01-03"_s}, [&](const Row &row) {
        return row.moment && row.moment->date() >= QDate(2024, 1, 2) && row.moment->date() <= day;
    });
    expectSame({moment, InList, u"2024-01-01,2024-01-03 12:00"_s, {}}, [&](const Row &row) {
        return row.moment && (row.moment->date() == QDate(2024, 1, 1) || *row.moment == noon);
    });
}

TEST_F(Selected, ByMomentFinerThanMilliseconds)
{
    database.run(
        u"CREATE TABLE U (ID INTEGER, M TIMESTAMP); INSERT INTO U VALUES"
        "(1,'2024-07-01 12:00:00.123456'),(2,'2024-07-01 12:00:00.123'),(3,'2024-07-01T12:00:00.123000'),"
        "(4,'2024-07-01 12:00:00+08:00'),(5,'2024-07-01 12:00'),(6,NULL)"_s);
    const auto found = [&](const QString &typed) {
        const FilterCondition condition =
            conditionOf(dialect, {{u"M"_s, u"M"_s, FieldClass::Moment}, Equals, typed, {}});
        ADODB::Recordset records;
        records.Open(u"select ID from U where "_s + condition.sql, connection);
        QStringList ids;
        for (qint64 record = 1; record <= records.RecordCount(); ++record)
            ids.append(records.CellText(record, 0));
        return ids.join(u' ');
    };
    EXPECT_EQ(found(u"2024-07-01 12:00:00.123456"_s), u"1"_s);
    EXPECT_EQ(found(u"2024-07-01 12:00:00.123"_s), u"2 3"_s);
    EXPECT_EQ(found(u"2024-07-01 12:00:00.1230"_s), u"2 3"_s);
    EXPECT_EQ(found(u"2024-07-01 12:00:00"_s), u"5"_s) << "another zone is shown otherwise";
}

// A date field whose values can have a time: it equals the day only if no other time is shown, and at any
// time of the day it is neither less nor greater.
TEST_F(Selected, ByDayThatCanHaveATime)
{
    const FilterField field{u"D"_s, u"D"_s, FieldClass::Date};
    const QDate day(2024, 1, 3);
    const QDateTime midnight(day, QTime(0, 0), Qt::UTC);
    const QDateTime noon(day, QTime(12, 0), Qt::UTC);
    const auto with = [&](FilterOperator op, const QString &value,
                          const std::function<bool(const QDateTime &)> &wanted) {
        expectSame({field, op, value, {}}, [&](const Row &row) { return row.moment && wanted(*row.moment); });
    };
    const QString typed = u"2024-01-03"_s;
    with(Equals, typed, [&](const QDateTime &m) { return m == midnight; });
    with(Equals, u"2024-01-03 00:00:00"_s, [&](const QDateTime &m) { return m == midnight; });
    with(Equals, u"2024-01-03 12:00:00"_s, [&](const QDateTime &m) { return m == noon; });
    with(InList, u"2024-01-03, 2024-01-04"_s,
         [&](const QDateTime &m) { return m == midnight || m == midnight.addDays(1); });
    expectSame({field, NotEquals, typed, {}}, [&](const Row &row) { return row.moment != midnight; });
    with(Greater, typed, [&](const QDateTime &m) { return m.date() > day; });
    with(Less, typed, [&](const QDateTime &m) { return m.date() < day; });
    with(AtLeast, typed, [&](const QDateTime &m) { return m.date() >= day; });
    with(AtMost, typed, [&](const QDateTime &m) { return m.date() <= day; });
    expectSame({field, Between, u"2024-01-02"_s, typed}, [&](const Row &row) {
        return row.moment && row.moment->date() >= day.addDays(-1) && row.moment->date() <= day;
    });
}

TEST_F(Selected, ByYesAndNo)
{
    const FilterField flag = field(u"Order"_s, FieldClass::Boolean);
    expectSame({flag, Equals, u"是"_s, {}}, [](const Row &row) { return row.flag == true; });
    expectSame({flag, Equals, u"否"_s, {}}, [](const Row &row) { return row.flag == false; });
    expectSame({flag, NotEquals, u"是"_s, {}}, [](const Row &row) { return row.flag != true; });
    expectSame({flag, NotEquals, u"是"_s, {}, false, false},
               [](const Row &row) { return row.flag == false; });
    expectSame({flag, IsNotEmpty, {}, {}}, [](const Row &row) { return row.flag.has_value(); });
}

TEST_F(Selected, AComplementIsEveryOtherRecord)
{
    const FilterScope scope{QDate(2024, 1, 2), FilterSql::Records{u"T"_s, {}}};
    for (const FilterField &each :
         {field(u"Text %"_s, FieldClass::Text), field(u"N"_s, FieldClass::Number),
          field(u"M"_s, FieldClass::Moment), field(u"Order"_s, FieldClass::Boolean)}) {
        const QString value = each.fieldClass == FieldClass::Moment    ? u"本月"_s
                              : each.fieldClass == FieldClass::Boolean ? u"是"_s
                                                                       : u"2"_s;
        for (const FilterOperator op : operatorsFor(each.fieldClass)) {
            for (const int ticks : {0, 1, 2, 3}) {
                const FilterChoice choice{
                    each, op, takesCount(op) ? u"3"_s : value, value, (ticks & 1) != 0, (ticks & 2) != 0};
                const QStringList met = selected(conditionOf(dialect, choice, scope).sql);
                const QStringList others = selected(complementOf(dialect, choice, scope).sql);
                EXPECT_EQ(met.size() + others.size(), static_cast<qsizetype>(rows.size()))
                    << qUtf8Printable(captionOf(op)) << ticks;
                for (const QString &id : met)
                    EXPECT_FALSE(others.contains(id)) << qUtf8Printable(captionOf(op)) << ticks;
            }
        }
    }
}
