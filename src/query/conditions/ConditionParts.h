#pragma once

#include "sql/select/SelectParts.h"

#include <QtCore/QStringList>

// Splits a condition into parts that the user can read.
namespace KOVAVSFDataGridLib {

// The conditions joined by AND, without the brackets around them; a single part if OR joins them. `condition`
// does not include the word WHERE.
std::vector<TextRange> conditionParts(const SqlScanner &statement, TextRange condition);
// The same of a condition that stands alone, as texts.
QStringList textsOfParts(const QString &condition, const Dialect &dialect);
// The text with one space after each token, to compare conditions: whitespace and comments outside strings
// and names have no meaning.
QString comparableText(const QString &condition, const Dialect &dialect);
// Whether the condition binds looser than AND, which must not take in what is joined to it.
bool isLooseCondition(const QString &condition, const Dialect &dialect);
// Whether every bracket has its counterpart within the condition.
bool hasClosedBrackets(const QString &condition, const Dialect &dialect);

// The fields used in a condition, each once, without table names and quotes.
QStringList fieldsOfCondition(const SqlScanner &statement, TextRange condition);

// The condition in words: "名称 包含“茶”". A condition that can't be put in words is returned as written.
QString conditionInWords(const SqlScanner &statement, TextRange condition);

// The texts that LIKE conditions search for, without wildcards.
QStringList textsSought(const SqlScanner &statement, TextRange condition);

} // namespace KOVAVSFDataGridLib
