// What is ticked, as a condition.
#include "filter/conditions/ValueStatements.h"
#include "filter/ticks/TickState.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect localFile{dbAccess, false};
constexpr Dialect oracle{dbOracle, true};

std::string sql(FieldClass fieldClass, const TickedValues &ticked, const Dialect &dialect = localFile)
{
    const FilterCondition found = conditionOf(dialect, {u"F"_s, u"F"_s, fieldClass}, ticked);
    return found.fault.isEmpty() ? found.sql.toStdString() : "fault: " + found.fault.toStdString();
}

struct TickedCase
{
    FieldClass fieldClass;
    TickedValues ticked;
    std::string condition;
};

const QStringList someDays{u"2023-12-31"_s, u"2024-01-05"_s, u"2024-01-09"_s, u"2024-03-01"_s,
                           u"2025-05-05"_s};

TickedValues amongDays(const QStringList &unticked)
{
    TickState state;
    for (const QString &day : unticked)
        state.setTicked(day, false);
    TickedValues ticked = state.amongAll(someDays, true);
    ticked.hasNull.reset();
    return ticked;
}

// Stands for the library's English, in which a year is its number alone.
class PlainYears : public QTranslator
{
public:
    PlainYears() { QCoreApplication::installTranslator(this); }

    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source) == u"%1年"_s ? u"%1"_s : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

TEST(TickedValues, AreOneCondition)
{
    using enum FieldClass;
    const TickedCase cases[] = {
        {Text, {true, {}, true}, ""},
        {Text, {true, {}, {}}, ""},
        {Text, {false, {}, false}, "fault: 请至少选择一个值。"},
        {Text, {true, {}, false}, "F <> ''"},
        {Text, {false, {}, true}, "(F IS NULL OR F = '')"},
        {Text, {false, {u"a"_s}, {}}, "F = 'a'"},
        {Text, {false, {u"a, b"_s, u"it's"_s}, false}, "F IN ('a, b', 'it''s')"},
        {Text, {false, {u"a"_s, u"b"_s}, true}, "(F IN ('a', 'b') OR (F IS NULL OR F = ''))"},
        {Text, {true, {u"a"_s}, {}}, "F <> 'a'"},
        {Text, {true, {u"a"_s}, true}, "(F <> 'a' OR (F IS NULL OR F = ''))"},
        {Text, {true, {u"a"_s}, false}, "NOT (F = 'a' OR (F IS NULL OR F = ''))"},
        {Text, {true, {u"a"_s, u"b"_s}, {}}, "NOT (F IN ('a', 'b'))"},
        {Number, {false, {u"5"_s}, {}}, "F = 5"},
        {Number, {true, {u"5"_s, u"-6.5"_s}, true}, "(NOT (F IN (5, -6.5)) OR F IS NULL)"},
        {Boolean, {false, {u"是"_s}, {}}, "F <> 0"},
        {Boolean, {true, {u"是"_s}, {}}, "F = 0"},
        {Boolean, {false, {u"否"_s}, true}, "(F = 0 OR F IS NULL)"},
        {Boolean, {false, {u"是"_s, u"否"_s}, false}, "F IS NOT NULL"},
        {Date, {false, {u"2024-01-05"_s}, {}}, "F IN ('2024-01-05')"},
        {Date,
         {false, {u"2024-02"_s, u"2025-01-01"_s}, {}},
         "(F IN ('2025-01-01') OR (F >= '2024-02-01' AND F < '2024-03-01'))"},
        {Moment, {true, {u"2024年"_s}, {}}, "NOT ((F >= '2024-01-01' AND F < '2025-01-01'))"},
        {Time, {false, {u"08:30:00"_s, u"09:00:00"_s}, {}}, "F IN ('08:30:00', '09:00:00')"},
        {Other, {true, {}, false}, "F IS NOT NULL"},
        {Other, {false, {}, true}, "F IS NULL"},
    };
    for (const TickedCase &c : cases)
        EXPECT_EQ(sql(c.fieldClass, c.ticked), c.condition);
    EXPECT_EQ(sql(Moment, {false, {u"2024-01-05"_s}, {}}, oracle),
              "(F >= {d '2024-01-05'} AND F < {d '2024-01-06'})");
}

TEST(TickedValues, CanBeTextsInANumberFieldOfSqlite)
{
    const Dialect engine{.engine = Engine::SQLite};
    const auto ticked = [](const QStringList &values, bool areLeftOut) {
        TickedValues made;
        made.areLeftOut = areLeftOut;
        made.values = values;
        return made;
    };
    const auto number = FieldClass::Number;
    EXPECT_EQ(sql(number, ticked({u"abc"_s}, false), engine), "F = 'abc'");
    EXPECT_EQ(sql(number, ticked({u"10"_s}, false), engine), "F = 10");
    EXPECT_EQ(sql(number, ticked({u"abc"_s, u"-1"_s}, true), engine),
              "NOT ((F = 'abc' OR CASE typeof(F) WHEN 'text' THEN F = '-1' ELSE "
              "F BETWEEN -1.000000000000005 AND -0.999999999999995 END))");
    EXPECT_EQ(sql(number, ticked({u"abc"_s}, false)), "fault: “abc”不是数字。");
}

TEST(TickedValues, AreTypedAsAList)
{
    EXPECT_EQ(listOf({false, {u"a"_s, u"b, c"_s, u" d"_s}, {}}), u"a, \"b, c\", \" d\""_s);
}

TEST(TickedValues, AreTheSameAfterTheyWereKept)
{
    for (const TickedValues &ticked : {TickedValues{}, TickedValues{false, {u"甲"_s, u"b"_s}, true},
                                       TickedValues{true, {u"2024年"_s}, false}})
        EXPECT_EQ(tickedValuesOf(toJson(ticked)), ticked);
    EXPECT_TRUE(tickedValuesOf({}).isEverything());
}

