#include "filter/restored/RecognizedRow.h"

#include "filter/conditions/FilterValue.h"
#include "query/conditions/ConditionTokens.h"
#include "sql/Like.h"
#include "sql/Names.h"
#include "sql/Predicates.h"
#include "sql/Tables.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Keywords and plain names mean the same in any case, but for the tables of some engines.
bool isSameToken(const SqlScanner &a, qsizetype tokenOfA, const SqlScanner &b, qsizetype tokenOfB,
                 const Dialect &dialect)
{
    const SqlToken::Kind kind = a.at(tokenOfA).kind;
    const bool tellsCase = canTablesDifferInCase(dialect.engine) && a.isSymbol(tokenOfA + 1, u'.');
    const auto sensitivity =
        kind == SqlToken::Kind::Word && !tellsCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
    return kind == b.at(tokenOfB).kind && a.text(tokenOfA).compare(b.text(tokenOfB), sensitivity) == 0;
}

bool isSameName(const SqlScanner &a, qsizetype tokenOfA, const SqlScanner &b, qsizetype tokenOfB,
                const Dialect &dialect)
{
    if (!a.isName(tokenOfA) || isFunction(a, tokenOfA) ||
        !isOneName(dialect, a.name(tokenOfA), b.name(tokenOfB)))
        return false;
    // Without quotes, some engines change the case of a name.
    const QString name = b.name(tokenOfB);
    return a.at(tokenOfA).kind == b.at(tokenOfB).kind || isOneName(dialect, u"a"_s, u"A"_s) ||
           name.toLower() == name.toUpper();
}

// What names the only table of a statement in its condition: its alias, or its name without its schema. Empty
// if there are several tables or other sources: the same name before a field can then be another field.
QString onlyTable(const QString &fromText, const Dialect &dialect)
{
    const SqlScanner sql(fromText, dialect);
    if (!sql.isName(0))
        return {};
    qsizetype last = 0;
    while (sql.isSymbol(last + 1, u'.') && sql.isName(last + 2))
        last += 2;
    if (sql.isWord(last + 1, u"AS"))
        ++last;
    if (sql.isName(last + 1))
        ++last;
    return last + 1 == sql.count() ? sql.name(last) : QString();
}

// The condition with the field's name as rows write it: others may quote it, or name the only table before
// it.
QString withNameOf(const FilterField &field, const QString &condition, const Dialect &dialect,
                   const QString &table)
{
    const SqlScanner written(field.written, dialect);
    if (written.count() != 1)
        return condition;
    const SqlScanner sql(condition, dialect);
    QString text;
    for (qsizetype i = 0; i < sql.count(); ++i) {
        qsizetype last = i;
        while (sql.isName(last) && sql.isSymbol(last + 1, u'.') && sql.isName(last + 2))
            last += 2;
        const bool isOfTable =
            last == i || (!table.isEmpty() && isOneName(dialect, sql.name(last - 2), table));
        if (isOfTable && isSameName(sql, last, written, 0, dialect)) {
            text += field.written;
            i = last;
        } else {
            text += sql.sql().sliced(sql.at(i).start, sql.at(last).end() - sql.at(i).start);
            i = last;
        }
        if (i + 1 < sql.count() && sql.at(i + 1).start > sql.at(i).end())
            text += u' ';
    }
    return text;
}

// Whether these tokens are exactly that text.
bool isText(const SqlScanner &sql, TextRange range, const QString &text, const Dialect &dialect)
{
    const SqlScanner other(text, dialect);
    const TextRange whole = withoutBrackets(other, {0, other.count()});
    if (range.isEmpty() || whole.end - whole.begin != range.end - range.begin)
        return false;
    for (qsizetype i = 0; i < whole.end - whole.begin; ++i) {
        if (!isSameToken(sql, range.begin + i, other, whole.begin + i, dialect))
            return false;
    }
    return true;
}

// The last token of the number that begins here: its point and the sign of its exponent are tokens too.
qsizetype endOfNumber(const SqlScanner &sql, qsizetype token, qsizetype end)
{
    qsizetype last = token;
    const auto continues = [&](qsizetype next) {
        return next < end && sql.at(next).start == sql.at(next - 1).end() &&
               (sql.at(next).kind == SqlToken::Kind::Number || sql.isSymbol(next, u'.') ||
                (sql.text(next - 1).endsWith(u'e', Qt::CaseInsensitive) &&
                 (sql.isSymbol(next, u'-') || sql.isSymbol(next, u'+'))));
    };
    while (continues(last + 1))
        ++last;
    return last;
}

// The values in a condition, as they would be typed.
QStringList valuesIn(const SqlScanner &sql, TextRange condition)
{
    QStringList values;
    for (qsizetype i = condition.begin; i < condition.end; ++i) {
        if (const auto text = textOfLiteral(sql, {i, i + 1})) {
            values.append(*text);
        } else if (sql.at(i).kind == SqlToken::Kind::Number) {
            const qsizetype first = i;
            i = endOfNumber(sql, i, condition.end);
            values.append((sql.isSymbol(first - 1, u'-') ? u"-"_s : QString()) + textOf(sql, {first, i + 1}));
        }
    }
    return values;
}

QString withoutWildcards(QString pattern)
{
    if (pattern.startsWith(u'%'))
        pattern.remove(0, 1);
    if (pattern.endsWith(u'%'))
        pattern.chop(1);
    return pattern;
}

// The number that these two enclose closely, as it is shown.
QString shownBetween(const QString &from, const QString &to, FloatSize size)
{
    constexpr int digitsOfSingle = 7;
    constexpr int digitsOfDouble = 15;
    return QString::number((from.toDouble() + to.toDouble()) / 2, 'g',
                           size == FloatSize::Single ? digitsOfSingle : digitsOfDouble);
}

