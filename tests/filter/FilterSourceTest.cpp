#include "filter/FilterSource.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "filter/conditions/TickedValues.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct Source : testing::Test
{
    Source() { source.setConnectionString(database.connectionString()); }

    QStringList written(const QString &fromText)
    {
        source.setTable(fromText);
        QStringList names;
        for (const FilterField &field : source.readFields())
            names.append(field.written);
        return names;
    }

    OfferedValues valuesOf(const FilterField &field)
    {
        ValueReading reading(source.valueRequest(field, FilterSource::mostValues));
        EXPECT_TRUE(reading.waitForValues(10000));
        EXPECT_EQ(reading.failure(), QString());
        return reading.values();
    }

    KovaTest::TestDatabase database{
        u"CREATE TABLE [订单 明细] (编号 INTEGER, 名称 VARCHAR(20), [单价(元)] NUMERIC, 日期 DATE, 时刻 "
        u"TIMESTAMP,"
        " 钟点 TIME, 停售 BOOLEAN, 图 BLOB);"
        "CREATE TABLE A (ID INTEGER, X TEXT); CREATE TABLE B (ID INTEGER, Y TEXT);"
        "CREATE TABLE Many (V TEXT);"
        "WITH RECURSIVE N(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM N WHERE n < 300)"
        " INSERT INTO Many SELECT printf('v%03d', n % 250) FROM N;"
        "INSERT INTO Many VALUES (NULL), ('');"_s};
    FilterSource source;
};

} // namespace

TEST_F(Source, KnowsTheClassOfEachField)
{
    source.setTable(u"[订单 明细]"_s);
    QList<FieldClass> classes;
    for (const FilterField &field : source.readFields())
        classes.append(field.fieldClass);
    using enum FieldClass;
    EXPECT_EQ(classes, (QList<FieldClass>{Number, Text, Number, Date, Moment, Time, Boolean, Other}));
}

TEST_F(Source, FindsATableThatIsNamedWithoutItsBrackets)
{
    EXPECT_EQ(written(u"订单 明细"_s).at(2), u"[单价(元)]"_s);
}

TEST_F(Source, DistinguishesFieldsOfSeveralTables)
{
    EXPECT_EQ(written(u"A, B"_s), (QStringList{u"A.ID"_s, u"X"_s, u"B.ID"_s, u"Y"_s}));
    EXPECT_EQ(written(u"A inner join B on A.ID = B.ID"_s).size(), 4);
}

TEST_F(Source, FieldsNamedLikeWordsOfTheLanguageCanBeFilteredBy)
{
    database.run(
        uR"(CREATE TABLE Words ("Order" INTEGER, "Collate" INTEGER, "Returning" INTEGER, "IsNull" INTEGER,
        "a]b" INTEGER, "a""b" INTEGER, "Current_Date" INTEGER); INSERT INTO Words VALUES (1, 1, 1, 1, 1, 1, 1))"_s);
    QStringList conditions;
    for (const QString &name : written(u"Words"_s))
        conditions.append(name + u" = 1"_s);
    EXPECT_EQ(conditions.size(), 7);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM Words WHERE "_s + conditions.join(u" AND "_s)), u"1"_s);
}

TEST_F(Source, TextsInANumberFieldAreFoundByTicksAndBytesByNothing)
{
    database.run(
        u"CREATE TABLE Loose (N INTEGER, D DOUBLE);"
        "INSERT INTO Loose VALUES (10, 1.5), ('abc', 'x'), (7, 20), ('1 or 1=1', NULL), (NULL, 3), (x'31', 4)"_s);
    source.setTable(u"Loose"_s);
    const FilterField number = source.readFields().front();
    const auto count = [&](const FilterCondition &condition) {
        EXPECT_EQ(condition.fault, QString());
        return database.ask(u"SELECT count(*) FROM Loose WHERE "_s + condition.sql);
    };
    const auto counted = [&](FilterOperator op, const QString &value, const QString &last = {}) {
        return count(conditionOf(source.dialect(), FilterChoice{number, op, value, last}));
    };
    using enum FilterOperator;
    EXPECT_EQ(counted(AtLeast, u"7"_s), u"2"_s);
    EXPECT_EQ(counted(Greater, u"7"_s), u"1"_s);
    EXPECT_EQ(counted(Less, u"100"_s), u"2"_s);
    EXPECT_EQ(counted(Between, u"7"_s, u"100"_s), u"2"_s);

    ValueReading reading(source.tickRequest(number, {}, {}));
    ASSERT_TRUE(reading.waitForValues(10000));
    EXPECT_EQ(reading.values().values, (QStringList{u"7"_s, u"10"_s, u"1 or 1=1"_s, u"abc"_s}));
    TickedValues ticked;
    ticked.areLeftOut = false;
    for (const QString &value : reading.values().values) {
        ticked.values = {value};
        EXPECT_EQ(count(conditionOf(source.dialect(), number, ticked)), u"1"_s) << qPrintable(value);
    }
    ticked.values = {u"1 or 1=1"_s, u"10"_s};
    EXPECT_EQ(count(conditionOf(source.dialect(), number, ticked)), u"2"_s);

    const FilterScope records{.records = FilterSql::Records{u"Loose"_s, {}}};
    EXPECT_EQ(count(conditionOf(source.dialect(), FilterChoice{number, Top, u"1"_s}, records)), u"1"_s);
    EXPECT_EQ(database.ask(u"SELECT N FROM Loose WHERE "_s +
                           conditionOf(source.dialect(), FilterChoice{number, Top, u"1"_s}, records).sql),
              u"10"_s);
}

