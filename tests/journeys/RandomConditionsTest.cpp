// Conditions put together at random over all operators of the filter builder select the records that a plain
// loop over the values selects, on each engine.
#include "JourneyDatabase.h"
#include "RandomValues.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "filter/FilterSource.h"
#include "filter/conditions/FilterCondition.h"
#include "filter/tree/FilterTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;
using enum FilterOperator;

namespace {

class RandomConditions : public testing::TestWithParam<JourneyEngine>
{
protected:
    void SetUp() override
    {
        if (!engine.isThere())
            GTEST_SKIP() << engine.variable << " is not set";
        // Of the process, and of the server's sessions.
        qputenv("TZ", zone.id());
        qputenv("PGTZ", zone.id());
        tzset();
        database.emplace(engine);
        fill();
        connection->Open(database->connectionString());
        source.setDatabase(static_cast<AllDBType>(engine.dbType));
        source.setConnection(connection);
        source.setTable(u"journey_random"_s);
        fields = source.readFields();
        ASSERT_EQ(fields.size(), columns + 1U);
    }

    void TearDown() override
    {
        qunsetenv("TZ");
        qunsetenv("PGTZ");
        tzset();
    }

    bool isPostgres() const { return QLatin1StringView(engine.name).startsWith("PostgreSQL"_L1); }
    TextRule rule(Column column) const
    {
        const bool isLoose = column == Loose;
        if (engine.store == JourneyEngine::AccessFile)
            return {.ignoresCase = true, .likeIgnoresCase = true};
        if (isPostgres())
            return {.ignoresEnd = isLoose, .likeIgnoresEnd = isLoose};
        if (engine.isMariaDb())
            return {.hasUpperCase = true,
                    .ignoresCase = isLoose,
                    .ignoresEnd = isLoose,
                    .likeIgnoresCase = isLoose};
        return {.ignoresCase = isLoose, .likeIgnoresCase = true};
    }
    QString looseType() const
    {
        if (engine.store == JourneyEngine::AccessFile)
            return u"VARCHAR(60)"_s;
        if (isPostgres())
            return u"CHAR(60) COLLATE \"C\""_s;
        return engine.isMariaDb() ? u"VARCHAR(60) CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci"_s
                                  : u"VARCHAR(60) COLLATE NOCASE"_s;
    }

