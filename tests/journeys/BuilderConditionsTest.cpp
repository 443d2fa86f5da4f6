// The filter builder's conditions on each engine: they must return the same records as a plain loop over the
// values.
#include "JourneyDatabase.h"

#include "ado/Connection.h"
#include "ado/Recordset.h"
#include "ado/connection/EngineOf.h"
#include "filter/FilterSource.h"
#include "filter/conditions/FilterCondition.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// A record: its key is its position, from 1.
struct Values
{
    std::optional<QString> text;
    std::optional<int> number;
};

// Letters of one case only, because case sensitivity depends on the column.
std::vector<Values> generatedValues()
{
    const QStringList pieces{u"'"_s, u"\\"_s, u"%"_s, u"_"_s, u"["_s,   u"]"_s,
                             u"!"_s, u"茶"_s, u"🍵"_s, u"a"_s, u"b c"_s, u"\""_s};
    std::vector<Values> values{{u""_s, 0},     {std::nullopt, std::nullopt},
                               {u"'"_s, -1},   {u"\\"_s, -12},
                               {u"\\'"_s, 12}, {u"%"_s, 123},
                               {u"_"_s, -123}, {u"["_s, 7},
                               {u"50%"_s, 50}, {u"a_b"_s, 2147483647}};
    std::minstd_rand random(20260101); // the same on each run
    while (values.size() < 60) {
        QString text;
        for (auto count = random() % 4 + 1; count > 0; --count)
            text += pieces.at(static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size())));
        values.push_back({text, static_cast<int>(random() % 41) - 20});
    }
    return values;
}

class BuilderConditions : public testing::TestWithParam<JourneyEngine>
{
protected:
    void SetUp() override
    {
        if (!engine.isThere())
            GTEST_SKIP() << engine.variable << " is not set";
        database.emplace(engine);
        const bool isMariaDb = engine.isMariaDb();
        QStringList script{
            u"DROP TABLE IF EXISTS journey_conditions"_s,
            u"CREATE TABLE journey_conditions (id INTEGER PRIMARY KEY, t VARCHAR(60), n INTEGER)%1"_s.arg(
                isMariaDb ? u" CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin"_s : QString())};
        int id = 0;
        for (const Values &record : values) {
            QString literal = record.text.value_or(QString()).replace(u'\'', u"''"_s);
            if (isMariaDb)
                literal.replace(u'\\', u"\\\\"_s);
            script += u"INSERT INTO journey_conditions VALUES (%1,%2,%3)"_s.arg(
                QString::number(++id), record.text ? u'\'' + literal + u'\'' : u"NULL"_s,
                record.number ? QString::number(*record.number) : u"NULL"_s);
        }
        database->run(script);
        connection->Open(database->connectionString());
        source.setDatabase(static_cast<AllDBType>(engine.dbType));
        source.setConnection(connection);
        source.setTable(u"journey_conditions"_s);
        fields = source.readFields();
    }

    // The keys of the records that the builder's row selects.
    QString found(int field, FilterOperator op, const QString &value, const QString &lastValue = {})
    {
        const FilterCondition condition =
            conditionOf(source.dialect(), {fields.at(static_cast<std::size_t>(field)), op, value, lastValue});
        EXPECT_EQ(condition.fault, QString());
        ADODB::Recordset recordset;
        recordset.Open(u"SELECT id FROM "_s + table + u" WHERE "_s + condition.sql + u" ORDER BY id"_s,
                       connection);
        QStringList keys;
        for (qint64 record = 1; record <= recordset.RecordCount(); ++record)
            keys += recordset.CellText(record, 0);
        return keys.join(u' ');
    }

    QString expected(const std::function<bool(const Values &)> &isMeant) const
    {
        QStringList keys;
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (isMeant(values[i]))
                keys += QString::number(i + 1);
        }
        return keys.join(u' ');
    }

    // SQLite's ODBC driver doesn't support emoji in a statement.
    bool canRead(const QString &wanted) const
    {
        return engine.store != JourneyEngine::SqliteFile || !engine.variable || !wanted.contains(u"🍵");
    }

    static constexpr int text = 1;
    static constexpr int number = 2;
    const JourneyEngine &engine = GetParam();
    const std::vector<Values> values = generatedValues();
    std::optional<JourneyDatabase> database;
    std::shared_ptr<ADODB::Connection> connection = std::make_shared<ADODB::Connection>();
    FilterSource source;
    std::vector<FilterField> fields;
    QString table = u"journey_conditions"_s;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Engines, BuilderConditions, testing::ValuesIn(journeyEngines()),
                         [](const auto &each) { return std::string(each.param.name); });

TEST_P(BuilderConditions, OnTextsMeanWhatTheySay)
{
    using enum FilterOperator;
    for (const Values &record : values) {
        if (!record.text || record.text->isEmpty())
            continue;
        if (!canRead(*record.text))
            continue;
        const QString &wanted = *record.text;
        SCOPED_TRACE(wanted.toStdString());
        const auto compare = [&](FilterOperator op, const std::function<bool(const QString &)> &isMeant) {
            EXPECT_EQ(found(text, op, wanted).toStdString(), expected([&](const Values &each) {
                                                                 return each.text && isMeant(*each.text);
                                                             }).toStdString())
                << qUtf8Printable(captionOf(op));
        };
        compare(Equals, [&](const QString &each) { return each == wanted; });
        EXPECT_EQ(found(text, NotEquals, wanted).toStdString(),
                  expected([&](const Values &each) { return each.text != wanted; }).toStdString());
        compare(Contains, [&](const QString &each) { return each.contains(wanted); });
        compare(BeginsWith, [&](const QString &each) { return each.startsWith(wanted); });
        compare(EndsWith, [&](const QString &each) { return each.endsWith(wanted); });
    }
}

