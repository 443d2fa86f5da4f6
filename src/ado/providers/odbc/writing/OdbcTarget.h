#pragma once

#include "ado/FieldInfo.h"

#include <memory>
#include <vector>

namespace KOVAVSFDataGridLib {
class SqlScanner;
struct SimpleSelect;
} // namespace KOVAVSFDataGridLib

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

class OdbcConnection;
struct OdbcEngine;
struct OdbcTable;

// Where the rows of a statement can be written back to, and how one of them is found there again.
struct OdbcTarget
{
    struct KeyColumn
    {
        QString name; // as it stands in a statement
        int column;   // of the result
    };

    QString whyReadOnly; // empty when they can be; the rest is set only then
    QString statement;   // the user's with the hidden columns after its own; empty if nothing is hidden
    QString table;       // as it stands in a statement
    QString alias;
    QString selectRow; // the statement up to where the condition for one row follows
    // For each field the table's column, as it stands in a statement, that takes its values; empty for a
    // field that is computed.
    std::vector<QString> columns;
    // What tells the row from all others. It is a real key where the database says so, else all columns of
    // the table that can be compared.
    std::vector<KeyColumn> key;
    bool isRealKey = false;
    // The columns of the result, hidden ones too, that must still be what they were when the row was read.
    std::vector<int> compared;
    // Without them a statement that changes the row has to compare it once more by itself: a condition with
    // one parameter for each of these.
    bool hasTransactions = true;
    std::vector<KeyColumn> witnesses;

    // The `statement` that find() will answer, as far as can be told from what the session knows about the
    // table; empty when it can't, or when nothing will be hidden. `shown` is how many of its `all` columns
    // are the user's.
    static QString likelyStatement(const std::shared_ptr<OdbcConnection> &connection,
                                   const OdbcEngine &engine, const SqlScanner &statement, std::size_t &shown,
                                   std::size_t &all);
    static OdbcTarget find(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                           const SqlScanner &statement, const std::vector<FieldInfo> &fields);

private:
    // Fills in all but whyReadOnly, and that where no column can tell a row. Answers how many columns the
    // result has with the hidden ones.
    std::size_t findRow(const OdbcEngine &engine, const SqlScanner &scanner,
                        const KOVAVSFDataGridLib::SimpleSelect &select, const OdbcTable &from,
                        const QStringList &shown, const std::vector<FieldInfo> &fields);
};

} // namespace ADODB
