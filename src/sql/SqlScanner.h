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
    // How many parentheses are open around it, and to PostgreSQL square brackets; one itself is outside.
    int depth;

    qsizetype end() const { return start + length; }
};

// What a quote or a comment is. Standard is SQLite's reading of it.
enum class SqlDialect { Standard, PostgreSql, MySql, SqlServer };

struct Dialect;

// A statement cut into tokens: comments and blanks are left out; quoted names ("a", [a], `a`) and strings are
// one token each, with their quotes. A quote or comment that is not closed reaches to the end. Knows no
// grammar.
class SqlScanner
{
public:
    explicit SqlScanner(QString sql, SqlDialect dialect = SqlDialect::Standard,
                        const SqlQuoting &quoting = {});
    // As the dialect reads it, but for brackets, which MySQL's names have here too: names are written so
    // until the engine is known.
    SqlScanner(QString sql, const Dialect &dialect);

    const QString &sql() const { return m_sql; }
    // Without the semicolon that ends it and the comments after it, in which a driver may see statements.
    QString withoutSemicolon() const;
    SqlDialect dialect() const { return m_dialect; }
    // Where the statement first holds something by which engines, or an engine and its driver, could come to
    // read it in two ways; -1 when nowhere: a control character or a line end of Unicode's own outside texts
    // and quoted names, a zero anywhere, a carriage return alone in a comment that ends with the line, a
    // quote within what MySQL runs or skips depending on its version, and texts one after the other of which
    // one holds a backslash.
    qsizetype strayCharacter() const { return m_stray; }
    // Whether a comment that ends with its line is at the very end, and would swallow what is added there.
    bool endsInLineComment() const { return m_endsInLineComment; }
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
