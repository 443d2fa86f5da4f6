#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

// Taking SELECT statements apart and putting them together again, as plain text: a keyword counts where it
// stands with exactly one blank on each side, in any letter case, and only its first occurrence from the left
// does. What is cut out keeps the case and the blanks in which it was written, because the pieces are joined
// again.
namespace KOVAVSFDataGridLib {

struct KeywordCut
{
    QString before; // up to and with the keyword's first character, or the whole text
    QString after;  // from the keyword's second character on, or empty
};

struct SQLSentence
{
    QString fields; // SELECT list and FROM part, with the blank that stands before the next keyword
    QString where;  // from the word WHERE on, with the blank that stands before ORDER BY
    QString order;  // from the words ORDER BY on
};

// Nothing when text or keyword is empty. A keyword that doesn't occur is no failure: all is `before`.
std::optional<KeywordCut> SplitByKeyword(const QString &text, const QString &keyword);

// Nothing when the statement is empty.
std::optional<SQLSentence> SplitSQLSentence(const QString &statement);

// The three parts with exactly one blank between them, empty parts too: joining what was split loses nothing.
QString joinSQLSentence(const SQLSentence &sentence);

// The head, followed by one blank and the part for each of the other parts that isn't empty.
QString ComposeSQL(const QString &head, const QString &where, const QString &order);

// One more condition: the first one brings the word WHERE (and a blank before it), each further one AND; then
// either side that has an OR outside all brackets gets brackets of its own.
// An empty condition changes nothing; one that ends in a comment gets a line break. `dialect` says what a
// text is.
void addCondition(SQLSentence &sentence, const QString &condition, const Dialect &dialect = {});

// The statement with the head of `fieldStatement` in place of its own; empty when either text is empty.
QString ReplaceSQLFieldPart(const QString &statement, const QString &fieldStatement);

// The statement with " ORDER BY " and the sort list behind it, unless it is sorted already or one text is
// empty.
QString AppendOrderWord(const QString &statement, const QString &sortList);

// The statement's ORDER BY part, if any, gives way to the sort list; an empty list leaves it unsorted.
QString replaceOrderWord(const QString &statement, const QString &sortList);

// A statement with the same fields that yields no row; empty when nothing stands before the first keyword.
QString GetNoRowSQL(const QString &statement);

// What stands behind " from ", without the condition and the sort. Without FROM the whole head.
QString GetSQLTableName(const QString &statement);

// From the blank before FROM to the end; empty without FROM.
QString getFromPart(const QString &statement);

// The entries of a SELECT list or a sort, cut at the commas outside brackets, quotes and comments, without
// blanks at their ends; empty ones are left out.
QStringList splitList(const QString &list, const Dialect &dialect = {});

// Where CutStringEnds removes.
enum CutEnds : qint32 { CutBegin = 1, CutEnd = 2, CutBoth = 3 };
// Removes one `affix` at the text's begin, end or both; another number changes nothing. An empty
// affix empties the result.
QString CutStringEnds(const QString &text, const QString &affix, CutEnds ends);

} // namespace KOVAVSFDataGridLib
