#pragma once

#include "ado/ConnectionString.h"

#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// What a connection is made through.
struct ConnectionTarget
{
    enum class Kind { SqliteFile, AccessFile, DataSource, Driver };

    Kind kind = Kind::SqliteFile;
    QString name; // of the ODBC data source or driver

    bool isFile() const { return kind == Kind::SqliteFile || kind == Kind::AccessFile; }
    // Under which its password stands; the first is the one that is written. None where it has no password.
    QStringList passwordKeywords() const;
    bool takesPassword() const { return !passwordKeywords().isEmpty(); }
    bool operator==(const ConnectionTarget &) const = default;
};

// A connection string as the fields of a form.
struct ConnectionSettings
{
    ConnectionTarget target;
    QString file; // of a file target
    QString server;
    QString port;
    QString database;
    QString user;
    QString password;

    static ConnectionSettings read(const ADODB::ConnectionString &connection);
    // The connection string of these settings. Keywords of `others` that no field shows are kept.
    ADODB::ConnectionString write(const ADODB::ConnectionString &others = {}) const;
};

} // namespace KOVAVSFDataGridLib
