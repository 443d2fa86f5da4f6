#pragma once

#include "ado/providers/odbc/OdbcEngine.h"

#include <QtCore/QStringList>

#include <utility>
#include <vector>

namespace ADODB {

class ConnectionString;

// An ADO connection string, translated to ODBC.
class OdbcLogin
{
public:
    // Throws 3001 if a time limit is not a number.
    explicit OdbcLogin(const ConnectionString &connection);

    // The connection string for the driver manager. Contains the password.
    QString text() const;
    QStringList secrets() const; // in the forms in which a driver's message could contain them
    int connectTimeout() const
    {
        return m_connectTimeout;
    } // seconds, ADO's 15 unless given; 0 for the driver's own
    int commandTimeout() const { return m_commandTimeout; } // seconds, 0 for none

    // The engine of the named driver, as far as it is known before connecting.
    OdbcEngine::Kind likelyEngine() const { return m_likelyEngine; }
    // Adds the engine's defaults: fetching in portions, no truncation, real Booleans. Keywords that are
    // already in the text are kept. Returns false if nothing was added.
    bool addDefaults(OdbcEngine::Kind engine);
    // The rows to fetch at a time, from the keyword of
    // PostgreSQL's driver (after addDefaults()); 0 for all.
    int portion() const;
    QString dataSource() const { return value(u"DSN"); }
    // Throws 3706 if the text names a driver that is not installed. The driver manager lists the drivers
    // slowly, so use this only to explain a failed connection.
    void checkDriver() const;
    // Throws 3002 if SQLite's driver is to open a missing file, a pipe or a device. On a pipe it waits for
    // ever, and /dev/zero is an endless file to it. A file that only a data source names is not known here.
    void checkFile() const;

private:
    QString value(QStringView keyword) const;
    bool contains(QStringView keyword) const;
    void put(const QString &keyword, const QString &value);
    void take(const ConnectionString &connection);
    void adaptToMariaDb();
    OdbcEngine::Kind engineOfDriver() const;

    std::vector<std::pair<QString, QString>> m_parts;
    int m_connectTimeout = 0;
    int m_commandTimeout = 0;
    OdbcEngine::Kind m_likelyEngine = OdbcEngine::Kind::Other;
};

} // namespace ADODB
