#pragma once

#include "ado/SqlScanner.h"

#include <QtCore/QStringList>

namespace ADODB {

class OdbcConnection;

// What one database engine does in its own way.
struct OdbcEngine
{
    enum class Kind { Other, PostgreSql, MySql, MariaDb, Sqlite, SqlServer, Oracle };

    Kind kind = Kind::Other;
    SqlDialect dialect = SqlDialect::Standard;
    QString quote; // around a name; empty where names can't be quoted
    // Between these two no statement, nor any function that it calls, can change data. Empty where the engine
    // itself keeps functions in a query from that (SQL Server, Oracle) or knows no such thing.
    QString beginReading;
    QString endReading;
    QString lockRow; // behind a SELECT: keeps the row from others until the transaction ends
    // INSERT … RETURNING gives the columns of the new row.
    bool returning = false;
    // A column can hold values of any type, whatever it is declared as.
    bool looseTypes = false;
    // The driver turns dates that it can't hold (infinity, before Christ) into others.
    bool bendsDates = false;

    static OdbcEngine of(const OdbcConnection &connection);

    // `name` in the engine's quotes.
    QString quoted(const QString &name) const;
};

} // namespace ADODB
