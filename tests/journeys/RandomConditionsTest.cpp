// Conditions put together at random over all operators of the filter builder select the records that a plain
// loop over the values selects, on each engine.
#include "RandomTable.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "filter/conditions/FilterCondition.h"
#include "filter/conditions/TickedValues.h"
#include "filter/tree/FilterTree.h"

#include <algorithm>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;
using enum FilterOperator;

namespace {

class RandomConditions : public RandomTable
{
protected:
    static bool contains(FilterOperator op, const QByteArray &text, const QByteArray &part)
    {
        return op == Contains     ? text.contains(part)
               : op == BeginsWith ? text.startsWith(part)
                                  : text.endsWith(part);
    }

    // The values of those records that are compared with each other. An empty text is none of the first ones.
    std::vector<Key> pool(Column column, FilterOperator op, bool isRestricted) const
    {
        std::vector<Key> values;
        for (const Row &row : rows) {
            const bool isLeftOut =
                !row[column] || (isText(column) && takesCount(op) && row[column]->text.isEmpty());
            if (!isLeftOut && (!isRestricted || (row[Number] && row[Number]->number >= -5)))
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
                const QList<FilterOperator> orders{Greater, Less,       AtLeast, AtMost,
                                                   Between, NotBetween, Top,     Bottom};
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

    // Values of a list that are ticked, or all but those.
    Meant ticks(Generator &random)
    {
        const auto column = static_cast<Column>(random.below(columns));
        const FilterField &field = fields.at(static_cast<std::size_t>(column) + 1);
        std::vector<Typed> values;
        TickedValues ticked{.areLeftOut = random.oneIn(2), .values = {}, .hasNull = random.oneIn(2)};
        for (int count = random.below(3) + 1; count > 0; --count) {
            values.push_back(typed(column, field.fieldClass, random));
            if (!ticked.values.contains(values.back().text))
                ticked.values.append(values.back().text);
        }
        FilterScope scope;
        scope.today = today;
        TickedValues others = ticked;
        others.areLeftOut = !ticked.areLeftOut;
        others.hasNull = !*ticked.hasNull;
        const FilterCondition written = conditionOf(source.dialect(), field, ticked, scope);
        EXPECT_EQ(written.fault, QString());
        Meant meant{written.sql, conditionOf(source.dialect(), field, others, scope).sql, {}};
        for (const Row &row : rows) {
            const Cell &cell = row[column];
            const bool isNamed =
                cell && std::ranges::any_of(values, [&](const Typed &each) { return each.means(*cell); });
            meant.records.push_back(isEmpty(column, cell) ? *ticked.hasNull : isNamed != ticked.areLeftOut);
        }
        return meant;
    }

    static bool isEmpty(Column column, const Cell &cell)
    {
        return !cell || (isText(column) && cell->text.isEmpty());
    }

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
        const std::vector<Key> compared = pool(column, op, isRestricted);

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
            case Bottom:
                if (compared.empty())
                    return false;
                // The first texts are the smallest, the first of all others the largest.
                return (op == Top) == isText(column)
                           ? value <= compared[std::min(count, compared.size()) - 1]
                           : value >= compared[compared.size() - std::min(count, compared.size())];
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
            if (positive == IsEmpty)
                meant.records.push_back(isEmpty(column, cell) != isLeftOut);
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
                meant.push_back(random.oneIn(6) ? ticks(random) : condition(random));
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
