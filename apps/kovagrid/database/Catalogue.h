#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

// What a database has to show.
namespace Catalogue {

struct Table
{
    QString caption;
    QString name; // as a statement writes it
    bool isView = false;
};

// The tables and views of a connection, by name. Throws ADODB::Error.
std::vector<Table> read(const QString &connection, qint32 dbType);

QString statementFor(const QString &writtenName);

// The connection string for a file of a database; nothing for any other file.
std::optional<QString> connectionForFile(const QString &path);

} // namespace Catalogue
