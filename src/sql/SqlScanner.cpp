#include "sql/SqlScanner.h"

#include "sql/Engine.h"

using namespace Qt::Literals::StringLiterals;

namespace KOVAVSFDataGridLib {

namespace {

// Engines treat every non-ASCII character as part of a name.
bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c == u'_' || c == u'$' || c.unicode() >= 0x80;
}

bool isLineEndOfUnicode(QChar c)
{
    return c.unicode() == 0x85 || c.unicode() == 0x2028 || c.unicode() == 0x2029;
}

// A control character that is not common whitespace, or a character that some engine reads as a line end.
bool isStray(QChar c)
{
    const bool isPlain = c == u'\t' || c == u'\n' || c == u'\r';
    return (c.category() == QChar::Other_Control && !isPlain) || isLineEndOfUnicode(c);
}

QChar closingOf(QChar open)
{
    return open == u'[' ? u']' : open;
}

SqlDialect readingOf(Engine engine)
{
    switch (engine) {
    case Engine::PostgreSQL:
        return SqlDialect::PostgreSql;
    case Engine::MySQL:
        return SqlDialect::MySql;
    case Engine::SqlServer:
        return SqlDialect::SqlServer;
    default:
        return SqlDialect::Standard;
    }
}

} // namespace

SqlScanner::SqlScanner(QString sql, SqlDialect dialect, const SqlQuoting &quoting)
    : m_sql(std::move(sql)), m_dialect(dialect), m_quoting(quoting)
{
    scan();
    if (const qsizetype zero = m_sql.indexOf(QChar(u'\0')); zero >= 0)
        markStray(zero);
}

SqlScanner::SqlScanner(QString sql, const Dialect &dialect)
    : SqlScanner(std::move(sql), readingOf(dialect.engine),
                 {.backslashEscapes = dialect.escapesByBackslash,
                  .ansiQuotes = dialect.ansiQuotes,
                  .brackets = true})
{
}

void SqlScanner::markStray(qsizetype place)
{
    if (m_stray < 0 || place < m_stray)
        m_stray = place;
}

// Checks text outside strings and quoted names.
void SqlScanner::findStray(qsizetype from, qsizetype end)
{
    for (qsizetype i = from; i < end && m_stray < 0; ++i) {
        if (isStray(m_sql.at(i)))
            markStray(i);
    }
}

bool SqlScanner::isBlank(QChar c) const
{
    // Only SQL Server treats Unicode spaces as whitespace.
    return c.isSpace() && (c.unicode() < 0x80 || m_dialect == SqlDialect::SqlServer);
}

void SqlScanner::scan()
{
    int depth = 0;
    for (qsizetype i = 0; i < m_sql.size();) {
        const QChar c = m_sql.at(i);
        if (isBlank(c)) {
            findStray(i, i + 1);
            ++i;
            continue;
        }
        if (const qsizetype behind = skipComment(i); behind > i) {
            findStray(i, behind);
            // A carriage return that does not end the comment here may end it for an engine.
            const qsizetype lone = m_sql.indexOf(u'\r', i);
            const bool isLine = c != u'/';
            if (isLine && lone >= 0 && lone < behind && lone + 1 < m_sql.size() &&
                m_sql.at(lone + 1) != u'\n')
                markStray(lone);
            m_endsInLineComment = isLine && behind == m_sql.size();
            i = behind;
            continue;
        }
        if (const qsizetype behind = endOfVersionComment(i); behind > i) {
            for (qsizetype k = i + 2; k + 2 < behind; ++k) {
                const QStringView pair = QStringView(m_sql).sliced(k, 2);
                if (pair.front() == u'\'' || pair.front() == u'"' || pair.front() == u'`' ||
                    pair.front() == u'#' || pair == "--"_L1 || pair == "/*"_L1)
                    markStray(k);
            }
        }
        auto kind = SqlToken::Kind::Symbol;
        qsizetype end = i + 1;
        if (c == u'\'') {
            kind = SqlToken::Kind::String;
            end = endOfQuoted(i, c);
        } else if (const qsizetype behind = endOfDollarQuoted(i); behind > i) {
            kind = SqlToken::Kind::String;
            end = behind;
        } else if (isNameQuote(c)) {
            kind = SqlToken::Kind::QuotedName;
            end = endOfQuoted(i, closingOf(c));
        } else if (isWordPart(c)) {
            kind = c.isDigit() ? SqlToken::Kind::Number : SqlToken::Kind::Word;
            while (end < m_sql.size() && isWordPart(m_sql.at(end)) && !isBlank(m_sql.at(end)))
                ++end;
        } else if ((c == u')' || (c == u']' && opensBracket(u'['))) && depth > 0) {
            --depth;
        }
        const bool isQuoted = kind == SqlToken::Kind::String || kind == SqlToken::Kind::QuotedName;
        if (!isQuoted)
            findStray(i, end);
        // PostgreSQL joins adjacent strings, and reads backslashes in the second like those in the first.
        if (kind == SqlToken::Kind::String && m_dialect == SqlDialect::PostgreSql && !m_tokens.empty() &&
            m_tokens.back().kind == SqlToken::Kind::String &&
            QStringView(m_sql).sliced(m_tokens.back().start, end - m_tokens.back().start).contains(u'\\'))
            markStray(i);
        m_tokens.push_back({kind, i, end - i, depth});
        if (kind == SqlToken::Kind::Symbol && opensBracket(c))
            ++depth;
        i = end;
    }
}

