#pragma once

#include "sql/SqlQuoting.h"

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
    // The number of open parentheses (and PostgreSQL's square brackets) around it. A bracket is outside.
    int depth;

    qsizetype end() const { return start + length; }
};

// The syntax of quotes and comments. Standard is SQLite's.
enum class SqlDialect { Standard, PostgreSql, MySql, SqlServer };

struct Dialect;

// Splits a statement into tokens. Comments and whitespace are skipped. Quoted names ("a", [a], `a`) and
// strings are one token each, including their quotes. An unclosed quote or comment extends to the end. It has
// no knowledge of grammar.
class SqlScanner
{
public:
    explicit SqlScanner(QString sql, SqlDialect dialect = SqlDialect::Standard,
                        const SqlQuoting &quoting = {});
    // Uses the dialect's syntax, except that MySQL names can be in brackets here, because names are written
    // so until the engine is known.
    SqlScanner(QString sql, const Dialect &dialect);

    const QString &sql() const { return m_sql; }
    // Without the final semicolon and the comments after it, which a driver may take for statements.
    QString withoutSemicolon() const;
    SqlDialect dialect() const { return m_dialect; }
    // The first position that engines, or an engine and its driver, could read
    // in different ways; -1 if there is none. These are: a control character or
    // a Unicode line end outside strings and quoted names, a zero character
    // anywhere, a lone carriage return in a line comment, a quote inside a MySQL
    // version comment, and adjacent strings of which one contains a backslash.
    qsizetype strayCharacter() const { return m_stray; }
    // Whether the text ends in a line comment, which would include anything appended.
    bool endsInLineComment() const { return m_endsInLineComment; }
    qsizetype count() const { return static_cast<qsizetype>(m_tokens.size()); }
    const SqlToken &at(qsizetype index) const { return m_tokens[static_cast<std::size_t>(index)]; }
    QStringView text(qsizetype index) const;

    // These return false for any index outside the statement, so that callers can look ahead freely.
    bool isWord(qsizetype index, QStringView word) const; // in any case
    bool isSymbol(qsizetype index, QChar symbol) const;
    bool isName(qsizetype index) const;  // a word or a quoted name
    QString name(qsizetype index) const; // without quotes

private:
    void scan();
    void findStray(qsizetype from, qsizetype end);
    void markStray(qsizetype place);
    bool isBlank(QChar c) const;
    bool opensBracket(QChar c) const;
    qsizetype skipComment(qsizetype from) const;
    qsizetype endOfLineComment(qsizetype from) const;
    qsizetype endOfVersionComment(qsizetype from) const;
    qsizetype endOfBlockComment(qsizetype from) const;
    bool isNameQuote(QChar c) const;
    bool hasBackslashEscapes(qsizetype quote) const;
    qsizetype endOfQuoted(qsizetype from, QChar close) const;
    qsizetype endOfDollarQuoted(qsizetype from) const;

    QString m_sql;
    SqlDialect m_dialect;
    SqlQuoting m_quoting;
    qsizetype m_stray = -1;
    bool m_endsInLineComment = false;
    std::vector<SqlToken> m_tokens;
};

} // namespace KOVAVSFDataGridLib
