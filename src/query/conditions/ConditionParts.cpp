#include "query/conditions/ConditionParts.h"

#include "query/conditions/ConditionTokens.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Words of a condition that are not field names.
bool isKeyword(const SqlScanner &sql, qsizetype token)
{
    static constexpr QStringView words[] = {u"AND",  u"OR",   u"NOT",     u"LIKE", u"IS",        u"NULL",
                                            u"IN",   u"AS",   u"BETWEEN", u"CASE", u"ESCAPE",    u"WHEN",
                                            u"THEN", u"ELSE", u"END",     u"DATE", u"TIMESTAMP", u"TIME"};
    return std::ranges::any_of(words, [&](QStringView word) { return sql.isWord(token, word); });
}

bool isField(const SqlScanner &sql, qsizetype token)
{
    // In parentheses, the name after AS is a type.
    return sql.isName(token) && !isFunction(sql, token) && !sql.isSymbol(token + 1, u'.') &&
           !isKeyword(sql, token) && !sql.isWord(token - 1, u"AS");
}

// The parts of a pattern between its wildcards.
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

} // namespace

std::vector<TextRange> conditionParts(const SqlScanner &statement, TextRange condition)
{
    // For the user, both ends of a range are one condition.
    if (boundsOf(statement, condition))
        return {condition};
    condition = withoutBrackets(statement, condition);
    if (condition.isEmpty())
        return {};
    if (isAlternative(statement, condition))
        return {condition};
    const std::vector<TextRange> pieces = cutAt(statement, condition, u"AND");
    if (pieces.size() < 2)
        return {condition};
    std::vector<TextRange> parts;
    for (const TextRange &piece : pieces)
        std::ranges::copy(conditionParts(statement, piece), std::back_inserter(parts));
    return parts;
}

QStringList textsOfParts(const QString &condition, const Dialect &dialect)
{
    const SqlScanner sql(condition, dialect);
    QStringList texts;
    if (sql.count() == 0)
        return texts;
    for (const TextRange &part : conditionParts(sql, {0, sql.count()}))
        texts.append(textOf(sql, part));
    return texts;
}

QString comparableText(const QString &condition, const Dialect &dialect)
{
    const SqlScanner sql(condition, dialect);
    QString text;
    for (qsizetype i = 0; i < sql.count(); ++i) {
        text += sql.text(i);
        text += u' ';
    }
    return text;
}

bool isLooseCondition(const QString &condition, const Dialect &dialect)
{
    const SqlScanner sql(condition, dialect);
    return sql.count() > 0 && isAlternative(sql, {0, sql.count()});
}

bool hasClosedBrackets(const QString &condition, const Dialect &dialect)
{
    const SqlScanner sql(condition, dialect);
    int open = 0;
    for (qsizetype i = 0; i < sql.count() && open >= 0; ++i)
        open += sql.isSymbol(i, u'(') ? 1 : sql.isSymbol(i, u')') ? -1 : 0;
    return open == 0;
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
