#include "query/conditions/ConditionParts.h"

#include "query/QueryTexts.h"

#include <algorithm>
#include <cmath>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

qsizetype closingBracket(const SqlScanner &sql, qsizetype open)
{
    qsizetype close = open + 1;
    while (close < sql.count() && !(sql.isSymbol(close, u')') && sql.at(close).depth == sql.at(open).depth))
        ++close;
    return close;
}

TextRange withoutBrackets(const SqlScanner &sql, TextRange range)
{
    while (range.end - range.begin > 2 && sql.isSymbol(range.begin, u'(') &&
           closingBracket(sql, range.begin) == range.end - 1)
        range = {range.begin + 1, range.end - 1};
    return range;
}

bool isJoin(const SqlScanner &sql, qsizetype token, QStringView word, int depth)
{
    return sql.at(token).depth == depth && sql.isWord(token, word);
}

// The pieces between a word on the outermost level. The AND of BETWEEN and the words of CASE join nothing.
std::vector<TextRange> cutAt(const SqlScanner &sql, TextRange range, QStringView word)
{
    const int depth = sql.at(range.begin).depth;
    std::vector<TextRange> pieces{{range.begin, range.begin}};
    int cases = 0;
    bool isBetween = false;
    for (qsizetype i = range.begin; i < range.end; ++i) {
        cases += isJoin(sql, i, u"CASE", depth) ? 1 : 0;
        cases -= isJoin(sql, i, u"END", depth) ? 1 : 0;
        isBetween = isBetween || isJoin(sql, i, u"BETWEEN", depth);
        if (cases == 0 && isBetween && isJoin(sql, i, u"AND", depth)) {
            isBetween = false;
        } else if (cases == 0 && isJoin(sql, i, word, depth)) {
            pieces.back().end = i;
            pieces.push_back({i + 1, i + 1});
        }
    }
    pieces.back().end = range.end;
    std::erase_if(pieces, [](const TextRange &piece) { return piece.isEmpty(); });
    return pieces;
}

bool isFunction(const SqlScanner &sql, qsizetype token)
{
    return sql.at(token).kind == SqlToken::Kind::Word && sql.isSymbol(token + 1, u'(');
}

// Words of a condition that name no field.
bool isKeyword(const SqlScanner &sql, qsizetype token)
{
    static constexpr QStringView words[] = {u"AND",  u"OR",   u"NOT",     u"LIKE", u"IS",        u"NULL",
                                            u"IN",   u"AS",   u"BETWEEN", u"CASE", u"ESCAPE",    u"WHEN",
                                            u"THEN", u"ELSE", u"END",     u"DATE", u"TIMESTAMP", u"TIME"};
    return std::ranges::any_of(words, [&](QStringView word) { return sql.isWord(token, word); });
}

bool isField(const SqlScanner &sql, qsizetype token)
{
    // What follows AS within brackets is a type.
    return sql.isName(token) && !isFunction(sql, token) && !sql.isSymbol(token + 1, u'.') &&
           !isKeyword(sql, token) && !sql.isWord(token - 1, u"AS");
}

// A text without its quotes; nothing for what isn't one text alone.
std::optional<QString> textOfLiteral(const SqlScanner &sql, TextRange range)
{
    if (range.end - range.begin != 1 || sql.at(range.begin).kind != SqlToken::Kind::String)
        return std::nullopt;
    const QString literal = sql.text(range.begin).toString();
    const qsizetype quote = literal.indexOf(u'\'');
    if (quote < 0 || literal.size() < quote + 2)
        return std::nullopt;
    return literal.sliced(quote + 1, literal.size() - quote - 2).replace("''"_L1, "'"_L1);
}

QString quoted(const QString &text)
{
    return QueryTexts::QuotedInWords.arg(text);
}

// Whether a field is alone but for what makes it a text or a date.
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
    return fields.size() == 1 && isFieldAlone(sql, range) ? fields.front() : textOf(sql, range).simplified();
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

// What the filter builder writes to compare records with each other: values that occur several times, or the
// first ones of a sort. Nothing for other lists.
std::optional<QString> recordsInWords(const SqlScanner &sql, TextRange list)
{
    if (!sql.isWord(list.begin, u"SELECT"))
        return std::nullopt;
    bool isFirstOfSort = false;
    bool isDescending = false;
    QString count;
    const int depth = sql.at(list.begin).depth;
    for (qsizetype i = list.begin; i < list.end; ++i) {
        // The records that are compared can have met such a condition themselves, farther inside.
        if (sql.at(i).depth > depth + 1)
            continue;
        if (sql.isWord(i, u"HAVING"))
            return QueryTexts::RepeatedInWords;
        isFirstOfSort = isFirstOfSort || sql.isWord(i, u"KovaFirst");
        isDescending = isDescending || sql.isWord(i, u"DESC");
        if ((sql.isWord(i, u"LIMIT") || sql.isWord(i, u"NEXT") || sql.isWord(i, u"TOP")) && i + 1 < list.end)
            count = sql.text(i + 1).toString();
    }
    if (!isFirstOfSort)
        return std::nullopt;
    return (isDescending ? QueryTexts::LargestInWords : QueryTexts::SmallestInWords).arg(count);
}

