#include "ado/providers/odbc/writing/OdbcTable.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcDescription.h"
#include "ado/providers/odbc/reading/OdbcQuery.h"
#include "ado/providers/odbc/reading/OdbcReading.h"
#include "ado/providers/odbc/writing/OdbcParameters.h"
#include "ado/rows/RowStore.h"
#include "sql/select/SimpleSelect.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

OdbcTableName fullNameOf(const OdbcTableFields &all, const OdbcConnection &connection,
                         const SimpleSelect &select)
{
    OdbcTableName name{all.catalog, all.schema, all.fields.front().baseTable};
    if (name.table.isEmpty()) {
        const bool quoted = !select.tableText.endsWith(select.table);
        const SQLUSMALLINT identifierCase = connection.shortNumber(SQL_IDENTIFIER_CASE);
        name.table = storedName(select.table, quoted, identifierCase);
        name.schema = storedName(select.schema, quoted, identifierCase);
    }
    return name;
}

// For functions whose arguments are search patterns.
OdbcTableName asPattern(OdbcTableName name, const OdbcConnection &connection)
{
    const QString escape = connection.info(SQL_SEARCH_PATTERN_ESCAPE);
    for (const QString &special : {escape, u"_"_s, u"%"_s}) {
        if (!escape.isEmpty())
            name.table.replace(special, escape + special);
    }
    return name;
}

// Empty if it is not a table.
QString tableType(const std::shared_ptr<OdbcConnection> &connection, const OdbcTableName &name)
{
    QString type;
    forEachAnswer(
        connection,
        [&](SQLHSTMT statement) {
            return askFor(asPattern(name, *connection),
                          [&](auto... parts) { return SQLTablesW(statement, parts..., nullptr, 0); });
        },
        {3, 4},
        [&](const QStringList &row) {
            if (type.isEmpty() && row.at(0).compare(name.table, Qt::CaseInsensitive) == 0 &&
                row.at(1).endsWith("TABLE"_L1, Qt::CaseInsensitive))
                type = row.at(1);
        });
    return type;
}

QStringList primaryKey(const std::shared_ptr<OdbcConnection> &connection, const OdbcTableName &name)
{
    QStringList key;
    forEachAnswer(
        connection,
        [&](SQLHSTMT statement) {
            return askFor(name, [&](auto... parts) { return SQLPrimaryKeysW(statement, parts...); });
        },
        {4}, [&](const QStringList &row) { key += row.at(0); });
    return key;
}

// The columns of the first unique index that covers every row. An index with Nulls or with a condition does
// not.
QStringList uniqueIndex(const std::shared_ptr<OdbcConnection> &connection, const OdbcTableName &name,
                        const QStringList &neverNull)
{
    struct Index
    {
        QString name;
        QStringList columns;
        bool usable = true;
    };
    std::vector<Index> indexes;
    forEachAnswer(
        connection,
        [&](SQLHSTMT statement) {
            return askFor(name, [&](auto... parts) {
                return SQLStatisticsW(statement, parts..., SQL_INDEX_UNIQUE, SQL_QUICK);
            });
        },
        {6, 9, 13},
        [&](const QStringList &row) {
            if (row.at(0).isEmpty()) // a row about the table itself
                return;
            if (indexes.empty() || indexes.back().name != row.at(0))
                indexes.push_back({row.at(0), {}});
            indexes.back().columns += row.at(1);
            if (!neverNull.contains(row.at(1)) || !row.at(2).isEmpty())
                indexes.back().usable = false;
        });
    const auto found =
        std::find_if(indexes.begin(), indexes.end(), [](const Index &index) { return index.usable; });
    return found == indexes.end() ? QStringList() : found->columns;
}

QStringList neverNull(const std::shared_ptr<OdbcConnection> &connection, const OdbcTableName &name)
{
    QStringList columns;
    forEachAnswer(
        connection,
        [&](SQLHSTMT statement) {
            return askFor(asPattern(name, *connection),
                          [&](auto... parts) { return SQLColumnsW(statement, parts..., nullptr, 0); });
        },
        {4, 11},
        [&](const QStringList &row) {
            if (row.at(1) == QString::number(SQL_NO_NULLS))
                columns += row.at(0);
        });
    return columns;
}

