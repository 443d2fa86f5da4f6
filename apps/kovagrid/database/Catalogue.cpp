#include "database/Catalogue.h"

#include <KOVAVSFDataGridLib/ado/Connection.h>
#include <KOVAVSFDataGridLib/ado/ConnectionFactory.h>
#include <KOVAVSFDataGridLib/ado/ConnectionString.h>
#include <KOVAVSFDataGridLib/ado/Recordset.h>

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

bool isEngine(const QString &engine, QLatin1StringView word)
{
    return engine.contains(word, Qt::CaseInsensitive);
}

bool isMariaDb(const QString &engine)
{
    return isEngine(engine, "MariaDB"_L1) || isEngine(engine, "MySQL"_L1);
}

// Three columns: the schema or nothing, the name, and "view" for a view. The first is plain enough for
// Access's SQL, too.
QString statementOfTables(const QString &engine)
{
    if (isEngine(engine, "SQLite"_L1))
        return u"select '', name, type from sqlite_master where type in ('table', 'view') order by name"_s;
    if (isEngine(engine, "Oracle"_L1)) {
        return u"select '' s, TABLE_NAME n, 'table' v from USER_TABLES "
               "union all select '', VIEW_NAME, 'view' from USER_VIEWS order by 2"_s;
    }
    QString schema = u"table_schema"_s;
    QString where = u"table_schema not in ('pg_catalog', 'information_schema')"_s;
    if (isEngine(engine, "PostgreSQL"_L1)) {
        schema = u"case when table_schema = current_schema() then '' else table_schema end"_s;
    } else if (isMariaDb(engine)) {
        schema = u"''"_s;
        where = u"table_schema = database()"_s;
    } else if (isEngine(engine, "SQL Server"_L1)) {
        schema = u"case when table_schema = schema_name() then '' else table_schema end"_s;
    }
    return u"select %1 as s, table_name as n, case when table_type like '%VIEW' then 'view' else 'table' end "
           u"as v "
           "from information_schema.tables where %2 order by 1, 2"_s.arg(schema, where);
}

} // namespace

QString Catalogue::written(const QString &name, const QString &engine)
{
    static const QRegularExpression plain(u"^[\\p{L}_][\\p{L}\\p{N}_]*$"_s);
    static const QStringList keywords{
        u"all"_s,   u"by"_s,    u"check"_s,  u"default"_s, u"desc"_s,  u"from"_s,      u"group"_s,
        u"in"_s,    u"index"_s, u"join"_s,   u"key"_s,     u"left"_s,  u"like"_s,      u"limit"_s,
        u"order"_s, u"right"_s, u"row"_s,    u"select"_s,  u"set"_s,   u"table"_s,     u"to"_s,
        u"union"_s, u"user"_s,  u"values"_s, u"view"_s,    u"where"_s, u"references"_s};
    const bool isFolded = (isEngine(engine, "PostgreSQL"_L1) && name != name.toLower()) ||
                          (isEngine(engine, "Oracle"_L1) && name != name.toUpper());
    if (plain.match(name).hasMatch() && !isFolded && !keywords.contains(name, Qt::CaseInsensitive))
        return name;
    if (isMariaDb(engine))
        return u'`' + QString(name).replace(u'`', u"``"_s) + u'`';
    const bool hasBrackets = isEngine(engine, "SQLite"_L1) || isEngine(engine, "SQL Server"_L1);
    if (hasBrackets && !name.contains(u']'))
        return u'[' + name + u']';
    return u'"' + QString(name).replace(u'"', u"\"\""_s) + u'"';
}

std::vector<Catalogue::Table> Catalogue::read(const QString &connection, qint32 dbType)
{
    const auto opened = ADODB::ConnectionFactory::connectionFor(dbType);
    opened->Open(connection);
    const QString engine = opened->EngineName();
    ADODB::Recordset found;
    found.Open(statementOfTables(engine), opened);
    std::vector<Table> tables;
    for (qint64 record = 1; record <= found.RecordCount(); ++record) {
        const QString schema = found.CellText(record, 0);
        const QString name = found.CellText(record, 1);
        if (name.startsWith("sqlite_"_L1))
            continue; // the engine's own
        const QString dot = schema.isEmpty() ? QString() : u"."_s;
        const QString whole =
            (schema.isEmpty() ? QString() : written(schema, engine)) + dot + written(name, engine);
        tables.push_back({schema + dot + name, whole, found.CellText(record, 2) == "view"_L1});
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
