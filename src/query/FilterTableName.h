#pragma once

#include <QtCore/QString>

// How the filter dialog reads the name of its table.
namespace KOVAVSFDataGridLib {

struct FilterTableName
{
    QString owner;
    QString table;
};

// The name without one leading "[" and one trailing "]".
QString SetFilterTableName(const QString &name);

// Owner and table around the first ".", each without one double quote at either end; both empty without a
// ".".
FilterTableName SplitFilterTableName(const QString &name);

} // namespace KOVAVSFDataGridLib