// The contents that a row with these values could have.
std::vector<FilterChoice> choicesWith(const FilterField &field, const QStringList &values)
{
    using enum FilterOperator;
    std::vector<FilterChoice> choices;
    QStringList items;
    for (const QString &value : values)
        items.append(filterListItem(value));
    for (const FilterOperator op : operatorsFor(field.fieldClass)) {
        const FilterOperator positive = positiveOf(op);
        FilterChoice choice{.field = field, .op = op};
        if (comparesRecords(op) || (valueCount(op) == 0) != values.isEmpty())
            continue;
        const bool hasPattern = positive == Contains || positive == BeginsWith || positive == EndsWith;
        const bool isRange = values.size() == 2 && positive == Equals && field.floatSize;
        choice.value = positive == InList ? items.join(", "_L1)
                       : hasPattern       ? withoutWildcards(values.value(0))
                       : isRange          ? shownBetween(values.at(0), values.at(1), *field.floatSize)
                                          : values.value(0);
        if (positive == Between)
            choice.lastValue = values.value(1);
        choices.push_back(choice);
        if (choice.asksForNull()) {
            choices.push_back(choice);
            choices.back().includesNull = false;
        }
    }
    return choices;
}

// Rows leave out the texts in a number field, which are greater than all numbers to SQLite. Others don't
// think of them.
QString withoutTextLimit(const QString &written, const Dialect &dialect, const FilterField &field)
{
    const QString limit = " AND "_L1 + beforeTexts(dialect, field.written) + u')';
    const bool isLimited =
        field.fieldClass == FieldClass::Number && written.startsWith(u'(') && written.endsWith(limit);
    return isLimited ? written.sliced(1).chopped(limit.size()) : written;
}

std::optional<FilterChoice> writtenChoice(const SqlScanner &sql, TextRange condition, const Dialect &dialect,
                                          const FilterField &field)
{
    for (const FilterChoice &choice : choicesWith(field, valuesIn(sql, condition))) {
        const FilterCondition written = conditionOf(dialect, choice);
        if (written.fault.isEmpty() &&
            (isText(sql, condition, written.sql, dialect) ||
             isText(sql, condition, withoutTextLimit(written.sql, dialect, field), dialect)))
            return choice;
    }
    return std::nullopt;
}

// Whether the field is equal to a text exactly where it is LIKE it: an untyped one has numbers as well.
bool isLikeEqual(const FilterField &field, const QString &text, Engine engine)
{
    const bool hasTypedValues = !hasUntypedFields(engine) || (!field.isUntyped && !field.isComputed);
    return hasTypedValues && likesOnlyEqualTexts(engine, text);
}

// A number as the condition of a cell compares it: 3.0 is 3, and a cast makes it as precise as the field.
std::optional<QString> numberIn(const SqlScanner &sql, TextRange value)
{
    if (sql.isWord(value.begin, u"CAST") && sql.isWord(value.end - 3, u"AS") &&
        sql.isWord(value.end - 2, u"REAL"))
        value = {value.begin + 2, value.end - 3};
    QString number = textOf(sql, value);
    if (value.isEmpty() || !isNumberText(number))
        return std::nullopt;
    if (number.endsWith(".0"_L1))
        number.chop(2);
    return number;
}

// "Equals" for the ways in which the condition of a cell says that.
std::optional<FilterChoice> equalChoice(const SqlScanner &sql, TextRange condition, const Dialect &dialect,
                                        const FilterField &field)
{
    qsizetype sign = condition.begin;
    const int depth = sql.at(sign).depth;
    while (sign < condition.end &&
           (sql.at(sign).depth != depth || (!sql.isWord(sign, u"LIKE") && !sql.isSymbol(sign, u'='))))
        ++sign;
    const TextRange operand{condition.begin, sign};
    const TextRange value{sign + 1, condition.end};
    if (operand.isEmpty() || value.isEmpty() || sql.isWord(sign - 1, u"NOT"))
        return std::nullopt;
    FilterChoice choice{.field = field};
    if (field.fieldClass == FieldClass::Number) {
        if (!isText(sql, operand, field.written, dialect))
            return std::nullopt;
        choice.value = numberIn(sql, value).value_or(QString());
    } else if (field.fieldClass == FieldClass::Text && sql.isWord(sign, u"LIKE")) {
        const QString text = textOfLiteral(sql, value).value_or(QString());
        if (isText(sql, operand, likeOperand(dialect.engine, field.written), dialect) &&
            isLikeEqual(field, text, dialect.engine))
            choice.value = text;
    }
    return choice.value.isEmpty() || !conditionOf(dialect, choice).fault.isEmpty() ? std::nullopt
                                                                                   : std::optional(choice);
}

} // namespace

std::optional<FilterRowState> rowRecognizedIn(const QString &condition, const Dialect &dialect,
                                              const std::vector<FilterField> &fields, const QString &fromText)
{
    if (!dialect.isKnown())
        return std::nullopt;
    const QString table = onlyTable(fromText, dialect);
    for (const FilterField &field : fields) {
        const SqlScanner sql(withNameOf(field, condition, dialect, table), dialect);
        if (sql.count() == 0 || !sql.sql().contains(field.written, Qt::CaseInsensitive))
            continue;
        const TextRange whole = withoutBrackets(sql, {0, sql.count()});
        auto choice = writtenChoice(sql, whole, dialect, field);
        if (!choice)
            choice = equalChoice(sql, whole, dialect, field);
        if (choice)
            return FilterRowState{.field = field.caption,
                                  .op = choice->op,
                                  .value = choice->value,
                                  .lastValue = choice->lastValue,
                                  .includesNull = choice->includesNull};
    }
    return std::nullopt;
}

} // namespace KOVAVSFDataGridLib
