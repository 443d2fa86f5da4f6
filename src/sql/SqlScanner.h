#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <vector>

namespace KOVAVSFDataGridLib {

struct SqlToken
{
    enum class Kind { Word, QuotedName, String, Number, Symbol };

    Kind kind;
    qsizetype start; // in the scanned text
    qsizetype length;
    int depth; // how many parentheses are open around it; a parenthesis itself counts as outside

    qsizetype end() const { return start + length; }
};

// What a quote or a comment is. Standard is SQLite's reading of it.
enum class SqlDialect { Standard, PostgreSql, MySql, SqlServer };

struct Dialect;
SqlDialect ReadingOf(const Dialect &dialect);

// A statement cut into tokens: comments and blanks are left out; quoted names ("a", [a], `a`) and strings are
// one token each, with their quotes. A quote or comment that is not closed reaches to the end. Knows no
// grammar.
class SqlScanner
{
public:
    explicit SqlScanner(QString sql, SqlDialect dialect = SqlDialect::Standard);

    const QString &sql() const { return m_sql; }
    // Without the semicolon that ends it, and what is behind that.
    QString withoutSemicolon() const;
    SqlDialect dialect() const { return m_dialect; }
    qsizetype count() const { return static_cast<qsizetype>(m_tokens.size()); }
    const SqlToken &at(qsizetype index) const { return m_tokens[static_cast<std::size_t>(index)]; }
    QStringView text(qsizetype index) const;

    // False for any index outside the statement, so that callers can look ahead freely.
    bool isWord(qsizetype index, QStringView word) const; // in any letter case
    bool isSymbol(qsizetype index, QChar symbol) const;
    bool isName(qsizetype index) const;  // a word or a quoted name
    QString name(qsizetype index) const; // without its quotes

private:
    void scan();
    qsizetype skipComment(qsizetype from) const;
    qsizetype endOfBlockComment(qsizetype from) const;
    bool isNameQuote(QChar c) const;
    bool hasBackslashEscapes(qsizetype quote) const;
    qsizetype endOfQuoted(qsizetype from, QChar close) const;
    qsizetype endOfDollarQuoted(qsizetype from) const;

    QString m_sql;
    SqlDialect m_dialect;
    std::vector<SqlToken> m_tokens;
};

} // namespace KOVAVSFDataGridLib
