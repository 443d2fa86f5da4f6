#include "ado/providers/odbc/writing/OdbcTarget.h"

#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/writing/OdbcTable.h"
#include "ado/recordset/ReadOnlyReason.h"
#include "ado/values/FieldValue.h"
#include "sql/SqlScanner.h"
#include "sql/select/SimpleSelect.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SimpleSelect;

namespace {

// Finds a column by its name in a statement; empty if there is none.
QString columnNamed(const OdbcTable &table, const QString &name)
{
    if (table.columns.contains(name))
        return name;
    const auto found = std::find_if(table.columns.begin(), table.columns.end(), [&](const QString &column) {
        return column.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == table.columns.end() ? QString() : *found;
}

// For each field, the column it shows; empty for a computed one. If the driver reports origins, they must
// agree: what looks like a column name can be a string to the database, or a value that a subquery selected.
// An empty list if the items can't be counted.
QStringList shownColumns(const SimpleSelect &select, const OdbcTable &table,
                         const std::vector<FieldInfo> &fields)
{
    QStringList shown;
    for (const SimpleSelect::Item &item : select.items)
        shown += item.all ? table.columns : QStringList(columnNamed(table, item.column));
    if (shown.size() != static_cast<qsizetype>(fields.size()))
        return {};
    for (qsizetype i = 0; table.givesOrigins && i < shown.size(); ++i) {
        const FieldInfo &field = fields[static_cast<std::size_t>(i)];
        if (shown[i] != field.baseColumn || field.baseTable.compare(select.table, Qt::CaseInsensitive) != 0)
            shown[i].clear();
    }
    return shown;
}

// Whether the table still has the same columns, as far as a result can tell.
bool agrees(const OdbcTable &table, const SimpleSelect &select, const std::vector<FieldInfo> &fields)
{
    std::size_t field = 0;
    for (const SimpleSelect::Item &item : select.items) {
        if (!item.all) {
            ++field;
            continue;
        }
        for (const QString &column : table.columns) {
            if (field >= fields.size() || fields[field++].name != column)
                return false;
        }
    }
    return field == fields.size();
}

// Null if its rows can't be written.
std::shared_ptr<const OdbcTable> writableTable(const std::shared_ptr<OdbcConnection> &connection,
                                               const OdbcEngine &engine, const SimpleSelect &select)
{
    const OdbcTable table = OdbcTable::find(connection, engine, select);
    return table.whyReadOnly.isEmpty() ? std::make_shared<const OdbcTable>(table) : nullptr;
}

// Queries the catalogue once per session, and again if the table was altered. A table that can't be written
// is queried every time, because that can change.
OdbcTable tableOf(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                  const SimpleSelect &select, const std::vector<FieldInfo> &fields)
{
    auto &known = connection->tables()[select.tableText];
    if (!known || !agrees(*known, select, fields)) {
        OdbcTable table = OdbcTable::find(connection, engine, select);
        known = table.whyReadOnly.isEmpty() ? std::make_shared<const OdbcTable>(table) : nullptr;
        return table;
    }
    return *known;
}

// Whether it is an aggregate, which returns one row even if there is none. Only the database can tell.
bool folds(const std::shared_ptr<OdbcConnection> &connection, const QString &head)
{
    const OdbcHandle probe(connection);
    probe.execute(head + " WHERE 1 = 0"_L1);
    return probe.fetch();
}

// All columns of the result except those that can differ between two reads. Computed columns are not compared
// either if the row has a version and it is unchanged.
std::vector<int> comparedColumns(const SimpleSelect &select, const OdbcTable &table, const QStringList &shown,
                                 int end, bool hasVersion)
{
    std::vector<bool> restless;
    for (const SimpleSelect::Item &item : select.items)
        restless.insert(restless.end(), item.all ? static_cast<std::size_t>(table.columns.size()) : 1,
                        item.changesByItself);
    std::vector<int> compared;
    for (int i = 0; i < end; ++i) {
        const bool isComputed = i < shown.size() && shown[i].isEmpty();
        if (!isComputed || (!hasVersion && !restless[static_cast<std::size_t>(i)]))
            compared.push_back(i);
    }
    return compared;
}

// MariaDB and MySQL are the only engines with tables that need this. They treat texts as equal that sort
// alike, so the texts are compared as bytes.
QString witness(const QString &name, const FieldInfo &field)
{
    return FieldValue::isText(field.type)
               ? u"CAST(CONVERT(%1 USING utf8mb4) AS BINARY) <=> CAST(CONVERT(? USING utf8mb4) AS BINARY)"_s
                     .arg(name)
               : name + " <=> ?"_L1;
}

} // namespace

void OdbcTarget::forget(const std::shared_ptr<OdbcConnection> &connection, const SqlScanner &statement)
{
    const QString table = SimpleSelect::parse(statement).tableText;
    connection->tables().remove(table);
    connection->tableFields().remove(table);
}

OdbcTarget OdbcTarget::find(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                            const SqlScanner &statement, const std::vector<FieldInfo> &fields)
{
    const SimpleSelect select = SimpleSelect::parse(statement);
    OdbcTarget target;
    target.whyReadOnly = readOnlyReason(select.fault);
    if (!target.whyReadOnly.isEmpty())
        return target;
    const OdbcTable table = tableOf(connection, engine, select, fields);
    target.whyReadOnly = table.whyReadOnly;
    if (!target.whyReadOnly.isEmpty())
        return target;
    const QStringList shown = shownColumns(select, table, fields);
    if (shown.isEmpty()) {
        target.whyReadOnly = Texts::readOnlyJoin();
        return target;
    }
    if (shown.contains(QString()) && folds(connection, statement.sql().left(select.sourceEnd))) {
        target.whyReadOnly = Texts::readOnlyGrouped();
        return target;
    }
    target.findRow(engine, statement, select, table, shown, fields);
    return target;
}

QString OdbcTarget::likelyStatement(const std::shared_ptr<OdbcConnection> &connection,
                                    const OdbcEngine &engine, const SqlScanner &statement, std::size_t &shown,
                                    std::size_t &all)
{
    const SimpleSelect select = SimpleSelect::parse(statement);
    if (select.fault != SimpleSelect::Fault::None)
        return {};
    auto &table = connection->tables()[select.tableText];
    if (!table && OdbcTableFields::seenLately(*connection, select))
        table = writableTable(connection, engine, select);
    if (!table)
        return {};
    QStringList names;
    for (const SimpleSelect::Item &item : select.items)
        names += item.all ? table->columns : QStringList(columnNamed(*table, item.column));
    if (names.contains(QString()))
        return {};
    shown = static_cast<std::size_t>(names.size());
    OdbcTarget target;
    all = target.findRow(engine, statement, select, *table, names, std::vector<FieldInfo>(shown));
    return target.whyReadOnly.isEmpty() ? target.statement : QString();
}

std::size_t OdbcTarget::findRow(const OdbcEngine &engine, const SqlScanner &scanner,
                                const SimpleSelect &select, const OdbcTable &from, const QStringList &shown,
                                const std::vector<FieldInfo> &fields)
{
    const QString &sql = scanner.sql();
    table = select.tableText;
    fullName = from.fullName;
    alias = select.aliasText;
    hasTransactions = from.hasTransactions;
    for (const QString &name : shown)
        columns.push_back(name.isEmpty() ? QString() : engine.quoted(name));
    isRealKey = !from.key.isEmpty();
    QString hidden;
    int count = static_cast<int>(fields.size());
    // The column's number in the result. Adds it as a hidden column if it is not shown.
    const auto locate = [&](const QString &name) {
        if (const qsizetype place = shown.indexOf(name); place >= 0)
            return static_cast<int>(place);
        // Under an alias, because the statement's ORDER BY can use a field with the column's name.
        hidden += u", %1.%2 AS kova_%3"_s.arg(alias, engine.quoted(name), QString::number(count));
        return count++;
    };
    for (const QString &name : isRealKey ? from.key : from.comparable)
        key.push_back({engine.quoted(name), locate(name)});
    if (key.empty()) {
        whyReadOnly = Texts::readOnlyNoTable();
        return 0;
    }
    if (!isRealKey) {
        for (const QString &name : from.columns) {
            if (!from.comparable.contains(name))
                locate(name);
        }
    }
    const bool hasVersion = from.isOrdinary && !engine.rowVersion.isEmpty();
    if (hasVersion)
        locate(engine.rowVersion);
    compared = comparedColumns(select, from, shown, count, hasVersion);
    for (qsizetype i = 0; !hasTransactions && i < shown.size(); ++i) {
        if (from.comparable.contains(shown[i]))
            witnesses.push_back(
                {witness(engine.quoted(shown[i]), fields[static_cast<std::size_t>(i)]), static_cast<int>(i)});
    }

    const QString head =
        sql.left(select.listEnd) + hidden + sql.sliced(select.listEnd, select.sourceEnd - select.listEnd);
    if (!hidden.isEmpty())
        statement = head + sql.sliced(select.sourceEnd);
    selectRow = head + engine.lockTable + " WHERE "_L1;
    return static_cast<std::size_t>(count);
}

} // namespace ADODB
