#pragma once

#include "ado/FieldInfo.h"

#include <vector>

namespace ADODB {

class SqliteSession;

// Where the rows of a statement can be written back to, and how one of them is found there again.
struct SqliteTarget
{
    struct KeyColumn
    {
        QString name;    // as it stands in a statement
        QString written; // the column that a change of the key is written to; empty if there is none
        int column;      // of the result
    };

    QString whyReadOnly; // empty when they can be; the rest is set only then
    QString statement;   // the user's with the hidden columns behind its own
    bool hasHidden = false;
    QString table; // as it stands in a statement
    QString alias;
    QString rowId;     // the name of the rowid; empty for a table without one
    QString selectRow; // the statement up to where the condition for one row follows
    // For each field the table's column, as it stands in a statement, that takes its values; empty for a
    // field that is computed.
    std::vector<QString> columns;
    // What tells the row from all others.
    std::vector<KeyColumn> key;
    // The columns of the result, hidden ones too, that must still be what they were when the row was read.
    std::vector<int> compared;

    // The fields that take values.
    std::vector<int> writable() const;

    static SqliteTarget find(const SqliteSession &session, const QString &sql,
                             const std::vector<FieldInfo> &fields);
};

} // namespace ADODB
