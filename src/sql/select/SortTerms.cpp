#include "sql/select/SortTerms.h"

#include "sql/select/SqlWalk.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Where ASC, DESC, NULLS FIRST or PostgreSQL's USING begins; the term's end if it has none of them.
qsizetype directionIn(const SqlScanner &sql, TextRange term)
{
    qsizetype begin = term.end;
    if (begin - term.begin > 2 && sql.isWord(begin - 2, u"NULLS"))
        begin -= 2;
    if (begin - term.begin > 1 && isOneOf(sql, begin - 1, {u"ASC", u"DESC"}))
        return begin - 1;
    for (qsizetype i = begin - 1; i > term.begin && sql.dialect() == SqlDialect::PostgreSql; --i) {
        if (sql.at(i).depth == sql.at(term.begin).depth && sql.isWord(i, u"USING"))
            return i;
    }
    return begin;
}

// USING has an operator instead of a word.
bool isDescending(const SqlScanner &sql, TextRange direction)
{
    for (qsizetype i = direction.begin; i < direction.end; ++i) {
        if (sql.isSymbol(i, u'>') || sql.isWord(i, u"DESC"))
            return true;
    }
    return false;
}

// Takes away what leaves a name or a position what it is: brackets and, depending on the engine, a sign or a
// collation. Returns the collations, with a space after each.
QString takeIgnored(const SqlScanner &sql, TextRange &term)
{
    const bool isStandard = sql.dialect() == SqlDialect::Standard;
    QString collations;
    while (!term.isEmpty()) {
        const bool endsInNumber = sql.at(term.end - 1).kind == SqlToken::Kind::Number;
        const bool isSignIgnored = sql.dialect() == SqlDialect::MySql || (isStandard && endsInNumber);
        if (sql.isSymbol(term.begin, u'(') && sql.isSymbol(term.end - 1, u')')) {
            term = {term.begin + 1, term.end - 1};
        } else if (sql.isSymbol(term.begin, u'+') && isSignIgnored) {
            ++term.begin;
        } else if (isStandard && term.end - term.begin > 2 && sql.isWord(term.end - 2, u"COLLATE")) {
            collations.prepend(textOf(sql, {term.end - 2, term.end}) + u' ');
            term.end -= 2;
        } else {
            break;
        }
    }
    return collations;
}

} // namespace

SelectParts::Item sortTermIn(const SqlScanner &sql, TextRange tokens)
{
    const TextRange direction{directionIn(sql, tokens), tokens.end};
    const QString directionText = textOf(sql, direction);
    SelectParts::Item term{.tokens = tokens,
                           .value = {tokens.begin, direction.begin},
                           .alias = {},
                           .rest = directionText,
                           .isDescending = isDescending(sql, direction)};
    TextRange inner = term.value;
    const QString collations = takeIgnored(sql, inner);
    qsizetype next = inner.begin;
    while (sql.isName(next) && sql.isSymbol(next + 1, u'.'))
        next += 2;
    term.isName = next + 1 == inner.end && sql.isName(next);
    const bool isPosition =
        inner.begin + 1 == inner.end && sql.at(inner.begin).kind == SqlToken::Kind::Number;
    if (term.isName || isPosition) {
        term.value = inner;
        term.rest = (collations + directionText).trimmed();
    }
    return term;
}

} // namespace KOVAVSFDataGridLib
