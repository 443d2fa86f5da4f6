#pragma once

#include "ado/FieldInfo.h"

#include <vector>

namespace ADODB {

class SqliteSession;

// The table that a statement's rows are written to, and how to find one of its rows again.
struct SqliteTarget
{
    struct KeyColumn
    {
        QString name;    // quoted, for use in SQL
        QString written; // the column that a changed key is written to; empty if there is none
        int column;      // index in the result
    };

    QString whyReadOnly; // empty if they can; the rest is set only then
    QString statement;   // the user's, with the hidden columns added at the end
    bool hasHidden = false;
    QString table; // quoted, for use in SQL
    QString alias;
    QString rowId;     // the rowid's name; empty for a table without one
    QString selectRow; // the SELECT that ends where the condition for one row follows
    // For each field, the table's column that it is written to, quoted for use in SQL; empty for a computed
    // field.
    std::vector<QString> columns;
    // The columns that identify a row.
    std::vector<KeyColumn> key;
    // Columns of the result, including hidden ones, that must be unchanged since the row was read.
    std::vector<int> compared;

    // The indexes of the fields that can be written.
    std::vector<int> writable() const;

    static SqliteTarget find(const SqliteSession &session, const QString &sql,
                             const std::vector<FieldInfo> &fields);
};

} // namespace ADODB
