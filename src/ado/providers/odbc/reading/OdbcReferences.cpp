#include "ado/providers/odbc/reading/OdbcReferences.h"

#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcCatalogueAnswers.h"

namespace ADODB {

namespace {

std::optional<TableColumn> referenceIn(const std::shared_ptr<OdbcConnection> &connection,
                                       const OdbcEngine &engine, const TableColumn &column)
{
    // What these engines call a schema is a catalogue in ODBC.
    const bool hasCatalogues =
        engine.kind == OdbcEngine::Kind::MySql || engine.kind == OdbcEngine::Kind::MariaDb;
    const OdbcTableName name{.catalog = hasCatalogues ? column.schema : QString(),
                             .schema = hasCatalogues ? QString() : column.schema,
                             .table = column.table};
    std::optional<TableColumn> found;
    forEachAnswer(
        connection,
        [&](SQLHSTMT statement) {
            return askFor(name, [&](auto... parts) {
                return SQLForeignKeysW(statement, nullptr, 0, nullptr, 0, nullptr, 0, parts...);
            });
        },
        {1, 2, 3, 4, 8},
        [&](const QStringList &row) {
            const bool isIt = row.at(4).compare(column.column, Qt::CaseInsensitive) == 0;
            if (isIt && !found && !row.at(3).isEmpty())
                found = TableColumn{row.at(hasCatalogues ? 0 : 1), row.at(2), row.at(3)};
        });
    return found;
}

} // namespace

std::optional<TableColumn> odbcReference(const std::shared_ptr<OdbcConnection> &connection,
                                         const OdbcEngine &engine, const TableColumn &column)
{
    if (auto found = referenceIn(connection, engine, column))
        return found;
    // The name is from the statement if the driver doesn't report which column a value comes from.
    const SQLUSMALLINT identifierCase = connection->shortNumber(SQL_IDENTIFIER_CASE);
    const TableColumn stored{storedName(column.schema, false, identifierCase),
                             storedName(column.table, false, identifierCase), column.column};
    if (stored.table == column.table && stored.schema == column.schema)
        return std::nullopt;
    return referenceIn(connection, engine, stored);
}

} // namespace ADODB