// PostgreSQL's square brackets contain subscripts and lists.
bool SqlScanner::opensBracket(QChar c) const
{
    return c == u'(' || (c == u'[' && m_dialect == SqlDialect::PostgreSql);
}

qsizetype SqlScanner::skipComment(qsizetype from) const
{
    const QStringView rest = QStringView(m_sql).sliced(from);
    const bool mySql = m_dialect == SqlDialect::MySql;
    // In MySQL, two dashes begin a comment only if a space follows.
    const bool dashes =
        rest.startsWith("--"_L1) &&
        (!mySql || rest.size() == 2 || rest.at(2).unicode() <= 0x20 || rest.at(2).unicode() == 0x7f);
    if (dashes || (mySql && rest.startsWith(u'#')))
        return endOfLineComment(from);
    return rest.startsWith("/*"_L1) && endOfVersionComment(from) == from ? endOfBlockComment(from) : from;
}

qsizetype SqlScanner::endOfLineComment(qsizetype from) const
{
    for (qsizetype i = from; i < m_sql.size(); ++i) {
        const QChar c = m_sql.at(i);
        if (c == u'\n' || (c == u'\r' && m_dialect == SqlDialect::PostgreSql) ||
            (m_dialect == SqlDialect::SqlServer && (c == u'\r' || isLineEndOfUnicode(c))))
            return i;
    }
    return m_sql.size();
}

// MySQL runs the text of a comment that begins with an exclamation mark, unless a number after it requires a
// later version. Returns `from` if there is none.
qsizetype SqlScanner::endOfVersionComment(qsizetype from) const
{
    const QStringView rest = QStringView(m_sql).sliced(from);
    if (m_dialect != SqlDialect::MySql || !(rest.startsWith("/*!"_L1) || rest.startsWith("/*M!"_L1)))
        return from;
    const qsizetype close = m_sql.indexOf("*/"_L1, from + 2);
    return close < 0 ? m_sql.size() : close + 2;
}

qsizetype SqlScanner::endOfBlockComment(qsizetype from) const
{
    const bool nested = m_dialect == SqlDialect::PostgreSql || m_dialect == SqlDialect::SqlServer;
    int open = 0;
    for (qsizetype i = from; i + 1 < m_sql.size(); ++i) {
        const QStringView pair = QStringView(m_sql).sliced(i, 2);
        if (pair == "/*"_L1 && (nested || open == 0)) {
            ++open;
            ++i;
        } else if (pair == "*/"_L1) {
            ++i;
            if (--open == 0)
                return i + 1;
        }
    }
    return m_sql.size();
}