// Without fields if the table can't be read as a whole: MariaDB's DUAL, or a table of which the user may see
// only some columns.
std::shared_ptr<const OdbcTableFields> allFields(const std::shared_ptr<OdbcConnection> &connection,
                                                 const OdbcEngine &engine, const SimpleSelect &select)
{
    if (auto seen = OdbcTableFields::seenLately(*connection, select))
        return seen;
    const OdbcHandle probe(connection);
    try {
        probe.prepare("SELECT * FROM "_L1 + select.tableText);
        return OdbcTableFields::of(probe, describeColumns(probe));
    } catch (const Error &) {
        if (connection->isLost() || !OdbcReading::renew(connection, engine))
            throw;
        return std::make_shared<const OdbcTableFields>();
    }
}

bool isComparable(const FieldInfo &field)
{
    return field.type != adSingle && field.type != adDouble && field.type != adCurrency &&
           (field.attributes & adFldLong) == 0;
}

} // namespace

std::shared_ptr<const OdbcTableFields> OdbcTableFields::of(const OdbcHandle &described,
                                                           const std::vector<FieldInfo> &fields)
{
    return std::make_shared<const OdbcTableFields>(
        OdbcTableFields{fields, described.columnText(0, SQL_DESC_CATALOG_NAME),
                        described.columnText(0, SQL_DESC_SCHEMA_NAME), std::chrono::steady_clock::now()});
}

std::shared_ptr<const OdbcTableFields> OdbcTableFields::seenLately(OdbcConnection &connection,
                                                                   const SimpleSelect &select)
{
    constexpr std::chrono::seconds moment(5);
    const auto seen = connection.tableFields().value(select.tableText);
    return seen && std::chrono::steady_clock::now() - seen->seen < moment ? seen : nullptr;
}

bool OdbcTable::isTransactional(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                                const OdbcTableName &name, const QString &held, int timeout)
{
    QString sql = "SELECT 1 FROM information_schema.TABLES t JOIN information_schema.ENGINES e "
                  "ON e.ENGINE = t.ENGINE WHERE e.TRANSACTIONS = 'YES' AND t.TABLE_NAME = ? "
                  "AND t.TABLE_SCHEMA = "_L1 +
                  (name.catalog.isEmpty() ? u"DATABASE()"_s : u"?"_s);
    if (!held.isEmpty())
        sql += " AND NOT EXISTS (SELECT 1 FROM "_L1 + held + " WHERE 1 = 0)"_L1;
    OdbcQuery query(connection, engine, sql, timeout);
    const QByteArray table = name.table.toUtf8();
    const QByteArray catalog = name.catalog.toUtf8();
    OdbcParameters parameters(query.handle());
    parameters.bind(RawValue::fromText(table), {SQL_WVARCHAR});
    if (!catalog.isEmpty())
        parameters.bind(RawValue::fromText(catalog), {SQL_WVARCHAR});
    RowStore found(1);
    query.read(found, timeout);
    return found.rows() > 0;
}

OdbcTable OdbcTable::find(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                          const SimpleSelect &select)
{
    const auto all = allFields(connection, engine, select);
    const std::vector<FieldInfo> &fields = all->fields;
    OdbcTable table;
    if (fields.empty()) {
        table.whyReadOnly = Texts::readOnlyNoTable();
        return table;
    }
    const OdbcTableName name = fullNameOf(*all, *connection, select);
    // For a view, some drivers report its underlying table. Each query is a round trip to the server, so one
    // whose answer follows from the key is skipped.
    table.fullName = name;
    table.key = primaryKey(connection, name);
    const bool isTable = engine.onlyTablesHaveKeys && !table.key.isEmpty();
    const QString type = isTable ? u"TABLE"_s : tableType(connection, name);
    if (name.table.compare(select.table, Qt::CaseInsensitive) != 0 || type.isEmpty()) {
        table.whyReadOnly = Texts::readOnlyView().arg(select.table);
        table.key.clear();
        return table;
    }
    for (const FieldInfo &field : fields) {
        table.columns += field.name;
        if (isComparable(field))
            table.comparable += field.name;
    }
    table.isOrdinary = type.compare("TABLE"_L1, Qt::CaseInsensitive) == 0;
    table.hasTransactions = !engine.hasOldTables || isTransactional(connection, engine, name, {}, 0);
    table.givesOrigins = !fields.front().baseColumn.isEmpty();
    if (table.key.isEmpty())
        table.key = uniqueIndex(connection, name, neverNull(connection, name));
    if (table.key.isEmpty() && !table.hasTransactions)
        table.whyReadOnly = Texts::readOnlyNoTransaction().arg(select.table);
    return table;
}

} // namespace ADODB
