#include "filter/restored/RestoredRows.h"

#include "filter/conditions/BuiltFilter.h"
#include "filter/conditions/FilterSentence.h"
#include "filter/restored/RecognizedRow.h"
#include "filter/tree/FilterTree.h"
#include "query/conditions/ConditionParts.h"

#include <QtCore/QJsonDocument>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

QList<FilterSql::Term> framesOf(const FilterState &rows)
{
    QList<FilterSql::Term> frames;
    for (const FilterRowState &row : rows)
        frames.append({{}, row.opens, row.closes, row.orNext, row.negatedOpens});
    return frames;
}

bool isOffered(const FilterRowState &row, const std::vector<FilterField> &fields)
{
    const auto field = std::ranges::find(fields, row.field, &FilterField::caption);
    return field != fields.end() && operatorsFor(*field).contains(row.op);
}

// As the rows would be written now.
QString conditionOf(const FilterState &rows, const Dialect &dialect, const std::vector<FilterField> &fields,
                    const FilterScope &scope)
{
    const auto tree = treeOf(framesOf(rows));
    if (!tree)
        return {};
    const auto choices = termsOf(rows, fields);
    QList<FilterSql::Term> terms;
    for (const FilterPlace &place : flatOf(withoutNone(*tree))) {
        const FilterChoice &choice = choices.at(place.row).choice;
        terms.append(place.term);
        terms.last().condition = place.isComplement
                                     ? complementOf(dialect, choice, scope).sql
                                     : KOVAVSFDataGridLib::conditionOf(dialect, choice, scope).sql;
    }
    return FilterSql::join(terms);
}

// Whether the rows would be written as this text, now or on another day if they name one such as yesterday.
// They would not if they were built for other records, or for a field of another type.
bool areWrittenAs(const FilterState &rows, const QString &text, const Dialect &dialect,
                  const std::vector<FilterField> &fields, FilterScope scope)
{
    const auto written = [&] { return comparableText(conditionOf(rows, dialect, fields, scope), dialect); };
    if (written() == comparableText(text, dialect))
        return true;
    scope.today = QDate(2001, 1, 1);
    const QString before = written();
    scope.today = QDate(2003, 6, 11); // in another week, month and year
    return written() != before;
}

// The field with what is ticked but for Null, as the builder would have it typed.
FilterChoice choiceOf(const FilterField &field, const TickedValues &ticked)
{
    FilterChoice choice{.field = field, .includesNull = false};
    if (ticked.values.isEmpty()) {
        choice.op = ticked.areLeftOut ? FilterOperator::IsNotEmpty : FilterOperator::IsEmpty;
    } else if (ticked.values.size() > 1 || hasDays(field.fieldClass)) {
        choice.op = ticked.areLeftOut ? FilterOperator::NotInList : FilterOperator::InList;
        choice.value = listOf(ticked);
    } else {
        choice.op = ticked.areLeftOut ? FilterOperator::NotEquals : FilterOperator::Equals;
        choice.value = ticked.values.constFirst();
    }
    return choice;
}

QStringList comparableParts(const QString &condition, const Dialect &dialect)
{
    QStringList parts = textsOfParts(condition, dialect);
    for (QString &part : parts)
        part = comparableText(part, dialect);
    return parts;
}

// The field whose ticked values were written as this condition. Who wrote it may write the field's name in
// another way than statements do.
std::optional<FilterField> fieldOfTicks(const ConditionInForce &condition, const TickedValues &ticked,
                                        const Dialect &dialect, const std::vector<FilterField> &fields)
{
    const QStringList wanted = comparableParts(condition.text, dialect);
    const auto found = std::ranges::find_if(fields, [&](const FilterField &field) {
        return comparableParts(conditionOf(dialect, field, ticked).sql, dialect) == wanted;
    });
    return found == fields.end() ? std::nullopt : std::optional(*found);
}

std::optional<FilterState> rowsOfTicks(const FilterField &field, const TickedValues &ticked,
                                       const Dialect &dialect, const FilterScope &scope)
{
    FilterChoice choice = choiceOf(field, ticked);
    if (!ticked.values.isEmpty()) {
        TickedValues valuesAlone = ticked;
        valuesAlone.hasNull.reset();
        if (conditionOf(dialect, field, valuesAlone, scope).sql != conditionOf(dialect, choice, scope).sql)
            return std::nullopt; // of several types, say
        // A row can only leave values out and say whether Null goes with them. What is empty besides Null
        // isn't named by it.
        const bool isText = field.fieldClass == FieldClass::Text;
        if (ticked.hasNull == !ticked.areLeftOut && (!ticked.areLeftOut || isText))
            return std::nullopt;
        choice.includesNull = ticked.areLeftOut && ticked.hasNull == true;
    }
    // Where it has no meaning yet, Null is included as in a new row, for when the user changes the operator.
    return FilterState{{.field = field.caption,
                        .op = choice.op,
                        .value = choice.value,
                        .includesNull = choice.includesNull || !choice.asksForNull()}};
}

// Whether AND, joined to the rows, would reach only some of them.
bool isLoose(const FilterState &rows)
{
    int depth = 0;
    for (qsizetype i = 0; i + 1 < rows.size(); ++i) {
        depth += rows.at(i).opens - rows.at(i).closes;
        if (rows.at(i).orNext && depth <= 0)
            return true;
    }
    return false;
}

std::optional<FilterState> withBrackets(FilterState rows)
{
    if (!isLoose(rows))
        return rows;
    if (rows.constFirst().opens >= FilterSql::mostBrackets ||
        rows.constLast().closes >= FilterSql::mostBrackets)
        return std::nullopt;
    ++rows.first().opens;
    rows.first().negatedOpens <<= 1;
    ++rows.last().closes;
    return rows;
}

} // namespace

std::optional<FilterState> rowsOf(const ConditionInForce &condition, const Dialect &dialect,
                                  const std::vector<FilterField> &fields, const FilterScope &scope)
{
    const QJsonObject json = QJsonDocument::fromJson(condition.built.toUtf8()).object();
    if (!condition.field.isEmpty()) {
        const TickedValues ticked = tickedValuesOf(json);
        const auto field = fieldOfTicks(condition, ticked, dialect, fields);
        return field ? rowsOfTicks(*field, ticked, dialect, scope) : std::nullopt;
    }
    if (condition.built.isEmpty()) {
        const auto row = rowRecognizedIn(condition.text, dialect, fields,
                                         scope.records ? scope.records->source : QString());
        return row ? std::optional(FilterState{*row}) : std::nullopt;
    }
    const auto built = builtFilterOf(json);
    if (!built || built->rows.isEmpty() ||
        !std::ranges::all_of(built->rows, [&](const FilterRowState &row) { return isOffered(row, fields); }))
        return std::nullopt;
    if (!areWrittenAs(built->rows, condition.text, dialect, fields, scope))
        return std::nullopt;
    return built->rows;
}

std::optional<FilterState> joinedRows(const FilterState &first, const FilterState &second)
{
    if (first.isEmpty() || second.isEmpty())
        return first + second;
    auto joined = withBrackets(first);
    const auto added = withBrackets(second);
    if (!joined || !added)
        return std::nullopt;
    joined->last().orNext = false;
    return *joined + *added;
}

bool hasMatchedBrackets(const FilterState &rows)
{
    return FilterSql::unmatchedBracket(framesOf(rows)) < 0;
}

} // namespace KOVAVSFDataGridLib
