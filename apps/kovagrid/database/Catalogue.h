#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

// Lists the tables of a database.
namespace Catalogue {

struct Table
{
    QString caption;
    QString name; // its form in SQL
    bool isView = false;
};

// The tables and views of a connection, by name. Throws ADODB::Error.
std::vector<Table> read(const QString &connection, qint32 dbType);

QString statementFor(const QString &writtenName);

// The connection string for a database file; no value for any other file.
std::optional<QString> connectionForFile(const QString &path);

} // namespace Catalogue
