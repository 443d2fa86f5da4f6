#include "ado/SqlScanner.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c == u'_' || c == u'$' || c.isSurrogate();
}

QChar closingOf(QChar open)
{
    return open == u'[' ? u']' : open;
}

} // namespace

SqlScanner::SqlScanner(QString sql) : m_sql(std::move(sql))
{
    scan();
}

void SqlScanner::scan()
{
    int depth = 0;
    for (qsizetype i = 0; i < m_sql.size();) {
        const QChar c = m_sql.at(i);
        if (c.isSpace()) {
            ++i;
            continue;
        }
        if (const qsizetype behind = skipComment(i); behind > i) {
            i = behind;
            continue;
        }
        auto kind = SqlToken::Kind::Symbol;
        qsizetype end = i + 1;
        if (c == u'\'') {
            kind = SqlToken::Kind::String;
            end = endOfQuoted(i, c);
        } else if (c == u'"' || c == u'[' || c == u'`') {
            kind = SqlToken::Kind::QuotedName;
            end = endOfQuoted(i, closingOf(c));
        } else if (isWordPart(c)) {
            kind = c.isDigit() ? SqlToken::Kind::Number : SqlToken::Kind::Word;
            while (end < m_sql.size() && isWordPart(m_sql.at(end)))
                ++end;
        } else if (c == u')' && depth > 0) {
            --depth;
        }
        m_tokens.push_back({kind, i, end - i, depth});
        if (kind == SqlToken::Kind::Symbol && c == u'(')
            ++depth;
        i = end;
    }
}

qsizetype SqlScanner::skipComment(qsizetype from) const
{
    const QStringView rest = QStringView(m_sql).sliced(from);
    qsizetype end = from;
    if (rest.startsWith("--"_L1)) {
        end = m_sql.indexOf(u'\n', from);
    } else if (rest.startsWith("/*"_L1)) {
        end = m_sql.indexOf("*/"_L1, from + 2);
        end = end < 0 ? end : end + 2;
    }
    return end < 0 ? m_sql.size() : end;
}

qsizetype SqlScanner::endOfQuoted(qsizetype from, QChar close) const
{
    for (qsizetype i = from + 1; i < m_sql.size(); ++i) {
        if (m_sql.at(i) != close)
            continue;
        // A doubled quote stands for itself; a bracket can't be doubled.
        if (close == u']' || i + 1 == m_sql.size() || m_sql.at(i + 1) != close)
            return i + 1;
        ++i;
    }
    return m_sql.size();
}

QStringView SqlScanner::text(qsizetype index) const
{
    return QStringView(m_sql).sliced(at(index).start, at(index).length);
}

bool SqlScanner::isWord(qsizetype index, QStringView word) const
{
    return index >= 0 && index < count() && at(index).kind == SqlToken::Kind::Word &&
           text(index).compare(word, Qt::CaseInsensitive) == 0;
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

} // namespace ADODB
