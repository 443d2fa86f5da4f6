#pragma once

#include "sql/AllDBType.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

// How fields are named in statements.
namespace KOVAVSFDataGridLib {

// The name behind the first "." of a written name, without one leading "[" and one trailing "]".
QString ShortFieldName(const QString &writtenName);

// The last part of a written name without its brackets or double quotes: "Name" for dbo.T."Name". Empty when
// an alias in brackets or quotes stands behind it.
QString LastNamePart(const QString &writtenName);

// The items between "Select " (its seven characters) and " from ", cut at every comma, without blanks at
// their ends; DISTINCT, ALL or TOP n in front belongs to no item. Empty when there is no such list.
QStringList WrittenFields(const QString &statement);

// True for a letter or "_" followed by letters and numbers of any script, "_", "$" and "#".
bool IsPlainName(const QString &name);

// The name as it can stand in a statement for that database: plain names as they are, others in double quotes
// for Oracle (where also a name that mixes capital and small letters only exists in quotes), else in
// brackets.
QString QuotedFieldName(AllDBType database, const QString &name);

// The text with each [name] outside quotes written "name".
QString BracketsToQuotes(const QString &text);

} // namespace KOVAVSFDataGridLib
