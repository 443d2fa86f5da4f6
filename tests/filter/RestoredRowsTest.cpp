// Conditions in force as rows of the builder: the rows select the same records on a real database.
#include "filter/restored/RestoredRows.h"

#include "filter/conditions/BuiltFilter.h"
#include "filter/conditions/FilterSentence.h"
#include "support/TestDatabase.h"

#include <QtCore/QJsonDocument>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect fileDialect{.database = dbAccess, .engine = Engine::SQLite};

const std::vector<FilterField> fields{{u"城市"_s, u"城市"_s, FieldClass::Text},
                                      {u"数量"_s, u"数量"_s, FieldClass::Number},
                                      {u"日期"_s, u"日期"_s, FieldClass::Date},
                                      {u"停用"_s, u"停用"_s, FieldClass::Boolean}};

QString textOf(const QJsonObject &json)
{
    return QString::fromUtf8(QJsonDocument(json).toJson(QJsonDocument::Compact));
}

std::optional<FilterState> rowsOfTicks(const FilterField &field, const TickedValues &ticked)
{
    return rowsOf({conditionOf(fileDialect, field, ticked).sql, textOf(toJson(ticked)), field.written},
                  fileDialect, fields, {});
}

std::optional<FilterState> rowsOfBuilt(const BuiltFilter &built, const QString &condition,
                                       const FilterScope &scope = {})
{
    return rowsOf({condition, textOf(toJson(built))}, fileDialect, fields, scope);
}

} // namespace

TEST(RestoredRows, SelectWhatTheTicksSelect)
{
    const TestDatabase database(
        u"CREATE TABLE t (ID INTEGER, 城市 TEXT, 数量 INTEGER, 日期 DATE, 停用 BOOLEAN);"
        "INSERT INTO t VALUES "
        "(1,'大连',7,'2024-01-31',1),(2,'杭州',8,'2024-02-01',0),(3,NULL,NULL,NULL,NULL),"
        "(4,'',9,'2024-02-29',1),(5,'a, b',7,'2023-12-31',0),(6,'大连','一些','2024-02-01',1);"_s);
    const auto selected = [&](const QString &condition) {
        return database.ask(u"SELECT group_concat(ID) FROM t WHERE "_s + condition).toStdString();
    };
    const std::vector<QStringList> values{{u"大连"_s, u"a, b"_s},
                                          {u"7"_s, u"一些"_s, u"8"_s},
                                          {u"2024-02"_s, u"2023-12-31"_s},
                                          {u"是"_s, u"否"_s}};
    int restored = 0;
    int kept = 0;
    for (std::size_t at = 0; at < fields.size(); ++at) {
        for (qsizetype count = 0; count <= values[at].size(); ++count) {
            for (const bool areLeftOut : {false, true}) {
                for (const std::optional<bool> hasNull :
                     {std::optional<bool>(), std::optional(false), std::optional(true)}) {
                    const TickedValues ticked{areLeftOut, values[at].first(count), hasNull};
                    if (ticked.isEverything() || ticked.isNothing())
                        continue;
                    const auto rows = rowsOfTicks(fields[at], ticked);
                    ++(rows ? restored : kept);
                    if (!rows)
                        continue;
                    ASSERT_EQ(rows->size(), 1);
                    const auto terms = termsOf(*rows, fields);
                    EXPECT_TRUE(terms.front().choice.asksForNull() || rows->front().includesNull);
                    EXPECT_EQ(selected(conditionOf(fileDialect, terms.front().choice).sql),
                              selected(conditionOf(fileDialect, fields[at], ticked).sql))
                        << textOf(toJson(ticked)).toStdString();
                }
            }
        }
    }
    EXPECT_GT(restored, 30);
    EXPECT_GT(kept, 10) << "values with Null are no row";
}

TEST(RestoredRows, AreThoseThatWereBuilt)
{
    const BuiltFilter built{
        .rows = {{.field = u"数量"_s, .op = FilterOperator::Less, .value = u"5"_s, .orNext = true},
                 {.field = u"城市"_s, .value = u"大连"_s}}};
    EXPECT_EQ(rowsOfBuilt(built, u"(数量 < 5 OR 城市 = '大连')"_s), built.rows);
    EXPECT_FALSE(rowsOfBuilt({.condition = u"数量 < 5"_s}, u"数量 < 5"_s));
    BuiltFilter elsewhere = built;
    elsewhere.rows.last().field = u"价格"_s;
    EXPECT_FALSE(rowsOfBuilt(elsewhere, u"(数量 < 5 OR 价格 = '大连')"_s));
}

