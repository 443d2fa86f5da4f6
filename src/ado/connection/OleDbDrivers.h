#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

// OLE DB providers in connection strings, and the ODBC drivers that reach the same databases.
namespace ADODB {

class ConnectionString;

enum class OleDbKind { Odbc, SqlServer, Oracle, Access };

// The database of a provider, by the provider's name (case-insensitive), with or without a version
// (`SQLOLEDB.1`). Empty for an unknown provider.
std::optional<OleDbKind> oleDbKind(const QString &provider);

// Whether a connection string is for an ODBC driver: by its provider or, without one, by a driver or a data
// source.
bool leadsToOdbc(const ConnectionString &connection);

// The known providers for servers, as listed in messages.
QStringList oleDbServerProviders();

struct OdbcDriver
{
    // The keyword set. Drivers for the same database use different keywords.
    enum class Words { Microsoft, FreeTds, Oracle, MicrosoftOracle, Access };

    QString name; // as installed
    Words words = Words::Microsoft;
    int version = 0; // from its name; 0 if there is none

    // Whether it encrypts by default and accepts the value Strict.
    bool encryptsByDefault() const { return words == Words::Microsoft && version >= 18; }
};

// The best installed driver for this kind of database; empty if there is none. For SQL Server: the newest
// "ODBC Driver … for SQL Server", then the native clients, the driver included in Windows, FreeTDS. For
// Oracle: the newest of Oracle's own, then Microsoft's. For Access: the one that also reads .accdb.
std::optional<OdbcDriver> bestDriver(OleDbKind kind, const QStringList &installed);

// The driver to install if there is none.
QString driverToInstall(OleDbKind kind);

} // namespace ADODB
