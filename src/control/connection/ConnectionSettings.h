#pragma once

#include "ado/ConnectionString.h"
#include "ado/providers/Provider.h"

#include <QtCore/QStringList>

#include <vector>

namespace KOVAVSFDataGridLib {

// The way in which a connection is made.
struct ConnectionTarget
{
    enum class Kind { File, DataSource, Driver };

    Kind kind = Kind::File;
    QString name; // of a file's provider, or of the ODBC data source or driver

    bool isFile() const { return kind == Kind::File; }
    // The keywords for its password; the first one is used for writing. Empty if it has no password.
    QStringList passwordKeywords() const;
    bool takesPassword() const { return !passwordKeywords().isEmpty(); }
    bool operator==(const ConnectionTarget &) const = default;
};

// The providers whose databases are files. The first one is for files whose provider is unknown.
std::vector<const ADODB::Provider *> fileProviders();
// How the provider of a file target is presented; default values if there is no such provider.
ADODB::FileChoice fileChoiceOf(const ConnectionTarget &target);

// A connection string, split into the fields of a form.
struct ConnectionSettings
{
    ConnectionTarget target;
    QString file; // for a file target
    QString server;
    QString port;
    QString database;
    QString user;
    QString password;

    static ConnectionSettings read(const ADODB::ConnectionString &connection);
    // The connection string for these settings. Keywords of `others` that no field shows are kept.
    ADODB::ConnectionString write(const ADODB::ConnectionString &others = {}) const;
};

} // namespace KOVAVSFDataGridLib
