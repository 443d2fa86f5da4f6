#include "control/connection/BuildConnection.h"

#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Error.h"
#include "ado/connection/OdbcCatalogue.h"
#include "control/connection/ConnectionBuilder.h"
#include "control/connection/ConnectionTexts.h"
#include "forms/Messages.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// The user waits for the result, so an unresponsive server is given up sooner than in a load.
constexpr int secondsToConnect = 10;

QString testConnection(ADODB::Connection &connection, const QString &text)
{
    try {
        ADODB::ConnectionString parts(text);
        if (!parts.contains(u"Connect Timeout"_s))
            parts.set(u"Connect Timeout"_s, QString::number(secondsToConnect));
        connection.Open(parts.text());
        connection.Close();
        return {};
    } catch (const ADODB::Error &error) {
        return error.Description();
    }
}

QStringList dataSourceNames()
{
    QStringList names;
    for (const ADODB::OdbcDataSource &source : ADODB::odbcDataSources())
        names += source.name;
    return names;
}

// A host's factory may have to connect to something first. Null if it failed, after a message to the user.
std::shared_ptr<ADODB::Connection> newConnection(QWidget *parent, qint32 dbType)
{
    try {
        return ADODB::ConnectionFactory::connectionToBuild(dbType);
    } catch (const ADODB::Error &error) {
        Messages::show(parent, ConnectionTexts::NotConnected.arg(error.Description()));
        return nullptr;
    }
}

} // namespace

std::optional<QString> buildConnection(QWidget *parent, const QString &present, qint32 dbType)
{
    const auto connection = newConnection(parent, dbType);
    if (!connection)
        return std::nullopt;
    ConnectionBuilder builder({ADODB::odbcDrivers(), dataSourceNames(),
                               [&](const QString &text) { return testConnection(*connection, text); }},
                              parent);
    builder.SetConnectionString(present);
    if (builder.exec() != QDialog::Accepted)
        return std::nullopt;
    connection->PutConnectionString(builder.connectionString());
    return connection->ConnectionString();
}

} // namespace KOVAVSFDataGridLib