    void fill()
    {
        const bool isMariaDb = engine.isMariaDb();
        const bool isPostgres = this->isPostgres();
        const QString zoned =
            isPostgres ? u"TIMESTAMP(6) WITH TIME ZONE"_s : QString::fromLatin1(engine.moment);
        // Moments for days too where a database has no type for days alone.
        const QString day = engine.store == JourneyEngine::AccessFile ? u"DATETIME"_s : u"DATE"_s;
        QStringList script{
            u"DROP TABLE IF EXISTS journey_random"_s,
            u"CREATE TABLE journey_random (id INTEGER PRIMARY KEY, t VARCHAR(60)%1, n INTEGER, d %2, m %3, b %4, u %6, z %7)%5"_s
                .arg(isPostgres ? u" COLLATE \"C\""_s : QString(), day, QString::fromLatin1(engine.moment),
                     u"BOOLEAN"_s,
                     isMariaDb ? u" CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin"_s : QString(),
                     looseType(), zoned)};
        Generator random(20260102); // the same on each run
        for (int id = 1; id <= 80; ++id) {
            Row row;
            QStringList literals(columns, u"NULL"_s);
            const auto quoted = [&](QString text) {
                text.replace(u'\'', u"''"_s);
                if (isMariaDb)
                    text.replace(u'\\', u"\\\\"_s);
                return u'\'' + text + u'\'';
            };
            for (const Column column : {Text, Loose}) {
                if (random.oneIn(6))
                    continue;
                const QString text = random.text(hasEmoji());
                row[column] = keyOf(text, rule(column));
                literals[column] = quoted(text);
            }
            if (!random.oneIn(6)) {
                const QDateTime there = random.momentIn(zone);
                row[Zoned] = keyOf(QDateTime(there.date(), there.time(), Qt::UTC));
                literals[Zoned] = quoted(isPostgres ? there.toUTC().toString(u"yyyy-MM-dd HH:mm:ss'+00'"_s)
                                                    : there.toString(u"yyyy-MM-dd HH:mm:ss"_s));
            }
            if (!random.oneIn(6)) {
                const int number = random.below(41) - 20;
                row[Number] = Key{.number = static_cast<double>(number)};
                literals[Number] = QString::number(number);
            }
            if (!random.oneIn(6)) {
                const QDate date = random.oneOf(days());
                row[Day] = keyOf(date);
                literals[Day] = quoted(date.toString(Qt::ISODate));
            }
            if (!random.oneIn(6)) {
                const QDateTime moment = random.moment();
                row[Moment] = keyOf(moment);
                literals[Moment] = quoted(moment.toString(u"yyyy-MM-dd HH:mm:ss"_s));
            }
            // Access has no Null among Booleans.
            if (engine.store == JourneyEngine::AccessFile || !random.oneIn(6)) {
                const bool yes = random.oneIn(2);
                row[YesNo] = Key{.number = yes ? 1.0 : 0.0};
                literals[YesNo] = isPostgres ? (yes ? u"TRUE"_s : u"FALSE"_s) : QString::number(yes ? 1 : 0);
            }
            rows.push_back(row);
            script += u"INSERT INTO journey_random VALUES (%1,%2)"_s.arg(id).arg(literals.join(u','));
        }
        database->run(script);
    }

    // SQLite's ODBC driver takes no emoji in a statement.
    bool hasEmoji() const { return engine.store != JourneyEngine::SqliteFile || !engine.variable; }

    Typed typed(Column column, FieldClass fieldClass, Generator &random) const
    {
        switch (column) {
        case Text:
        case Loose: {
            QString text = random.text(hasEmoji());
            if (text.trimmed().isEmpty())
                text = u"a"_s;
            return {text, keyOf(text, rule(column)), {}, rule(column).pattern(text)};
        }
        case Number: {
            const int number = random.below(45) - 22;
            return {QString::number(number), {.number = static_cast<double>(number)}};
        }
        case YesNo: {
            const bool yes = random.oneIn(2);
            // A number to some engines.
            const QString words = yes ? u"是"_s : u"否"_s;
            return {fieldClass == FieldClass::Boolean ? words : QString::number(yes ? 1 : 0),
                    {.number = yes ? 1.0 : 0.0}};
        }
        default:
            break;
        }
        if (random.oneIn(2))
            return random.oneOf(namedDays());
        if (fieldClass == FieldClass::Moment && random.oneIn(2)) {
            const QDateTime moment = random.moment();
            return {moment.toString(u"yyyy-MM-dd HH:mm:ss"_s), keyOf(moment)};
        }
        const QDate date = random.oneOf(days());
        return {date.toString(random.oneIn(2) ? u"yyyy-MM-dd"_s : u"yyyy年M月d日"_s), keyOf(date),
                keyOf(date.addDays(1))};
    }

    static bool contains(FilterOperator op, const QByteArray &text, const QByteArray &part)
    {
        return op == Contains     ? text.contains(part)
               : op == BeginsWith ? text.startsWith(part)
                                  : text.endsWith(part);
    }

    // The values of those records that are compared with each other.
    std::vector<Key> pool(Column column, bool isRestricted) const
    {
        std::vector<Key> values;
        for (const Row &row : rows) {
            if (row[column] && (!isRestricted || (row[Number] && row[Number]->number >= -5)))
                values.push_back(*row[column]);
        }
        std::ranges::sort(values);
        return values;
    }

