#pragma once

#include <QtCore/QString>

namespace ADODB {

// A column of a table, by the names that the database keeps.
struct TableColumn
{
    QString schema; // empty where it isn't known, or is the usual one
    QString table;
    QString column;
};

} // namespace ADODB
