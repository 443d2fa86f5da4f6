#include "sql/Like.h"

#include "sql/Literals.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

bool likesTextsOnly(Engine engine)
{
    return engine == Engine::PostgreSQL;
}

// Texts too: a driver reports many types as text that LIKE refuses (JSON, network addresses, enumerations),
// and casting a real text costs nothing.
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

// The backslash is LIKE's own escape on these, quite apart from what literals make of it.
QString likePattern(Engine engine, QString text)
{
    const bool isEscape = engine == Engine::PostgreSQL || engine == Engine::MySQL;
    return isEscape ? text.replace(u'\\', "\\\\"_L1) : text;
}

QString like(const Dialect &dialect, const QString &field, const QString &text, Anchor anchor)
{
    // Not a backslash: some databases read that as an escape of the literal itself.
    constexpr QChar escape = u'!';
    const bool hasBracketSets = dialect.isOdbc && dialect.likelyEngine() == Engine::SqlServer;
    QString pattern;
    for (const QChar c : text) {
        if (c == u'%' || c == u'_' || c == escape || (c == u'[' && hasBracketSets))
            pattern += escape;
        pattern += c;
    }
    // Some databases read a backslash in a pattern as an escape unless they are given another one.
    const bool isEscaped = pattern.size() > text.size() || text.contains(u'\\');
    if (anchor != Anchor::Begin)
        pattern.prepend(u'%');
    if (anchor != Anchor::End)
        pattern.append(u'%');
    return likeOperand(dialect.engine, field) + " LIKE "_L1 + textWithoutClauses(dialect, pattern) +
           (isEscaped ? " ESCAPE '!'"_L1 : ""_L1);
}

} // namespace KOVAVSFDataGridLib