TEST_F(Source, ValuesWithoutADeclaredTypeAreFoundAsWhatTheyAre)
{
    database.run(u"CREATE TABLE U (A, B TEXT, C REAL); INSERT INTO U VALUES (3, '3', 0.1 + 0.2), "
                 "('3', '30', 1.0 / 3), (5, 'x', 2), (0.1 + 0.2, '0.3', NULL);"
                 "CREATE VIEW V AS SELECT A * 2 AS D, B, C / 1 AS H FROM U"_s);
    const auto found = [&](const QString &table, int field, FilterOperator op, const QString &value) {
        source.setTable(table);
        FilterChoice choice{source.readFields().at(static_cast<std::size_t>(field)), op, value, {}};
        const QString condition = conditionOf(source.dialect(), choice).sql;
        return database.ask(u"SELECT count(*) FROM %1 WHERE %2"_s.arg(table, condition));
    };
    using enum FilterOperator;
    struct
    {
        QString table;
        int field;
        FilterOperator op;
        QString value;
        QString count;
    } const cases[] = {
        {u"U"_s, 0, Equals, u"3"_s, u"2"_s},      {u"U"_s, 0, Less, u"4"_s, u"3"_s},
        {u"U"_s, 0, Equals, u"0.3"_s, u"1"_s},    {u"U"_s, 1, Less, u"4"_s, u"3"_s},
        {u"U"_s, 2, Equals, u"0.3"_s, u"1"_s},    {u"U"_s, 2, Equals, u"0.333333333333333"_s, u"1"_s},
        {u"U"_s, 2, Greater, u"0.3"_s, u"2"_s},   {u"V"_s, 0, Greater, u"6"_s, u"1"_s},
        {u"V"_s, 0, Equals, u"6"_s, u"2"_s},      {u"V"_s, 2, Equals, u"0.3"_s, u"1"_s},
        {u"V"_s, 2, InList, u"0.3, 2"_s, u"2"_s},
    };
    for (const auto &c : cases)
        EXPECT_EQ(found(c.table, c.field, c.op, c.value), c.count)
            << qPrintable(c.table) << c.field << ' ' << qPrintable(c.value);
}

TEST_F(Source, AMissingTableIsAnError)
{
    source.setTable(u"没有"_s);
    EXPECT_THROW(source.readFields(), ADODB::Error);
}

TEST_F(Source, ReadsAtMostTwoHundredDifferentValuesInOrder)
{
    source.setTable(u"Many"_s);
    const OfferedValues offered = valuesOf({u"V"_s, u"V"_s, FieldClass::Text});
    EXPECT_EQ(offered.values.size(), 200) << "without the empty one, which can't be typed";
    EXPECT_EQ(offered.values.constFirst(), u"v000"_s);
    EXPECT_EQ(offered.values.constLast(), u"v199"_s);
    EXPECT_TRUE(offered.hasMore);
}

TEST_F(Source, UsesAConnectionThatItIsGiven)
{
    const auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(database.connectionString());
    source.setConnection(connection);
    EXPECT_EQ(written(u"A"_s).size(), 2);
    EXPECT_EQ(connection->State(), ADODB::adStateOpen);
}

TEST_F(Source, AsksTheDatabaseToCheckACondition)
{
    source.setTable(u"A"_s);
    EXPECT_NO_THROW(source.check(u"ID > 5 OR X LIKE 'a%'"_s));
    EXPECT_THROW(source.check(u"ID >"_s), ADODB::Error);
    EXPECT_THROW(source.check(u"Z = 1"_s), ADODB::Error);
}

TEST(FilterSource, ReadsOdbcOffTheConnectionString)
{
    EXPECT_TRUE(leadsToOdbc(u"DSN=prod;UID=me"_s));
    EXPECT_TRUE(leadsToOdbc(u"driver={PostgreSQL Unicode};Server=db"_s));
    EXPECT_TRUE(leadsToOdbc(u"Provider=MSDASQL.1;FileDSN=x.dsn"_s));
    EXPECT_TRUE(leadsToOdbc(u"Provider=SQLOLEDB;Data Source=h"_s));
    EXPECT_TRUE(leadsToOdbc(u"Provider=OraOLEDB.Oracle;Data Source=orcl"_s));
    EXPECT_FALSE(leadsToOdbc(u"Provider=SQLite;Data Source=shop.db"_s));
    EXPECT_FALSE(leadsToOdbc(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=nwind.mdb"_s));
    EXPECT_FALSE(leadsToOdbc(u"Data Source='not closed"_s));
}

TEST_F(Source, OffersTheFieldsOfAResult)
{
    source.setResult({u"with V2 as (select * from A) "_s,
                      u"V2 x, B"_s,
                      {{u"No"_s, u"x.ID"_s}, {u"ID"_s, u"B.ID"_s}, {u"ID"_s, u"(x.ID + 1)"_s}}});
    const auto fields = source.readFields();
    ASSERT_EQ(fields.size(), 3U);
    EXPECT_EQ(fields[0].caption, u"No"_s);
    EXPECT_EQ(fields[0].written, u"x.ID"_s);
    EXPECT_EQ(fields[0].fieldClass, FieldClass::Number);
    EXPECT_EQ(fields[2].caption, u"ID (2)"_s);
    EXPECT_TRUE(valuesOf(fields[2]).values.isEmpty());
    EXPECT_NO_THROW(source.check(u"x.ID = 1"_s));
    EXPECT_THROW(source.check(u"A.ID = 1"_s), ADODB::Error);
}
