#pragma once

#include "sql/SqlScanner.h"

#include <QtCore/QStringList>

namespace ADODB {

using KOVAVSFDataGridLib::SqlDialect;
using KOVAVSFDataGridLib::SqlQuoting;

class OdbcConnection;

// What one database engine does in its own way.
struct OdbcEngine
{
    enum class Kind { Other, PostgreSql, MySql, MariaDb, Sqlite, SqlServer, Oracle };

    Kind kind = Kind::Other;
    QString dbmsName; // as the driver gives it
    SqlDialect dialect = SqlDialect::Standard;
    SqlQuoting quoting;
    QString quote; // around a name; empty where names can't be quoted
    // Between these two no statement, nor any function that it calls, can change data. Empty where the engine
    // itself keeps functions in a query from that (SQL Server, Oracle) or knows no such thing.
    QString beginReading;
    QString endReading;
    // Results are fetched in portions, from a cursor in the server that ends with the transaction.
    // PostgreSQL's driver has cursors of its own, but it crashes when the server goes away while it fetches
    // more rows from one.
    bool usesPortions = false;
    int portion = 0; // how many rows; 0 for all
    // After beginReading: has the engine plan queries for all their rows, as they are read. Not every engine
    // that goes by the name knows it.
    QString planForAllRows;
    // Before a query that somebody else's lock holds up: the statement that takes what the query needs and
    // runs nothing. Empty where a query can be stopped while it is prepared.
    QString explain;
    // Has the server itself end a wait for a lock after %1 milliseconds of this transaction, for calls that
    // the driver can't stop; empty where there are none.
    QString limitLocks;
    QString lockRow;   // after a SELECT: keeps the row from others until the transaction ends
    QString lockTable; // the same, after the table in a SELECT
    // The column, not shown by *, that the engine changes whenever it changes the row; empty where there is
    // none.
    QString rowVersion;
    // Tables can be of a kind that knows no transactions.
    bool hasOldTables = false;
    // INSERT … RETURNING gives the columns of the new row.
    bool returning = false;
    // Otherwise the statement that gives the key which the database made for the row just inserted here;
    // empty where there is none.
    QString newKey;
    // A new row can be given a key that the database makes otherwise; behind the names of the columns in
    // INSERT stands `overrideKey` then, which may be empty.
    bool takesMadeKeys = false;
    QString overrideKey;
    // A column can hold values of any type, whatever it is declared as.
    bool looseTypes = false;
    // A cancel ends what runs in the whole connection, and takes from its own statement the rows that another
    // thread may still be reading.
    bool cancelTakesRows = false;
    // Within a block of rows, the driver gives single values once more and then fetches on where it was. Some
    // claim that and lose rows instead, so only those count that were tried.
    bool asksAgain = false;
    // The catalogue names no key of anything but a table.
    bool onlyTablesHaveKeys = false;
    // The driver reports a loss that it knows of without asking the server.
    bool reportsLossAtOnce = true;
    // The driver turns dates that it can't hold (infinity, before Christ) into others.
    bool bendsDates = false;

    static OdbcEngine of(const OdbcConnection &connection);
    // By a name of the engine or of its driver.
    static Kind kindNamed(const QString &name);

    // Its databases are on a server, and the same ones for each connection of a login.
    bool isServer() const { return kind != Kind::Other && kind != Kind::Sqlite; }
    // `name` in the engine's quotes.
    QString quoted(const QString &name) const;
};

} // namespace ADODB
