#include "query/QueryTexts.h"
#include "query/conditions/ConditionParts.h"
#include "query/conditions/ConditionTokens.h"

#include <QtCore/QDate>

#include <algorithm>
#include <cmath>

// Puts conditions into words.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString quoted(const QString &text)
{
    return QueryTexts::QuotedInWords.arg(text);
}

// Whether it is only a field, apart from a conversion to text or date.
bool isFieldAlone(const SqlScanner &sql, TextRange range)
{
    if (sql.isWord(range.begin, u"COALESCE"))
        return true;
    for (qsizetype i = range.begin; i < range.end; ++i) {
        const bool isPlain =
            sql.isName(i) || sql.isSymbol(i, u'.') || sql.isSymbol(i, u'(') || sql.isSymbol(i, u')');
        const bool isChange = isFunction(sql, i) && !sql.isWord(i, u"CAST") && !sql.isWord(i, u"DATE") &&
                              !sql.isWord(i, u"DATETIME") && !sql.isWord(i - 1, u"AS");
        if (!isPlain || isChange)
            return false;
    }
    return true;
}

QString operandInWords(const SqlScanner &sql, TextRange range)
{
    range = withoutBrackets(sql, range);
    if (const auto text = textOfLiteral(sql, range))
        return quoted(*text);
    const QStringList fields = fieldsOfCondition(sql, range);
    return fields.size() == 1 && isFieldAlone(sql, range) ? fields.front() : lineOf(sql, range);
}

QString patternInWords(QString pattern, QChar escape)
{
    const bool isOpenBefore = pattern.startsWith(u'%');
    const bool isOpenAfter = pattern.size() > 1 && pattern.endsWith(u'%');
    pattern = pattern.sliced(isOpenBefore ? 1 : 0);
    pattern.chop(isOpenAfter ? 1 : 0);
    QString text;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        if (pattern.at(i) == escape && i + 1 < pattern.size())
            ++i;
        text += pattern.at(i);
    }
    const QString words = isOpenBefore && isOpenAfter ? QueryTexts::ContainsInWords
                          : isOpenAfter               ? QueryTexts::BeginsInWords
                          : isOpenBefore              ? QueryTexts::EndsInWords
                                                      : QueryTexts::EqualsInWords;
    return words.arg(quoted(text));
}

// For subqueries of the filter builder that compare records: values that occur several times, or the first
// ones of a sort. Empty for other lists.
std::optional<QString> recordsInWords(const SqlScanner &sql, TextRange list)
{
    if (!sql.isWord(list.begin, u"SELECT"))
        return std::nullopt;
    bool isFirstOfSort = false;
    bool areTexts = false;
    bool isDescending = false;
    QString count;
    const int depth = sql.at(list.begin).depth;
    for (qsizetype i = list.begin; i < list.end; ++i) {
        // The compared records can have such a condition too, nested deeper.
        if (sql.at(i).depth > depth + 1)
            continue;
        if (sql.isWord(i, u"HAVING"))
            return QueryTexts::RepeatedInWords;
        areTexts = areTexts || sql.isWord(i, u"KovaFirstTexts");
        isFirstOfSort = isFirstOfSort || areTexts || sql.isWord(i, u"KovaFirst");
        isDescending = isDescending || sql.isWord(i, u"DESC");
        if ((sql.isWord(i, u"LIMIT") || sql.isWord(i, u"NEXT") || sql.isWord(i, u"TOP")) && i + 1 < list.end)
            count = sql.text(i + 1).toString();
    }
    if (!isFirstOfSort)
        return std::nullopt;
    if (areTexts)
        return (isDescending ? QueryTexts::LastTextsInWords : QueryTexts::FirstTextsInWords)
            .arg(count.toLongLong(), count);
    return (isDescending ? QueryTexts::LargestInWords : QueryTexts::SmallestInWords)
        .arg(count.toLongLong(), count);
}

struct Comparison
{
    QString operand;
    QString rest; // operator and value in words; empty if it is not a comparison
};

