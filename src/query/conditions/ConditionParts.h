#pragma once

#include "sql/select/SelectParts.h"

#include <QtCore/QStringList>

// A condition taken apart, for the user to read.
namespace KOVAVSFDataGridLib {

// The conditions that AND joins, brackets around them left out; one, where OR joins them. `condition` is
// without the word WHERE.
std::vector<TextRange> conditionParts(const SqlScanner &statement, TextRange condition);
// The same of a condition that stands alone, as texts.
QStringList textsOfParts(const QString &condition, const Dialect &dialect);

// The fields that a condition names, each once, without tables and quotes.
QStringList fieldsOfCondition(const SqlScanner &statement, TextRange condition);

// The condition in the user's words: "名称 包含“茶”". What has no words of its own stays as it is written.
QString conditionInWords(const SqlScanner &statement, TextRange condition);

// What the condition's LIKEs look for anywhere in a text, without wildcards.
QStringList textsSought(const SqlScanner &statement, TextRange condition);

} // namespace KOVAVSFDataGridLib
