#pragma once

#include "ado/providers/odbc/OdbcEngine.h"

#include <QtCore/QStringList>

#include <utility>
#include <vector>

namespace ADODB {

class ConnectionString;

// What an ADO connection string asks for, in the words of ODBC.
class OdbcLogin
{
public:
    // Throws 3001 for a time limit that is no number.
    explicit OdbcLogin(const ConnectionString &connection);

    // The text for the driver manager. It holds the password.
    QString text() const;
    QStringList secrets() const; // as they could stand in a driver's message
    int connectTimeout() const
    {
        return m_connectTimeout;
    } // seconds, ADO's 15 unless given; 0 for the driver's own
    int commandTimeout() const { return m_commandTimeout; } // seconds, 0 for none

    // The engine of the driver that the text names, as far as it is known before connecting.
    OdbcEngine::Kind likelyEngine() const { return m_likelyEngine; }
    // Adds what the engine's driver needs in order to fetch a result in portions, to cut nothing and to call
    // a Boolean one; what the text says itself stays. False when it was all there already.
    bool addDefaults(OdbcEngine::Kind engine);
    // How many rows of a result to fetch at once, as the text says in the words of PostgreSQL's driver once
    // the defaults are in it; 0 for all.
    int portion() const;
    QString dataSource() const { return value(u"DSN"); }
    // Throws 3706 if the text names a driver that is not installed. The driver manager takes longer and
    // longer to list the drivers, so this is for explaining why it could not connect.
    void checkDriver() const;
    // Throws 3002 if SQLite's driver is to open a missing file, a pipe or a device. On a pipe it waits for ever,
    // and /dev/zero is an endless file to it. A file that only a data source names is not known here.
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
