#pragma once

#include "ado/FieldInfo.h"
#include "ado/providers/odbc/reading/OdbcCatalogueAnswers.h"

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

// The table that a statement's rows are written to, and how to find one of its rows again.
struct OdbcTarget
{
    struct KeyColumn
    {
        QString name; // quoted, for use in SQL
        int column;   // index in the result
    };

    QString whyReadOnly; // empty if they can; the rest is set only then
    QString statement;   // the user's, with the hidden columns added at the end; empty if there are none
    QString table;       // quoted, for use in SQL
    OdbcTableName fullName;
    QString alias;
    QString selectRow; // the SELECT that ends where the condition for one row follows
    // For each field, the table's column that it is written to, quoted for use in SQL; empty for a computed
    // field.
    std::vector<QString> columns;
    // The columns that identify a row: a real key if the database has one, else all columns of the table that
    // can be compared.
    std::vector<KeyColumn> key;
    bool isRealKey = false;
    // Columns of the result, including hidden ones, that must be unchanged since the row was read.
    std::vector<int> compared;
    // If false, a statement that changes the row must compare it again itself: a condition with one parameter
    // for each of these.
    bool hasTransactions = true;
    std::vector<KeyColumn> witnesses;

    // The `statement` that find() will probably return, judging by what the session knows about the table.
    // Empty if it can't tell, or if nothing will be hidden. `shown` is the number of the user's columns among
    // `all`.
    static QString likelyStatement(const std::shared_ptr<OdbcConnection> &connection,
                                   const OdbcEngine &engine, const SqlScanner &statement, std::size_t &shown,
                                   std::size_t &all);
    // Lets the next find() ask the catalogue again, because what the session knows about the table is no
    // longer true.
    static void forget(const std::shared_ptr<OdbcConnection> &connection, const SqlScanner &statement);
    static OdbcTarget find(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                           const SqlScanner &statement, const std::vector<FieldInfo> &fields);

private:
    // Sets all members but whyReadOnly, which it sets only if no columns can identify a row. Returns the
    // number of columns in the result, including hidden ones.
    std::size_t findRow(const OdbcEngine &engine, const SqlScanner &scanner,
                        const KOVAVSFDataGridLib::SimpleSelect &select, const OdbcTable &from,
                        const QStringList &shown, const std::vector<FieldInfo> &fields);
};

} // namespace ADODB
