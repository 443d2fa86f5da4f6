#pragma once

#include <QtCore/QString>

namespace ADODB {

// A column of a table, with the names in the database's own form.
struct TableColumn
{
    QString schema; // empty if unknown or the default one
    QString table;
    QString column;
};

} // namespace ADODB
