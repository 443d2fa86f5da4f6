#include "sql/Like.h"

#include "sql/Literals.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

bool likesTextsOnly(Engine engine)
{
    return engine == Engine::PostgreSQL;
}

// Also for texts: a driver reports many types as text that LIKE rejects (JSON, network addresses,
// enumerations), and casting a real text costs nothing.
QString likeOperand(Engine engine, const QString &field)
{
    return likesTextsOnly(engine) ? "CAST("_L1 + field + " AS TEXT)"_L1 : field;
}

QString shownOperand(Engine engine, const QString &field)
{
    return likesTextsOnly(engine) ? "concat("_L1 + field + u')' : field;
}

// A cast to NUMERIC keeps 15 digits; very large and very small numbers are written with an exponent.
QString likeOperandOfDouble(Engine engine, const QString &field)
{
    const QString asText = likeOperand(engine, field);
    return asText == field ? field
                           : u"COALESCE(CASE WHEN abs(%1) BETWEEN 0.0001 AND 1e15 THEN "
                             "CAST(CAST(%1 AS NUMERIC) AS TEXT) END, %2)"_s.arg(field, asText);
}

// A floating point number has no zeros at its end. Money is not cast to it without a step between.
QString likeOperandOfMoney(Engine engine, const QString &field)
{
    const QString number = moneyOperand(engine, field);
    return likeOperand(engine,
                       likesTextsOnly(engine) ? u"CAST(%1 AS DOUBLE PRECISION)"_s.arg(number) : number);
}

// On these, the backslash is LIKE's default escape, regardless of its meaning in literals.
QString likePattern(Engine engine, QString text)
{
    const bool isEscape = engine == Engine::PostgreSQL || engine == Engine::MySQL;
    return isEscape ? text.replace(u'\\', "\\\\"_L1) : text;
}

// SQLite doesn't distinguish a from A. An engine that ignores spaces at the end in comparisons doesn't in
// LIKE.
bool likesOnlyEqualTexts(Engine engine, const QString &pattern)
{
    const auto isPlain = [engine](QChar c) {
        const bool isLetter = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
        return c != u'%' && c != u'_' && c != u'\\' && !(isLetter && engine == Engine::SQLite);
    };
    return !pattern.isEmpty() && !pattern.endsWith(u' ') && std::ranges::all_of(pattern, isPlain);
}

QString like(const Dialect &dialect, const QString &field, const QString &text, Anchor anchor)
{
    // Not a backslash, which is an escape in the literals of some databases.
    constexpr QChar escape = u'!';
    const bool hasBracketSets = dialect.isOdbc && dialect.likelyEngine() == Engine::SqlServer;
    QString pattern;
    for (const QChar c : text) {
        if (c == u'%' || c == u'_' || c == escape || (c == u'[' && hasBracketSets))
            pattern += escape;
        pattern += c;
    }
    // Some databases use a backslash as the default escape in a pattern, so another one is given.
    const bool isEscaped = pattern.size() > text.size() || text.contains(u'\\');
    if (anchor != Anchor::Begin)
        pattern.prepend(u'%');
    if (anchor != Anchor::End)
        pattern.append(u'%');
    return likeOperand(dialect.engine, field) + " LIKE "_L1 + textWithoutClauses(dialect, pattern) +
           (isEscaped ? " ESCAPE '!'"_L1 : ""_L1);
}

} // namespace KOVAVSFDataGridLib
