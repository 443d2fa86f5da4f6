#include "database/Catalogue.h"

#include <KOVAVSFDataGridLib/ado/Connection.h>
#include <KOVAVSFDataGridLib/ado/ConnectionFactory.h>
#include <KOVAVSFDataGridLib/ado/ConnectionString.h>

#include <QtCore/QFile>

using namespace Qt::StringLiterals;

std::vector<Catalogue::Table> Catalogue::read(const QString &connection, qint32 dbType)
{
    const auto opened = ADODB::ConnectionFactory::connectionFor(dbType);
    opened->Open(connection);
    std::vector<Table> tables;
    for (const ADODB::Connection::Table &table : opened->Tables()) {
        QString caption = table.name;
        QString name = opened->WrittenName(table.name);
        if (!table.schema.isEmpty()) {
            caption.prepend(table.schema + u'.');
            name.prepend(opened->WrittenName(table.schema) + u'.');
        }
        tables.push_back({caption, name, table.isView});
    }
    return tables;
}

QString Catalogue::statementFor(const QString &writtenName)
{
    return u"select * from "_s + writtenName;
}

std::optional<QString> Catalogue::connectionForFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray head = file.read(32);
    QString provider;
    if (head.startsWith("SQLite format 3"))
        provider = u"SQLite"_s;
    else if (head.mid(4).startsWith("Standard Jet DB") || head.mid(4).startsWith("Standard ACE DB"))
        provider = u"Microsoft.Jet.OLEDB.4.0"_s;
    else
        return {};
    ADODB::ConnectionString connection;
    connection.set(u"Provider"_s, provider);
    connection.set(u"Data Source"_s, path);
    return connection.text();
}
