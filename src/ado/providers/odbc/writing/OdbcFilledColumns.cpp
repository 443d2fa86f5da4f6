#include "ado/providers/odbc/writing/OdbcFilledColumns.h"

#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcCatalogueAnswers.h"
#include "sql/Names.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// The catalogue of ODBC has no place for an identity or a computed column, so the engine's own one is asked.
QStringList fromSchema(const std::shared_ptr<OdbcConnection> &connection, const TableColumn &table,
                       const QString &usualSchema, const QString &isFilled)
{
    const auto literal = [](const QString &text) { return KOVAVSFDataGridLib::enclosed(u'\'', text, u'\''); };
    if (table.table.contains(u'\\') || table.schema.contains(u'\\'))
        return {}; // which begins an escape here and not there
    const QString statement = "SELECT column_name FROM information_schema.columns WHERE table_name = "_L1 +
                              literal(table.table) + " AND table_schema "_L1 +
                              (table.schema.isEmpty() ? usualSchema : "= "_L1 + literal(table.schema)) +
                              " AND ("_L1 + isFilled + u')';
    QStringList columns;
    forEachAnswer(
        connection, [&](SQLHSTMT handle) { return SQLExecDirectW(handle, wide(statement), SQL_NTS); }, {1},
        [&](const QStringList &row) { columns += row.at(0); });
    return columns;
}

// Of a driver that tells a counted column by its type: "int identity", "COUNTER".
QStringList fromCatalogue(const std::shared_ptr<OdbcConnection> &connection, const TableColumn &table)
{
    const OdbcTableName name{.catalog = {}, .schema = table.schema, .table = table.table};
    QStringList columns;
    forEachAnswer(
        connection,
        [&](SQLHSTMT statement) {
            return askFor(name, [&](auto... parts) { return SQLColumnsW(statement, parts..., nullptr, 0); });
        },
        {3, 4, 6, 13},
        [&](const QStringList &row) {
            const bool isIt = row.at(0).compare(table.table, Qt::CaseInsensitive) == 0;
            const bool isCounted = row.at(2).contains("identity"_L1, Qt::CaseInsensitive) ||
                                   row.at(2).compare("COUNTER"_L1, Qt::CaseInsensitive) == 0;
            const bool hasDefault =
                !row.at(3).isEmpty() && row.at(3).compare("NULL"_L1, Qt::CaseInsensitive) != 0;
            if (isIt && (isCounted || hasDefault))
                columns += row.at(1);
        });
    return columns;
}

} // namespace

QStringList odbcFilledColumns(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                              const TableColumn &table)
{
    switch (engine.kind) {
    case OdbcEngine::Kind::PostgreSql:
        return fromSchema(connection, table, u"= ANY (current_schemas(true))"_s,
                          u"column_default IS NOT NULL OR is_identity = 'YES' OR is_generated <> 'NEVER'"_s);
    case OdbcEngine::Kind::MySql:
    case OdbcEngine::Kind::MariaDb:
        return fromSchema(
            connection, table, u"= DATABASE()"_s,
            u"column_default IS NOT NULL OR extra LIKE '%auto_increment%' OR extra LIKE '%GENERATED%'"_s);
    default:
        return fromCatalogue(connection, table);
    }
}

} // namespace ADODB