// A condition can be typed again for another table whose field of this name has another type: rows would
// write it in another way, and find other records.
TEST(RestoredRows, AreNotThoseOfAFieldOfAnotherType)
{
    const BuiltFilter built{
        .rows = {{.field = u"数量"_s, .op = FilterOperator::InList, .value = u"5, 10"_s}}};
    const auto restored = [&](FieldClass fieldClass) {
        return rowsOf({u"数量 IN (5, 10)"_s, textOf(toJson(built))}, fileDialect,
                      {{u"数量"_s, u"数量"_s, fieldClass}}, {});
    };
    EXPECT_EQ(restored(FieldClass::Number), built.rows);
    EXPECT_FALSE(restored(FieldClass::Text));
    EXPECT_FALSE(restored(FieldClass::Boolean));
}

TEST(RestoredRows, OfDaysThatMoveWithTheCalendarAreThereTheDayAfter)
{
    const BuiltFilter built{.rows = {{.field = u"日期"_s, .op = FilterOperator::AtLeast, .value = u"昨天"_s},
                                     {.field = u"数量"_s, .op = FilterOperator::Less, .value = u"5"_s}}};
    QStringList written;
    for (const SentenceTerm &term : termsOf(built.rows, fields))
        written.append(conditionOf(fileDialect, term.choice, {.today = QDate(2024, 2, 29)}).sql);
    EXPECT_EQ(rowsOfBuilt(built, written.join(u" AND "_s), {.today = QDate(2024, 2, 29)}), built.rows);
    EXPECT_EQ(rowsOfBuilt(built, written.join(u" AND "_s), {.today = QDate(2024, 3, 1)}), built.rows);
}

TEST(RestoredRows, AreRecognizedWhereOneSelectsTheSame)
{
    const auto recognized = [](const QString &condition, Engine engine = Engine::SQLite,
                               const QString &source = u"t"_s) {
        const auto rows = rowsOf({condition}, {.database = dbAccess, .engine = engine}, fields,
                                 {.records = FilterSql::Records{source, {}}});
        if (!rows)
            return QString();
        const FilterRowState &row = rows->constFirst();
        return row.field + u' ' + nameOf(row.op) + u' ' + row.value +
               (row.lastValue.isEmpty() ? QString() : u' ' + row.lastValue);
    };
    // What a cell's value asks for, on each engine in its own way.
    EXPECT_EQ(recognized(u"城市 like '大连'"_s), u"城市 equals 大连"_s);
    EXPECT_EQ(recognized(u"数量 like 3"_s), u"数量 equals 3"_s);
    EXPECT_EQ(recognized(u"数量 like 3.0"_s), u"数量 equals 3"_s);
    EXPECT_EQ(recognized(u"CAST(城市 AS TEXT) like 'Tea'"_s, Engine::PostgreSQL), u"城市 equals Tea"_s);
    EXPECT_EQ(recognized(u"数量 = 3"_s, Engine::PostgreSQL), u"数量 equals 3"_s);
    EXPECT_EQ(recognized(u"数量 = CAST(-2.5 AS REAL)"_s, Engine::PostgreSQL), u"数量 equals -2.5"_s);
    EXPECT_EQ(recognized(u"数量 IS NULL"_s), u"数量 isEmpty "_s);
    // What a host and words in a single field ask for.
    EXPECT_EQ(recognized(u"数量 >= -5"_s), u"数量 atLeast -5"_s);
    EXPECT_EQ(recognized(u"数量 > 5"_s, Engine::MySQL), u"数量 greater 5"_s);
    EXPECT_EQ(recognized(u"(数量 > 5 AND 数量 < '')"_s), u"数量 greater 5"_s);
    EXPECT_EQ(recognized(u"t.[城市] LIKE '%茶%'"_s), u"城市 contains 茶"_s);
    EXPECT_EQ(recognized(u"\"数量\" = 3"_s, Engine::PostgreSQL), u"数量 equals 3"_s);
    EXPECT_EQ(recognized(u"数量 <> 5"_s), u"数量 notEquals 5"_s);
    EXPECT_EQ(recognized(u"城市 in ('a, b','大连')"_s), u"城市 inList \"a, b\", 大连"_s);
    EXPECT_EQ(recognized(u"((数量 >= 1 AND 数量 <= 5))"_s), u"数量 between 1 5"_s);
    EXPECT_EQ(recognized(u"城市 LIKE '%O''N%'"_s), u"城市 contains O'N"_s);
    // LIKE isn't equality with a wildcard, where letters of both cases are alike, or with blanks at the end.
    for (const QString &condition : {u"城市 like 'a_'"_s, u"城市 like 'Tea'"_s, u"城市 like '茶 '"_s,
                                     u"城市 like ''"_s, u"数量 like '一些'"_s, u"城市 NOT LIKE '茶'"_s})
        EXPECT_EQ(recognized(condition), QString()) << condition.toStdString();
    EXPECT_EQ(recognized(u"城市 like '茶%'"_s), u"城市 beginsWith 茶"_s);
    // No row means exactly this.
    for (const QString &condition :
         {u"城市 IS NULL"_s, u"数量 = 3 OR 数量 = 4"_s, u"数量 = 3 + 1"_s, u"数量 = ID"_s, u"数量 - 1 = 3"_s,
          u"upper(城市) = '茶'"_s, u"城市(1) = 3"_s, u"NOT 数量 = 3"_s, u"数量"_s, u""_s,
          u"数量 = 3 AND 城市 = '茶'"_s, u"数量 BETWEEN 3 AND 4"_s})
        EXPECT_EQ(recognized(condition), QString()) << condition.toStdString();
    EXPECT_EQ(recognized(u"数量 = 3"_s, Engine::Other), QString()) << "who knows how it reads that";
    // A table before the name is certainly the field's only where there is no other.
    for (const QString &source : {u"t"_s, u"main.[T]"_s, u"表 t"_s, u"表 AS t"_s}) {
        EXPECT_EQ(recognized(u"t.数量 IS NULL"_s, Engine::SQLite, source), u"数量 isEmpty "_s)
            << source.toStdString();
        EXPECT_EQ(recognized(u"k.数量 IS NULL"_s, Engine::SQLite, source), QString()) << source.toStdString();
    }
    EXPECT_EQ(recognized(u"main.t.数量 = 3"_s), u"数量 equals 3"_s);
    EXPECT_EQ(recognized(u"t.k.数量 = 3"_s), QString());
    for (const QString &source : {u"t LEFT JOIN k USING (数量)"_s, u"t NATURAL JOIN k"_s, u"t, k"_s,
                                  u"(SELECT * FROM t) AS t"_s, u""_s})
        for (const QString &table : {u"t"_s, u"k"_s})
            EXPECT_EQ(recognized(table + u".数量 IS NULL"_s, Engine::SQLite, source), QString())
                << source.toStdString();
    EXPECT_EQ(recognized(u"数量 IS NULL"_s, Engine::SQLite, u"t LEFT JOIN k USING (数量)"_s),
              u"数量 isEmpty "_s);
}

