#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

// The names of fields in a SELECT list.
namespace KOVAVSFDataGridLib {

// The name behind the first "." of a written name, without one leading "[" and one trailing "]".
QString shortFieldName(const QString &writtenName);

// The items between "Select " (its seven characters) and " from ", cut at every comma, without blanks at
// their ends; DISTINCT, ALL or TOP n in front belongs to no item. Empty when there is no such list.
QStringList writtenFields(const QString &statement);

} // namespace KOVAVSFDataGridLib