std::optional<QString> likeInWords(const SqlScanner &sql, TextRange value)
{
    QChar escape;
    for (qsizetype i = value.begin; i < value.end; ++i) {
        if (!sql.isWord(i, u"ESCAPE"))
            continue;
        escape = escapeOf(sql, i);
        value.end = i;
    }
    if (const auto pattern = textOfLiteral(sql, value); pattern && !pattern->isEmpty())
        return patternInWords(*pattern, escape);
    if (value.end - value.begin == 1) // a number
        return QueryTexts::EqualsInWords.arg(textOf(sql, value));
    return std::nullopt;
}

// The number that a range around it stands for, which includes all numbers shown in the same way. Empty if
// the range is wider than that.
QString numberInWords(const SqlScanner &sql, TextRange bounds)
{
    qsizetype word = bounds.begin;
    while (word < bounds.end && !sql.isWord(word, u"AND"))
        ++word;
    const double from = textOf(sql, {bounds.begin, word}).toDouble();
    const double to = textOf(sql, {word + 1, bounds.end}).toDouble();
    constexpr double widest = 1.1e-5; // for a number with 6 digits
    if (word >= bounds.end || from == 0 || to == 0 || from > to || to - from > widest * std::abs(to))
        return {};
    const int digits = to - from > 1e-13 * std::abs(to) ? 7 : 15;
    return QString::number((from + to) / 2, 'g', digits);
}

Comparison comparisonOf(const SqlScanner &sql, TextRange range)
{
    if (sql.isWord(range.begin, u"CASE"))
        return {};
    const int depth = sql.at(range.begin).depth;
    for (qsizetype i = range.begin + 1; i < range.end; ++i) {
        if (sql.at(i).depth != depth)
            continue;
        const QString operand = operandInWords(sql, {range.begin, i});
        const TextRange behind{i + 1, range.end};
        if (sql.isWord(i, u"IS"))
            return {operand,
                    sql.isWord(i + 1, u"NOT") ? QueryTexts::NotEmptyInWords : QueryTexts::EmptyInWords};
        if (sql.isWord(i, u"LIKE") && !behind.isEmpty() && !sql.isWord(i - 1, u"NOT"))
            return {operand, likeInWords(sql, behind).value_or(QString())};
        if (sql.isWord(i, u"BETWEEN")) {
            const QString number = numberInWords(sql, behind);
            if (number.isEmpty())
                return {};
            return sql.isWord(i - 1, u"NOT")
                       ? Comparison{operandInWords(sql, {range.begin, i - 1}), u"≠ "_s + number}
                       : Comparison{operand, QueryTexts::EqualsInWords.arg(number)};
        }
        if (sql.isWord(i, u"IN") && !sql.isWord(i - 1, u"NOT")) {
            const TextRange list = withoutBrackets(sql, behind);
            return {operand,
                    recordsInWords(sql, list).value_or(QueryTexts::InListInWords.arg(lineOf(sql, list)))};
        }
        static constexpr QStringView signs = u"=<>!";
        const auto isSign = [&](qsizetype token) {
            return token < range.end && sql.at(token).kind == SqlToken::Kind::Symbol &&
                   signs.contains(sql.text(token).front());
        };
        if (!isSign(i))
            continue;
        qsizetype end = i;
        while (isSign(end))
            ++end;
        QString sign = textOf(sql, {i, end});
        sign.replace("<>"_L1, u"≠"_s).replace("!="_L1, u"≠"_s);
        sign.replace(">="_L1, u"≥"_s).replace("<="_L1, u"≤"_s);
        return end < range.end ? Comparison{operand, sign + u' ' + operandInWords(sql, {end, range.end})}
                               : Comparison{};
    }
    return {};
}

QString alternativesInWords(const SqlScanner &sql, const std::vector<TextRange> &pieces)
{
    // Several fields searched for the same text.
    QStringList operands;
    QString rest;
    for (const TextRange &piece : pieces) {
        const Comparison comparison = comparisonOf(sql, withoutBrackets(sql, piece));
        if (comparison.rest.isEmpty() || (!rest.isEmpty() && comparison.rest != rest)) {
            rest.clear();
            break;
        }
        rest = comparison.rest;
        operands.append(comparison.operand);
    }
    constexpr qsizetype fewFields = 2;
    if (!rest.isEmpty() && operands.size() > fewFields)
        return QueryTexts::AnyFieldInWords.arg(operands.size()).arg(rest);
    QStringList words;
    for (const TextRange &piece : pieces)
        words.append(conditionInWords(sql, piece));
    return words.join(QueryTexts::OrInWords);
}

