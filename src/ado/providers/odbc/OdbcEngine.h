#pragma once

#include "sql/SqlScanner.h"

#include <QtCore/QStringList>

namespace ADODB {

using KOVAVSFDataGridLib::SqlDialect;
using KOVAVSFDataGridLib::SqlQuoting;

class OdbcConnection;

// How one database engine differs from the others.
struct OdbcEngine
{
    enum class Kind { Other, PostgreSql, MySql, MariaDb, Sqlite, SqlServer, Oracle };

    Kind kind = Kind::Other;
    QString dbmsName; // as the driver reports it
    SqlDialect dialect = SqlDialect::Standard;
    SqlQuoting quoting;
    QString quote; // around a name; empty if names can't be quoted
    // Between these two, no statement and no function called by one can change data. Empty if functions in a
    // query can't change data anyway (SQL Server, Oracle), or if the engine has no such mode.
    QString beginReading;
    QString endReading;
    // Results are fetched in portions from a server-side cursor, which ends with the transaction.
    // PostgreSQL's driver has cursors of its own, but crashes if the server goes away while it fetches more
    // rows from one.
    bool usesPortions = false;
    int portion = 0; // rows per portion; 0 for all
    // Run after beginReading: makes the engine plan queries for reading all rows. Not every engine that
    // reports this name supports it.
    QString planForAllRows;
    // Run before a query that is blocked by another session's lock: takes the same locks without running the
    // query. Empty if a query can be cancelled while it is being prepared.
    QString explain;
    // Makes the server give up waiting for a lock after %1 milliseconds in this transaction, for calls that
    // the driver can't cancel. Empty if there are none.
    QString limitLocks;
    QString lockRow;   // after a SELECT: locks the row until the transaction ends
    QString lockTable; // the same, after the table name in a SELECT
    // A column, not included in *, that the engine changes with every change of the row; empty if there is
    // none.
    QString rowVersion;
    // Some tables may not support transactions.
    bool hasOldTables = false;
    // Whether INSERT … RETURNING returns the columns of the new row.
    bool returning = false;
    // If not: the statement that returns the key generated for the row just inserted in this connection;
    // empty if there is none.
    QString newKey;
    // Whether INSERT accepts an explicit value for a generated key. `overrideKey` then follows the column
    // list; it may be empty.
    bool takesMadeKeys = false;
    QString overrideKey;
    // Whether a column can contain values of any type, whatever its declared type.
    bool looseTypes = false;
    // Whether a cancel ends whatever runs in the connection, including the rows of its own statement that
    // another thread may still be reading.
    bool cancelTakesRows = false;
    // Whether the driver can return single values of a fetched block again and then continue after the block.
    // Some drivers claim it but lose rows, so this is set only for drivers that were tested.
    bool asksAgain = false;
    // Whether the catalogue lists keys only for tables.
    bool onlyTablesHaveKeys = false;
    // Whether the driver reports a known loss without asking the server.
    bool reportsLossAtOnce = true;
    // Whether the driver replaces dates that it can't represent (infinity, BC) with others.
    bool bendsDates = false;

    static OdbcEngine of(const OdbcConnection &connection);
    // By the name of the engine or of its driver.
    static Kind kindNamed(const QString &name);

    // Whether its databases are on a server and the same for all connections of a login.
    bool isServer() const { return kind != Kind::Other && kind != Kind::Sqlite; }
    // `name`, quoted for this engine.
    QString quoted(const QString &name) const;
};

} // namespace ADODB