TEST_P(BuilderConditions, OnEmptyTextsMeanWhatTheySay)
{
    EXPECT_EQ(found(text, FilterOperator::IsEmpty, {}),
              expected([](const Values &each) { return !each.text || each.text->isEmpty(); }));
    EXPECT_EQ(found(text, FilterOperator::IsNotEmpty, {}),
              expected([](const Values &each) { return each.text && !each.text->isEmpty(); }));
}

TEST_P(BuilderConditions, OnListsOfTextsMeanWhatTheySay)
{
    EXPECT_EQ(found(text, FilterOperator::InList, uR"(',"\",%,"50%")"_s), expected([](const Values &each) {
                  return each.text && QStringList({u"'"_s, u"\\"_s, u"%"_s, u"50%"_s}).contains(*each.text);
              }));
}

TEST_P(BuilderConditions, OnNumbersMeanWhatTheySay)
{
    using enum FilterOperator;
    for (const int wanted : {-123, -12, 0, 7, 2147483647}) {
        SCOPED_TRACE(wanted);
        const auto compare = [&](FilterOperator op, const std::function<bool(int)> &isMeant) {
            EXPECT_EQ(found(number, op, QString::number(wanted)).toStdString(),
                      expected([&](const Values &each) {
                          return each.number && isMeant(*each.number);
                      }).toStdString())
                << qUtf8Printable(captionOf(op));
        };
        compare(Equals, [&](int each) { return each == wanted; });
        EXPECT_EQ(found(number, NotEquals, QString::number(wanted)).toStdString(),
                  expected([&](const Values &each) { return each.number != wanted; }).toStdString());
        compare(Greater, [&](int each) { return each > wanted; });
        compare(Less, [&](int each) { return each < wanted; });
        compare(AtLeast, [&](int each) { return each >= wanted; });
        compare(AtMost, [&](int each) { return each <= wanted; });
    }
    EXPECT_EQ(found(number, Between, u"-12"_s, u"7"_s), expected([](const Values &each) {
                  return each.number && *each.number >= -12 && *each.number <= 7;
              }));
    EXPECT_EQ(found(number, IsEmpty, {}), expected([](const Values &each) { return !each.number; }));
}

// A driver can report a computed value as text.
TEST_P(BuilderConditions, OnComputedNumbersMeanWhatTheySay)
{
    table = u"(SELECT id, n - 1 AS less, COUNT(*) AS one\nFROM journey_conditions GROUP BY id, n) Q"_s;
    source.setTable(table);
    fields = source.readFields();
    using enum FilterOperator;
    constexpr int less = 1;
    constexpr int one = 2;
    const auto where = [&](const std::function<bool(int)> &isMeant) {
        return expected([&](const Values &each) { return each.number && isMeant(*each.number - 1); });
    };
    EXPECT_EQ(found(less, Equals, u"14"_s), where([](int each) { return each == 14; }));
    EXPECT_EQ(found(less, InList, u"14, -24, 0"_s),
              where([](int each) { return each == 14 || each == -24 || each == 0; }));
    EXPECT_EQ(found(less, Between, u"-12"_s, u"9"_s),
              where([](int each) { return each >= -12 && each <= 9; }));
    EXPECT_EQ(found(less, Less, u"-9"_s), where([](int each) { return each < -9; }));
    EXPECT_EQ(found(one, Equals, u"1"_s), expected([](const Values &) { return true; }));
    EXPECT_EQ(found(one, NotEquals, u"1"_s), QString());
    EXPECT_EQ(found(one, Greater, u"1"_s), QString());
}

TEST_P(BuilderConditions, OnMoneyMeanWhatTheySay)
{
    if (!QLatin1StringView(engine.name).startsWith("PostgreSQL"_L1))
        GTEST_SKIP() << engine.name << " has no such type";
    table = u"journey_money"_s;
    database->run({u"DROP TABLE IF EXISTS journey_money"_s,
                   u"CREATE TABLE journey_money (id INTEGER PRIMARY KEY, m MONEY)"_s,
                   u"INSERT INTO journey_money VALUES (1, 12.5), (2, 1234.5), (3, 0), (4, -3), (5, NULL)"_s});
    source.setTable(table);
    fields = source.readFields();
    using enum FilterOperator;
    constexpr int money = 1;
    EXPECT_EQ(found(money, Equals, u"1234.5"_s), u"2"_s);
    EXPECT_EQ(found(money, NotEquals, u"0"_s), u"1 2 4 5"_s);
    EXPECT_EQ(found(money, InList, u"0, 12.5"_s), u"1 3"_s);
    EXPECT_EQ(found(money, Between, u"0"_s, u"12.5"_s), u"1 3"_s);
    EXPECT_EQ(found(money, Greater, u"12.5"_s), u"2"_s);
    EXPECT_EQ(found(money, IsEmpty, {}), u"5"_s);

    ADODB::Recordset records;
    records.Open(u"SELECT m FROM journey_money ORDER BY id"_s, connection);
    EXPECT_EQ(records.Fields().Item(0).Type(), ADODB::adCurrency);
    EXPECT_EQ(records.CellText(2, 0), u"1234.5"_s);
    EXPECT_EQ(records.CellText(4, 0), u"-3"_s);
}

TEST_P(BuilderConditions, OfferTheValuesThatAreThere)
{
    ValueReading reading(source.valueRequest(fields.at(number), FilterSource::mostValues));
    ASSERT_TRUE(reading.waitForValues(10000));
    const QStringList offered = reading.values().values;
    EXPECT_TRUE(offered.contains(u"-123"_s));
    EXPECT_TRUE(offered.contains(u"2147483647"_s));
    EXPECT_FALSE(offered.contains(QString()));
}