// A string, also inside an ODBC escape such as {d '2024-01-31'}.
QString literalIn(const SqlScanner &sql, TextRange range)
{
    for (qsizetype i = range.begin; i < range.end; ++i) {
        if (const auto text = textOfLiteral(sql, {i, i + 1}))
            return *text;
    }
    return {};
}

// The day, month or year that the two bounds enclose exactly; empty if there is none.
QString daysInWords(const SqlScanner &sql, const Bounds &bounds)
{
    const QDate first = QDate::fromString(literalIn(sql, bounds.lower), Qt::ISODate);
    const QDate end = QDate::fromString(literalIn(sql, bounds.upper), Qt::ISODate);
    if (!first.isValid() || !end.isValid() || !bounds.isLowerIncluded || bounds.isUpperIncluded)
        return {};
    if (end == first.addDays(1))
        return first.toString(Qt::ISODate);
    if (first.day() == 1 && end == first.addMonths(1))
        return first.toString(u"yyyy-MM"_s);
    if (first.dayOfYear() == 1 && end == first.addYears(1))
        return QueryTexts::YearInWords.arg(first.year());
    return {};
}

QString boundsInWords(const SqlScanner &sql, const Bounds &bounds)
{
    const QString operand = operandInWords(sql, bounds.operand);
    if (const QString days = daysInWords(sql, bounds); !days.isEmpty())
        return operand + u' ' + QueryTexts::EqualsInWords.arg(days);
    const QString lower = operandInWords(sql, bounds.lower);
    // No text sorts before '': the condition means that the operand is a number.
    if (textOfLiteral(sql, bounds.upper) == QString() && !bounds.isUpperIncluded)
        return operand + (bounds.isLowerIncluded ? u" ≥ "_s : u" > "_s) + lower;
    const QString upper = operandInWords(sql, bounds.upper);
    if (bounds.isLowerIncluded && bounds.isUpperIncluded)
        return QueryTexts::BetweenInWords.arg(operand, lower, upper);
    return operand + (bounds.isLowerIncluded ? u" ≥ "_s : u" > "_s) + lower + QueryTexts::AndInWords +
           operand + (bounds.isUpperIncluded ? u" ≤ "_s : u" < "_s) + upper;
}

// Of several conditions, all are meant and not only the first one.
QString negationInWords(const QString &words)
{
    const bool areSeveral = words.contains(QueryTexts::AndInWords) || words.contains(QueryTexts::OrInWords);
    return (areSeveral ? QueryTexts::NoneInWords : QueryTexts::NotInWords).arg(words);
}

} // namespace

QString conditionInWords(const SqlScanner &statement, TextRange condition)
{
    if (const auto bounds = boundsOf(statement, condition))
        return boundsInWords(statement, *bounds);
    condition = withoutBrackets(statement, condition);
    if (condition.isEmpty())
        return {};
    if (const auto pieces = cutAt(statement, condition, u"OR"); pieces.size() > 1)
        return alternativesInWords(statement, pieces);
    if (isAlternative(statement, condition))
        return lineOf(statement, condition);
    if (const auto pieces = cutAt(statement, condition, u"AND"); pieces.size() > 1) {
        QStringList words;
        for (const TextRange &piece : pieces) {
            const QString text = conditionInWords(statement, piece);
            const bool isLoose = isAlternative(statement, withoutBrackets(statement, piece));
            words.append(isLoose ? QueryTexts::BracketsInWords.arg(text) : text);
        }
        return words.join(QueryTexts::AndInWords);
    }
    if (statement.isWord(condition.begin, u"NOT") && condition.end - condition.begin > 1)
        return negationInWords(conditionInWords(statement, {condition.begin + 1, condition.end}));
    const Comparison comparison = comparisonOf(statement, condition);
    if (comparison.rest.isEmpty())
        return lineOf(statement, condition);
    return comparison.operand + u' ' + comparison.rest;
}

} // namespace KOVAVSFDataGridLib
