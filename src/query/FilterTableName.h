#pragma once

#include <QtCore/QString>

// How the filter dialog interprets its table name.
namespace KOVAVSFDataGridLib {

struct FilterTableName
{
    QString owner;
    QString table;
};

// The name without one leading "[" and one trailing "]".
QString SetFilterTableName(const QString &name);

// The owner and the table, before and after the first ".", each without one double quote at either end. Both
// are empty without a ".".
FilterTableName SplitFilterTableName(const QString &name);

} // namespace KOVAVSFDataGridLib
