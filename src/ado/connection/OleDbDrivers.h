#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

// The OLE DB providers that connection strings name, and the ODBC drivers that reach the same databases.
namespace ADODB {

class ConnectionString;

enum class OleDbKind { Odbc, SqlServer, Oracle, Access };

// The database that a provider is for, by its name in any letter case, with or without a version
// (`SQLOLEDB.1`). Nothing for a provider that is not known.
std::optional<OleDbKind> oleDbKind(const QString &provider);

// Whether a connection string leads to an ODBC driver: by its provider or, when it names none, by a driver or
// a data source.
bool leadsToOdbc(const ConnectionString &connection);

// The known providers of servers, as a message lists them.
QStringList oleDbServerProviders();

struct OdbcDriver
{
    // Drivers for one database differ in their keywords.
    enum class Words { Microsoft, FreeTds, Oracle, MicrosoftOracle, Access };

    QString name; // as installed
    Words words = Words::Microsoft;
    int version = 0; // as its name says; 0 when it says none

    // Encrypts unless the connection string says no, and knows the word Strict.
    bool encryptsByDefault() const { return words == Words::Microsoft && version >= 18; }
};

// The best of the installed drivers, nothing when none of them is for this kind of database: for SQL Server
// the newest "ODBC Driver … for SQL Server", then the native clients, the one that Windows brings, FreeTDS;
// for Oracle the newest of Oracle's own, then Microsoft's; for Access the one that also reads .accdb.
std::optional<OdbcDriver> bestDriver(OleDbKind kind, const QStringList &installed);

// What to install where there is none.
QString driverToInstall(OleDbKind kind);

} // namespace ADODB