    // Access sorts texts as a dictionary does, which no plain loop here knows.
    QList<FilterOperator> operators(Column column, FieldClass fieldClass) const
    {
        QList<FilterOperator> offered = operatorsFor(fieldClass);
        if (isText(column) && engine.store == JourneyEngine::AccessFile) {
            offered.removeIf([](FilterOperator op) {
                const QList<FilterOperator> orders{Greater, Less, AtLeast, AtMost, Between, NotBetween};
                return orders.contains(op);
            });
        }
        return offered;
    }

    // A condition with its complement, and for each record whether it is meant.
    struct Meant
    {
        QString sql;
        QString complement;
        std::vector<bool> records;
    };

    Meant condition(Generator &random)
    {
        const auto column = static_cast<Column>(random.below(columns));
        const FilterField &field = fields.at(static_cast<std::size_t>(column) + 1);
        const FilterOperator op = random.oneOf(operators(column, field.fieldClass));
        FilterChoice choice{field, op, {}, {}, random.oneIn(4), !random.oneIn(3)};
        FilterScope scope;
        scope.today = today;
        const bool isRestricted = random.oneIn(2);
        scope.records = {u"journey_random"_s, isRestricted ? u"n >= -5"_s : QString()};

        std::vector<Typed> values;
        const FilterOperator positive = positiveOf(op);
        for (int count = positive == InList ? random.below(4) + 1 : 2; count > 0; --count)
            values.push_back(typed(column, field.fieldClass, random));
        if (positive == Between && values[1].endsBefore(values[0].first))
            std::swap(values[0], values[1]);
        if (positive == Between && values[1].endsBefore(values[0].first))
            values[1] = values[0];
        const auto count = static_cast<std::size_t>(random.below(12)) + 1;
        choice.value = takesCount(op) ? QString::number(count) : values.front().text;
        choice.lastValue = values.back().text;
        if (positive == InList) {
            QStringList items;
            for (const Typed &value : values)
                items.append(filterListItemOf(value.text));
            choice.value = items.join(random.oneIn(2) ? u"、"_s : u"\n"_s);
        }
        const std::vector<Key> compared = pool(column, isRestricted);

        const auto selects = [&](const Key &value) {
            switch (positive) {
            case Equals:
                return values[0].means(value);
            case Greater:
                return values[0].endsBefore(value);
            case Less:
                return value < values[0].first;
            case AtLeast:
                return value >= values[0].first;
            case AtMost:
                return value < values[0].first || values[0].means(value) ||
                       (values[0].end && value < *values[0].end);
            case Between:
                return value >= values[0].first && !values[1].endsBefore(value);
            case InList:
                return std::ranges::any_of(values, [&](const Typed &each) { return each.means(value); });
            case Duplicated:
                return std::ranges::count(compared, value) > 1;
            case Top:
                return !compared.empty() &&
                       value >= compared[compared.size() - std::min(count, compared.size())] &&
                       value <= compared.back();
            case Bottom:
                return !compared.empty() && value <= compared[std::min(count, compared.size()) - 1] &&
                       value >= compared.front();
            default:
                return contains(positive, value.liked, values[0].pattern);
            }
        };
        const FilterCondition written = conditionOf(source.dialect(), choice, scope);
        EXPECT_EQ(written.fault, QString()) << qUtf8Printable(captionOf(op) + choice.value);
        Meant meant{written.sql, complementOf(source.dialect(), choice, scope).sql, {}};
        const bool isLeftOut = isNegative(op) != choice.isNegated;
        for (const Row &row : rows) {
            const Cell &cell = row[column];
            const bool isEmptyText = isText(column) && cell && cell->text.isEmpty();
            if (positive == IsEmpty)
                meant.records.push_back((!cell || isEmptyText) != isLeftOut);
            else if (!cell)
                meant.records.push_back(isLeftOut && choice.includesNull);
            else
                meant.records.push_back(isAmong(positive, compared, *cell, selects(*cell)) != isLeftOut);
        }
        return meant;
    }

