#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

// Extracts field names from a SELECT list.
namespace KOVAVSFDataGridLib {

// The part of a name after the first ".", without one leading "[" and one trailing "]".
QString shortFieldName(const QString &writtenName);

// The items between "Select " (its seven characters) and " from ", split at every comma and trimmed, without
// a leading DISTINCT, ALL or TOP n. Empty if there is no such list.
QStringList writtenFields(const QString &statement);

} // namespace KOVAVSFDataGridLib
