#include "control/connection/ConnectionSettings.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;
using Kind = ConnectionTarget::Kind;

namespace {

// The keywords of each field. The first one is used for writing.
const QStringList providerKeywords{u"Provider"_s};
const QStringList fileKeywords{u"Data Source"_s};
const QStringList dataSourceKeywords{u"DSN"_s};
const QStringList driverKeywords{u"Driver"_s};
const QStringList serverKeywords{u"Server"_s, u"ServerName"_s};
const QStringList portKeywords{u"Port"_s};
const QStringList databaseKeywords{u"Database"_s, u"Initial Catalog"_s};
const QStringList userKeywords{u"UID"_s, u"User ID"_s};

QString valueOf(const ADODB::ConnectionString &connection, const QStringList &keywords)
{
    for (const QString &keyword : keywords) {
        if (connection.contains(keyword))
            return connection.value(keyword);
    }
    return {};
}

ConnectionTarget targetOf(const ADODB::ConnectionString &connection)
{
    if (const QString name = valueOf(connection, dataSourceKeywords); !name.isEmpty())
        return {Kind::DataSource, name};
    if (const QString name = valueOf(connection, driverKeywords); !name.isEmpty())
        return {Kind::Driver, name};
    const ADODB::Provider *provider = ADODB::providerOf(connection);
    if (!provider || !provider->fileChoice())
        provider = fileProviders().front();
    return {Kind::File, provider->name()};
}

} // namespace

// The last provider accepts what no other one does.
std::vector<const ADODB::Provider *> fileProviders()
{
    std::vector<const ADODB::Provider *> found = ADODB::providers();
    std::erase_if(found, [](const ADODB::Provider *provider) { return !provider->fileChoice(); });
    std::ranges::reverse(found);
    return found;
}

ADODB::FileChoice fileChoiceOf(const ConnectionTarget &target)
{
    for (const ADODB::Provider *provider : fileProviders()) {
        if (provider->name() == target.name)
            return provider->fileChoice().value_or(ADODB::FileChoice());
    }
    return {};
}

QStringList ConnectionTarget::passwordKeywords() const
{
    if (kind != Kind::File)
        return {u"PWD"_s, u"Password"_s};
    const QString keyword = fileChoiceOf(*this).passwordKeyword;
    return keyword.isEmpty() ? QStringList() : QStringList(keyword);
}

ConnectionSettings ConnectionSettings::read(const ADODB::ConnectionString &connection)
{
    ConnectionSettings settings;
    settings.target = targetOf(connection);
    settings.file = settings.target.isFile() ? valueOf(connection, fileKeywords) : QString();
    settings.server = valueOf(connection, serverKeywords);
    settings.port = valueOf(connection, portKeywords);
    settings.database = valueOf(connection, databaseKeywords);
    settings.user = valueOf(connection, userKeywords);
    settings.password = valueOf(connection, settings.target.passwordKeywords());
    return settings;
}

ADODB::ConnectionString ConnectionSettings::write(const ADODB::ConnectionString &others) const
{
    ADODB::ConnectionString connection = others;
    const auto put = [&](const QStringList &keywords, const QString &value) {
        for (const QString &keyword : keywords)
            connection.remove(keyword);
        if (!value.isEmpty())
            connection.set(keywords.first(), value);
    };
    const bool isDriver = target.kind == Kind::Driver;
    const bool isDataSource = target.kind == Kind::DataSource;
    // A provider of this library reads a file. Everything else uses ODBC, which needs no Provider keyword.
    put(providerKeywords, target.isFile() ? target.name : QString());
    put(fileKeywords, target.isFile() ? file : QString());
    put(dataSourceKeywords, isDataSource ? target.name : QString());
    put(driverKeywords, isDriver ? target.name : QString());
    if (isDriver) {
        put(serverKeywords, server);
        put(portKeywords, port);
        put(databaseKeywords, database);
    }
    if (!target.isFile())
        put(userKeywords, user);
    if (target.takesPassword())
        put(target.passwordKeywords(), password);
    return connection;
}

} // namespace KOVAVSFDataGridLib