    // One to three conditions or groups of them, all, any or none of which are to be met. Groups without
    // brackets are those that AND makes among others that OR joins.
    FilterNode group(Generator &random, int depth, std::vector<Meant> &meant)
    {
        using Kind = FilterNode::Kind;
        FilterNode made{.kind = random.oneOf(std::vector{Kind::All, Kind::Any, Kind::None})};
        made.hasBrackets = !random.oneIn(3);
        for (int count = random.below(3) + 1; count > 0; --count) {
            if (depth > 0 && random.oneIn(3)) {
                made.parts.push_back(group(random, depth - 1, meant));
            } else {
                made.parts.push_back({.row = static_cast<qsizetype>(meant.size())});
                meant.push_back(condition(random));
            }
        }
        return made;
    }

    static bool isMet(const FilterNode &node, const std::vector<Meant> &meant, std::size_t row)
    {
        if (!node.isGroup())
            return meant[static_cast<std::size_t>(node.row)].records[row];
        const auto met = std::ranges::count_if(
            node.parts, [&](const FilterNode &part) { return isMet(part, meant, row); });
        if (node.kind == FilterNode::Kind::All)
            return met == std::ssize(node.parts);
        return (met > 0) == (node.kind == FilterNode::Kind::Any);
    }

    // Who is between the smallest and the largest value of the first ones, but has a value that none of the
    // compared records has, is not among them.
    static bool isAmong(FilterOperator op, const std::vector<Key> &compared, const Key &value, bool isInside)
    {
        return isInside && (!takesCount(op) || std::ranges::binary_search(compared, value));
    }

    // As the user types it, with quotes where the value holds what separates values.
    static QString filterListItemOf(const QString &value)
    {
        return u'"' + QString(value).replace(u'"', u"\"\""_s) + u'"';
    }

    const JourneyEngine &engine = GetParam();
    const QTimeZone zone{"America/Sao_Paulo"}; // where days began at one o'clock when the clocks were changed
    std::vector<Row> rows;
    std::optional<JourneyDatabase> database;
    std::shared_ptr<ADODB::Connection> connection = std::make_shared<ADODB::Connection>();
    FilterSource source;
    std::vector<FilterField> fields;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Engines, RandomConditions, testing::ValuesIn(journeyEngines()),
                         [](const auto &each) { return std::string(each.param.name); });

TEST_P(RandomConditions, SelectWhatAPlainLoopSelects)
{
    const int asked = qEnvironmentVariableIntValue("KOVA_RANDOM_CONDITIONS");
    Generator random(20260103);
    for (int round = 0; round < (asked > 0 ? asked : 1250) && !HasFailure(); ++round) {
        std::vector<Meant> meant;
        const FilterNode tree = group(random, 2, meant);
        QList<FilterSql::Term> terms;
        for (const FilterPlace &place : flatOf(withoutNone(tree))) {
            const Meant &each = meant[static_cast<std::size_t>(place.row)];
            terms.append(place.term);
            terms.last().condition = place.isComplement ? each.complement : each.sql;
        }
        QStringList expected;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (isMet(tree, meant, row))
                expected += QString::number(row + 1);
        }
        const QString condition = FilterSql::join(terms);
        ADODB::Recordset found;
        try {
            found.Open(u"SELECT id FROM journey_random WHERE "_s + condition + u" ORDER BY id"_s, connection);
        } catch (const ADODB::Error &error) {
            FAIL() << qUtf8Printable(error.Description()) << "\n" << qUtf8Printable(condition);
        }
        QStringList keys;
        for (qint64 record = 1; record <= found.RecordCount(); ++record)
            keys += found.CellText(record, 0);
        EXPECT_EQ(keys.join(u' ').toStdString(), expected.join(u' ').toStdString())
            << "round " << round << ": " << qUtf8Printable(condition);
    }
}