bool SqlScanner::isNameQuote(QChar c) const
{
    switch (m_dialect) {
    case SqlDialect::PostgreSql: // its brackets are subscripts
        return c == u'"';
    case SqlDialect::SqlServer:
        return c == u'"' || c == u'[';
    case SqlDialect::MySql:
        return c == u'"' || c == u'`' || (c == u'[' && m_quoting.brackets);
    case SqlDialect::Standard:
        break;
    }
    return c == u'"' || c == u'[' || c == u'`';
}

bool SqlScanner::hasBackslashEscapes(qsizetype quote) const
{
    if (m_dialect == SqlDialect::MySql) {
        const QChar c = m_sql.at(quote);
        return m_quoting.backslashEscapes && (c == u'\'' || (c == u'"' && !m_quoting.ansiQuotes));
    }
    // E'…', where the E must be a separate word.
    return m_dialect == SqlDialect::PostgreSql && m_sql.at(quote) == u'\'' && quote > 0 &&
           m_sql.at(quote - 1).toUpper() == u'E' && (quote == 1 || !isWordPart(m_sql.at(quote - 2)));
}

qsizetype SqlScanner::endOfQuoted(qsizetype from, QChar close) const
{
    const bool escapes = hasBackslashEscapes(from);
    // A doubled quote is one quote. SQLite's bracket can't be doubled.
    const bool doubles = close != u']' || m_dialect != SqlDialect::Standard;
    for (qsizetype i = from + 1; i < m_sql.size(); ++i) {
        if (escapes && m_sql.at(i) == u'\\') {
            ++i;
            continue;
        }
        if (m_sql.at(i) != close)
            continue;
        if (!doubles || i + 1 == m_sql.size() || m_sql.at(i + 1) != close)
            return i + 1;
        ++i;
    }
    return m_sql.size();
}

// $$…$$ or $tag$…$tag$; returns `from` if there is none.
qsizetype SqlScanner::endOfDollarQuoted(qsizetype from) const
{
    if (m_dialect != SqlDialect::PostgreSql || m_sql.at(from) != u'$')
        return from;
    qsizetype end = from + 1;
    while (end < m_sql.size() && (isWordPart(m_sql.at(end)) && m_sql.at(end) != u'$'))
        ++end;
    const bool isTag = end < m_sql.size() && m_sql.at(end) == u'$' && !m_sql.at(from + 1).isDigit();
    if (!isTag)
        return from;
    const QStringView tag = QStringView(m_sql).sliced(from, end + 1 - from);
    const qsizetype close = m_sql.indexOf(tag, end + 1);
    return close < 0 ? m_sql.size() : close + tag.size();
}

QStringView SqlScanner::text(qsizetype index) const
{
    return QStringView(m_sql).sliced(at(index).start, at(index).length);
}

QString SqlScanner::withoutSemicolon() const
{
    const qsizetype last = count() - (isSymbol(count() - 1, u';') ? 2 : 1);
    return last < 0 ? QString() : m_sql.left(at(last).end());
}

bool SqlScanner::isWord(qsizetype index, QStringView word) const
{
    return index >= 0 && index < count() && at(index).kind == SqlToken::Kind::Word &&
           at(index).length == word.size() && text(index).compare(word, Qt::CaseInsensitive) == 0;
}

bool SqlScanner::isSymbol(qsizetype index, QChar symbol) const
{
    return index >= 0 && index < count() && at(index).kind == SqlToken::Kind::Symbol &&
           text(index).front() == symbol;
}

bool SqlScanner::isName(qsizetype index) const
{
    return index >= 0 && index < count() &&
           (at(index).kind == SqlToken::Kind::Word || at(index).kind == SqlToken::Kind::QuotedName);
}

QString SqlScanner::name(qsizetype index) const
{
    const QStringView token = text(index);
    if (at(index).kind != SqlToken::Kind::QuotedName)
        return token.toString();
    const QString close(closingOf(token.front()));
    return token.sliced(1, token.size() - (token.size() > 1 ? 2 : 1))
        .toString()
        .replace(close + close, close);
}

} // namespace KOVAVSFDataGridLib
