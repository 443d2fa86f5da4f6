#pragma once

#include "ado/ConnectionString.h"
#include "ado/providers/Provider.h"

#include <QtCore/QStringList>

#include <vector>

namespace KOVAVSFDataGridLib {

// What a connection is made through.
struct ConnectionTarget
{
    enum class Kind { File, DataSource, Driver };

    Kind kind = Kind::File;
    QString name; // of the provider of a file, of the ODBC data source or driver

    bool isFile() const { return kind == Kind::File; }
    // Under which its password stands; the first is the one that is written. None where it has no password.
    QStringList passwordKeywords() const;
    bool takesPassword() const { return !passwordKeywords().isEmpty(); }
    bool operator==(const ConnectionTarget &) const = default;
};

// The providers whose databases are files. The first one takes a file whose provider is unknown.
std::vector<const ADODB::Provider *> fileProviders();
// How the provider of a file target is offered; nothing in particular for one that is not there.
ADODB::FileChoice fileChoiceOf(const ConnectionTarget &target);

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
