#include "query/conditions/ConditionTokens.h"

#include "sql/select/SqlWalk.h"

#include <algorithm>

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

bool isJoin(const SqlScanner &sql, qsizetype token, QStringView word, int depth)
{
    return sql.at(token).depth == depth && sql.isWord(token, word);
}

// An operand, a comparison operator and a value.
struct BoundComparison
{
    TextRange operand;
    QString sign;
    TextRange value;
};

BoundComparison comparisonIn(const SqlScanner &sql, TextRange range)
{
    range = withoutBrackets(sql, range);
    static constexpr QStringView signs = u"=<>";
    const auto isSign = [&](qsizetype token) {
        return token < range.end && sql.at(token).depth == sql.at(range.begin).depth &&
               sql.at(token).kind == SqlToken::Kind::Symbol && signs.contains(sql.text(token).front());
    };
    qsizetype begin = range.begin;
    while (begin < range.end && !isSign(begin))
        ++begin;
    qsizetype end = begin;
    while (isSign(end))
        ++end;
    if (begin == range.begin || begin == end || end == range.end)
        return {};
    return {{range.begin, begin}, textOf(sql, {begin, end}), {end, range.end}};
}

} // namespace

TextRange withoutBrackets(const SqlScanner &sql, TextRange range)
{
    while (range.end - range.begin > 2 && sql.isSymbol(range.begin, u'(') &&
           closingBracket(sql, range.begin) == range.end - 1)
        range = {range.begin + 1, range.end - 1};
    return range;
}

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

bool isAlternative(const SqlScanner &sql, TextRange range)
{
    const int depth = sql.at(range.begin).depth;
    int cases = 0;
    for (qsizetype i = range.begin; i < range.end; ++i) {
        cases += isJoin(sql, i, u"CASE", depth) ? 1 : 0;
        cases -= isJoin(sql, i, u"END", depth) ? 1 : 0;
        if (cases == 0 && sql.at(i).depth == depth && bindsLooserThanAnd(sql, i))
            return true;
    }
    return false;
}

bool isFunction(const SqlScanner &sql, qsizetype token)
{
    return sql.at(token).kind == SqlToken::Kind::Word && sql.isSymbol(token + 1, u'(');
}

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

QChar escapeOf(const SqlScanner &sql, qsizetype word)
{
    return textOfLiteral(sql, {word + 1, word + 2}).value_or(QString(u' ')).front();
}

QString lineOf(const SqlScanner &sql, TextRange range)
{
    QString line;
    for (qsizetype i = range.begin; i < range.end; ++i) {
        if (i > range.begin && sql.at(i).start > sql.at(i - 1).end())
            line += u' ';
        line += sql.text(i);
    }
    return line;
}

std::optional<Bounds> boundsOf(const SqlScanner &sql, TextRange condition)
{
    const TextRange inner = withoutBrackets(sql, condition);
    if (inner.isEmpty() || inner.begin == condition.begin || isAlternative(sql, inner))
        return std::nullopt;
    const std::vector<TextRange> pieces = cutAt(sql, inner, u"AND");
    if (pieces.size() != 2)
        return std::nullopt;
    const BoundComparison lower = comparisonIn(sql, pieces.front());
    const BoundComparison upper = comparisonIn(sql, pieces.back());
    const bool areBounds = (lower.sign == ">"_L1 || lower.sign == ">="_L1) &&
                           (upper.sign == "<"_L1 || upper.sign == "<="_L1) &&
                           textOf(sql, lower.operand) == textOf(sql, upper.operand);
    if (!areBounds)
        return std::nullopt;
    return Bounds{lower.operand, lower.value, upper.value, lower.sign.size() > 1, upper.sign.size() > 1};
}

} // namespace KOVAVSFDataGridLib