TEST(TickState, NamesTheFewerValues)
{
    const QStringList values{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    TickState state;
    EXPECT_EQ(state.amongAll(values, false), (TickedValues{true, {}, true}));
    state.setTicked(u"b"_s, false);
    EXPECT_EQ(state.amongAll(values, false), (TickedValues{true, {u"b"_s}, true}));
    state.setTicked(u"a"_s, false);
    EXPECT_EQ(state.amongAll(values, false), (TickedValues{false, {u"c"_s, u"d"_s}, true}));
    state.setAllTicked(false);
    state.setTicked(u"d"_s, true);
    state.setTicked(u"a"_s, true);
    state.setTicked(u"c"_s, true);
    EXPECT_EQ(state.amongAll(values, false), (TickedValues{true, {u"b"_s}, false}));
    EXPECT_EQ(state.asNamed(), (TickedValues{false, {u"d"_s, u"a"_s, u"c"_s}, false}))
        << "where other values may exist, those that were named";
    state.setAllTicked(false);
    EXPECT_TRUE(state.amongAll(values, false).isNothing());
}

TEST(TickState, NamesMonthsAndYearsOfDays)
{
    EXPECT_TRUE(amongDays({}).isEverything());
    EXPECT_EQ(amongDays({u"2024-01-05"_s}), (TickedValues{true, {u"2024-01-05"_s}, {}}));
    EXPECT_EQ(amongDays({u"2024-01-05"_s, u"2024-01-09"_s}), (TickedValues{true, {u"2024-01"_s}, {}}));
    EXPECT_EQ(amongDays({u"2023-12-31"_s, u"2025-05-05"_s, u"2024-03-01"_s}),
              (TickedValues{false, {u"2024-01"_s}, {}}));
    EXPECT_EQ(amongDays({u"2023-12-31"_s, u"2025-05-05"_s}),
              (TickedValues{true, {u"2023-12-31"_s, u"2025-05-05"_s}, {}}))
        << "the only day of a year is a day";
    EXPECT_EQ(amongDays({u"2023-12-31"_s, u"2025-05-05"_s}).values.size(), 2);
}

TEST(TickState, NamesAYearInTheUsersLanguage)
{
    const QStringList days = QStringList(someDays) << u"2026-01-01"_s << u"2027-01-01"_s << u"2028-01-01"_s;
    const auto year = [](const QString &name) { return TickedValues{false, {name}, false}; };
    const auto among = [&](const QString &name) {
        TickState state(year(name));
        state.nameDays(days);
        return state.amongAll(days, true);
    };
    EXPECT_EQ(among(u"2024年"_s), year(u"2024年"_s));
    EXPECT_EQ(among(u"2024"_s), year(u"2024年"_s));
    const PlainYears english;
    EXPECT_EQ(among(u"2024"_s), year(u"2024"_s));
    EXPECT_EQ(among(u"2024年"_s), year(u"2024"_s)) << "a filter that was saved in Chinese";
    EXPECT_EQ(sql(FieldClass::Date, year(u"2024"_s)), sql(FieldClass::Date, year(u"2024年"_s)));
}

TEST(TickState, FindsTheDaysOfAMonthAgain)
{
    TickState state({false, {u"2024年"_s, u"2023-12-31"_s}, {}});
    state.nameDays(someDays);
    for (const QString &day : someDays)
        EXPECT_EQ(state.isTicked(day), day < u"2025"_s) << day.toStdString();
    state.setTicked(u"2024-03-01"_s, false);
    EXPECT_FALSE(state.isTicked(u"2024-03-01"_s));
    EXPECT_TRUE(state.isTicked(u"2024-01-05"_s));
}

TEST(ValueStatements, CountTheRecordsOfEachValue)
{
    const FilterField city{u"C"_s, u"C"_s, FieldClass::Text};
    const ValueStatements all(localFile, city, {u"T"_s, {}});
    EXPECT_EQ(all.counted(3),
              u"SELECT C AS kova_value, COUNT(*) AS kova_count FROM T WHERE C <> '' GROUP BY C "
              "ORDER BY C LIMIT 3"_s);
    EXPECT_EQ(all.countOfEmpty(), u"SELECT COUNT(*) FROM T WHERE (C IS NULL OR C = '')"_s);
    const ValueStatements some(localFile, city, {u"T"_s, u"A = 1 OR B = 2"_s}, u"50%"_s);
    EXPECT_EQ(some.countOfValues(),
              u"SELECT COUNT(DISTINCT C) FROM T WHERE (A = 1 OR B = 2) AND C <> '' AND C "
              "LIKE '%50!%%' ESCAPE '!'"_s);
}

TEST(ValueStatements, ReadMomentsAsDaysWhereTheEngineIsKnown)
{
    const auto count = [](const Dialect &dialect) {
        return ValueStatements(dialect, {u"M"_s, u"M"_s, FieldClass::Moment}, {u"T"_s, {}})
            .countOfValues()
            .section(u" FROM"_s, 0, 0)
            .toStdString();
    };
    const auto server = [](Engine engine) { return Dialect{.isOdbc = true, .engine = engine}; };
    EXPECT_EQ(count({.engine = Engine::SQLite}), "SELECT COUNT(DISTINCT COALESCE(date(M), M))");
    EXPECT_EQ(count(server(Engine::PostgreSQL)), "SELECT COUNT(DISTINCT CAST(M AS DATE))");
    EXPECT_EQ(count(server(Engine::Oracle)), "SELECT COUNT(DISTINCT TRUNC(M))");
    EXPECT_EQ(count(server(Engine::Other)), "SELECT COUNT(DISTINCT M)");
}