TEST(RestoredRows, CompareOnlyTheRecordsThatTheyDid)
{
    const BuiltFilter built{.rows = {{.field = u"数量"_s, .op = FilterOperator::Duplicated}}};
    const FilterScope some{.records = FilterSql::Records{u"t"_s, u"ID < 4"_s}};
    const QString condition = FilterSql::isDuplicated(u"数量"_s, *some.records);
    EXPECT_EQ(rowsOfBuilt(built, condition, some), built.rows);
    EXPECT_FALSE(rowsOfBuilt(built, condition, {.records = FilterSql::Records{u"t"_s, {}}}));
}

TEST(RestoredRows, AreJoinedWithoutTearingAlternativesApart)
{
    const FilterRowState less{.field = u"数量"_s, .op = FilterOperator::Less, .value = u"5"_s};
    const FilterRowState city{.field = u"城市"_s, .value = u"大连"_s};
    FilterState either{less, city};
    either.first().orNext = true;
    const auto joined = joinedRows(either, {city});
    ASSERT_TRUE(joined);
    ASSERT_EQ(joined->size(), 3);
    EXPECT_EQ(joined->at(0).opens, 1);
    EXPECT_EQ(joined->at(1).closes, 1);
    EXPECT_FALSE(joined->at(1).orNext);
    EXPECT_EQ(joinedRows({less}, {city}), FilterState({less, city}));
    EXPECT_EQ(joinedRows({}, either), either);
    // In brackets of their own already as often as there are.
    either.first().opens = FilterSql::mostBrackets;
    either.last().closes = FilterSql::mostBrackets;
    EXPECT_TRUE(joinedRows(either, {city}));
    either.first() = {.field = u"数量"_s, .value = u"1"_s, .opens = FilterSql::mostBrackets, .closes = 8};
    either.first().orNext = true;
    EXPECT_FALSE(joinedRows(either, {city}));
}
