#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

// Splits and joins SELECT statements as plain text. A keyword is
// recognized, in any case, only with exactly one space on each
// side, and only its first occurrence from the left. The pieces
// keep their case and spaces, because they are joined again.
namespace KOVAVSFDataGridLib {

struct KeywordCut
{
    QString before; // up to and including the keyword's first character, or the whole text
    QString after;  // from the keyword's second character on, or empty
};

struct SQLSentence
{
    QString fields; // SELECT list and FROM part, including the space before the next keyword
    QString where;  // from the word WHERE on, including the space before ORDER BY
    QString order;  // from the words ORDER BY on
};

// No value if text or keyword is empty. A missing keyword is not an error: `before` is then the whole text.
std::optional<KeywordCut> SplitByKeyword(const QString &text, const QString &keyword);

// No value if the statement is empty.
std::optional<SQLSentence> SplitSQLSentence(const QString &statement);

// The three parts separated by exactly one space, even if empty, so nothing of a split statement is lost.
QString joinSQLSentence(const SQLSentence &sentence);

// The head, then one space and the part for each other part that isn't empty.
QString ComposeSQL(const QString &head, const QString &where, const QString &order);

// Adds a condition: the first one with WHERE (and a space before it), the
// others with AND. Either side gets brackets if it has an OR outside all
// brackets. An empty condition changes nothing; one that ends in a comment
// is followed by a line break. `dialect` determines how strings are written.
void addCondition(SQLSentence &sentence, const QString &condition, const Dialect &dialect = {});

// The statement with the head of `fieldStatement` instead of its own; empty if either text is empty.
QString ReplaceSQLFieldPart(const QString &statement, const QString &fieldStatement);

// The statement followed by " ORDER BY " and the sort list, unless it is already sorted or either text is
// empty.
QString AppendOrderWord(const QString &statement, const QString &sortList);

// Replaces the statement's ORDER BY part, if any, with the sort list; an empty list removes it.
QString replaceOrderWord(const QString &statement, const QString &sortList);

// A statement with the same fields that returns no rows; empty if nothing precedes the first keyword.
QString GetNoRowSQL(const QString &statement);

// The text after " from ", without the condition and the sort. Without FROM, the whole head.
QString GetSQLTableName(const QString &statement);

// From the space before FROM to the end; empty without FROM.
QString getFromPart(const QString &statement);

// The entries of a SELECT list or a sort, split at commas outside brackets, quotes and comments, and trimmed.
// Empty entries are omitted.
QStringList splitList(const QString &list, const Dialect &dialect = {});

// Which ends CutStringEnds removes.
enum CutEnds : qint32 { CutBegin = 1, CutEnd = 2, CutBoth = 3 };
// Removes one `affix` from the start, the end or both; any other number changes nothing. If `affix` is empty,
// so is the result.
QString CutStringEnds(const QString &text, const QString &affix, CutEnds ends);

} // namespace KOVAVSFDataGridLib