struct Comparison
{
    QString operand;
    QString rest; // operator and value in words; empty when it is no comparison
};

// The pieces of a pattern that wildcards separate.
QStringList literalPieces(const QString &pattern, QChar escape)
{
    QStringList pieces{QString()};
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const bool isEscaped = pattern.at(i) == escape && i + 1 < pattern.size();
        if (isEscaped)
            ++i;
        if (!isEscaped && (pattern.at(i) == u'%' || pattern.at(i) == u'_'))
            pieces.append(QString());
        else
            pieces.back() += pattern.at(i);
    }
    pieces.removeAll(QString());
    return pieces;
}

QChar escapeOf(const SqlScanner &sql, qsizetype word)
{
    return textOfLiteral(sql, {word + 1, word + 2}).value_or(QString(u' ')).front();
}

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

// The number that is meant by a range around it, which holds all that is shown alike; empty when the range is
// wider than that.
QString numberInWords(const SqlScanner &sql, TextRange bounds)
{
    qsizetype word = bounds.begin;
    while (word < bounds.end && !sql.isWord(word, u"AND"))
        ++word;
    const double from = textOf(sql, {bounds.begin, word}).toDouble();
    const double to = textOf(sql, {word + 1, bounds.end}).toDouble();
    constexpr double widest = 1.1e-5; // of a number with 6 digits
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
            return {operand, recordsInWords(sql, list).value_or(
                                 QueryTexts::InListInWords.arg(textOf(sql, list).simplified()))};
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
    // One text looked for in several fields.
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

} // namespace

std::vector<TextRange> conditionParts(const SqlScanner &statement, TextRange condition)
{
    condition = withoutBrackets(statement, condition);
    if (condition.isEmpty())
        return {};
    if (cutAt(statement, condition, u"OR").size() > 1)
        return {condition};
    const std::vector<TextRange> pieces = cutAt(statement, condition, u"AND");
    if (pieces.size() < 2)
        return {condition};
    std::vector<TextRange> parts;
    for (const TextRange &piece : pieces)
        std::ranges::copy(conditionParts(statement, piece), std::back_inserter(parts));
    return parts;
}

QStringList fieldsOfCondition(const SqlScanner &statement, TextRange condition)
{
    QStringList fields;
    for (qsizetype i = condition.begin; i < condition.end; ++i) {
        if (isField(statement, i) && !fields.contains(statement.name(i)))
            fields.append(statement.name(i));
    }
    return fields;
}

QString conditionInWords(const SqlScanner &statement, TextRange condition)
{
    condition = withoutBrackets(statement, condition);
    if (condition.isEmpty())
        return {};
    if (const auto pieces = cutAt(statement, condition, u"OR"); pieces.size() > 1)
        return alternativesInWords(statement, pieces);
    if (const auto pieces = cutAt(statement, condition, u"AND"); pieces.size() > 1) {
        QStringList words;
        for (const TextRange &piece : pieces) {
            const QString text = conditionInWords(statement, piece);
            const bool isLoose = cutAt(statement, withoutBrackets(statement, piece), u"OR").size() > 1;
            words.append(isLoose ? QueryTexts::BracketsInWords.arg(text) : text);
        }
        return words.join(QueryTexts::AndInWords);
    }
    if (statement.isWord(condition.begin, u"NOT") && condition.end - condition.begin > 1)
        return QueryTexts::NotInWords.arg(conditionInWords(statement, {condition.begin + 1, condition.end}));
    const Comparison comparison = comparisonOf(statement, condition);
    if (comparison.rest.isEmpty())
        return textOf(statement, condition).simplified();
    return comparison.operand + u' ' + comparison.rest;
}

QStringList textsSought(const SqlScanner &statement, TextRange condition)
{
    QStringList texts;
    for (qsizetype i = condition.begin; i + 1 < condition.end; ++i) {
        if (!statement.isWord(i, u"LIKE") || statement.isWord(i - 1, u"NOT"))
            continue;
        const QString pattern = textOfLiteral(statement, {i + 1, i + 2}).value_or(QString());
        if (!pattern.startsWith(u'%') || !pattern.endsWith(u'%'))
            continue;
        const bool hasEscape = i + 3 < condition.end && statement.isWord(i + 2, u"ESCAPE");
        texts += literalPieces(pattern, hasEscape ? escapeOf(statement, i + 2) : QChar());
    }
    texts.removeDuplicates();
    return texts;
}

} // namespace KOVAVSFDataGridLib
