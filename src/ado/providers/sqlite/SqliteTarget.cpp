#include "ado/providers/sqlite/SqliteTarget.h"

#include "ado/Error.h"
#include "ado/ReadOnlyReason.h"
#include "ado/Texts.h"
#include "ado/providers/sqlite/SqliteSession.h"
#include "sql/SimpleSelect.h"
#include "sql/SqlScanner.h"

#include <QtCore/QStringList>

#include <sqlite3.h>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SimpleSelect;
using KOVAVSFDataGridLib::SqlScanner;

namespace {

struct TableColumns
{
    QStringList all;
    QStringList shown;     // by *
    QStringList generated; // from others, so they can't be written
    QStringList primaryKey;
};

struct RowId
{
    QString name;   // empty for a table WITHOUT ROWID
    QString column; // what the database calls it as the origin of a value; empty when that could be another
};

QString textAt(const SqliteHandle &statement, int column)
{
    const void *text = sqlite3_column_text(statement.get(), column);
    return QString::fromUtf8(static_cast<const char *>(text));
}

bool isTable(const SqliteSession &session, const SimpleSelect &select)
{
    const QByteArray schema = select.schema.toUtf8();
    return sqlite3_table_column_metadata(session.db(), schema.isEmpty() ? nullptr : schema.constData(),
                                         select.table.toUtf8().constData(), nullptr, nullptr, nullptr,
                                         nullptr, nullptr, nullptr) == SQLITE_OK;
}

TableColumns columnsOf(const SqliteSession &session, const SimpleSelect &select)
{
    constexpr int name = 1;
    constexpr int keyPlace = 5;
    constexpr int visibility = 6; // 0 ordinary, 1 hidden, 2 and 3 generated
    const QString schema = select.schema.isEmpty() ? QString() : quotedName(select.schema) + u'.';
    const auto info = session.prepareOwn(u"PRAGMA %1table_xinfo(%2)"_s.arg(schema, quotedName(select.table)));
    TableColumns columns;
    while (stepRow(info)) {
        const QString column = textAt(info, name);
        columns.all += column;
        if (sqlite3_column_int(info.get(), visibility) != 1)
            columns.shown += column;
        if (sqlite3_column_int(info.get(), visibility) > 1)
            columns.generated += column;
        if (sqlite3_column_int(info.get(), keyPlace) > 0)
            columns.primaryKey += column;
    }
    return columns;
}

QString originOf(const SqliteHandle &statement, int column)
{
    return QString::fromUtf8(sqlite3_column_origin_name(statement.get(), column));
}

// A rowid goes by three names, and a column of the table can hide any of them.
RowId rowIdOf(const SqliteSession &session, const QString &table, const TableColumns &columns)
{
    for (const QString &name : {u"rowid"_s, u"_rowid_"_s, u"oid"_s}) {
        if (columns.all.contains(name, Qt::CaseInsensitive))
            continue;
        try {
            const auto reading = session.prepareOwn(u"SELECT %1 FROM %2"_s.arg(name, table));
            // Whatever name it was asked by, the origin of a rowid that is no column of the table is "rowid".
            return {name, name == "rowid"_L1 ? originOf(reading, 0) : QString()};
        } catch (const Error &) {
            return {}; // a table WITHOUT ROWID
        }
    }
    return {};
}

// For each field the column it shows, empty for a computed one. Neither the text nor the database can tell
// alone: the database also names an origin for a value that a subquery picked from any other row. Nothing at
// all when they contradict each other.
std::optional<QStringList> shownColumns(const SimpleSelect &select, const TableColumns &columns,
                                        const std::vector<FieldInfo> &fields)
{
    QStringList written;
    for (const SimpleSelect::Item &item : select.items)
        written += item.all ? columns.shown : QStringList(item.column);
    if (written.size() != static_cast<qsizetype>(fields.size()))
        return {};
    for (qsizetype i = 0; i < written.size(); ++i) {
        const FieldInfo &field = fields[static_cast<std::size_t>(i)];
        if (written[i].isEmpty())
            continue;
        if (written[i].compare(field.baseColumn, Qt::CaseInsensitive) != 0)
            written[i].clear();
        else if (field.baseTable.compare(select.table, Qt::CaseInsensitive) != 0)
            return {};
        else
            written[i] = field.baseColumn;
    }
    return written;
}

// The fields that show the named columns; empty when one is missing.
std::vector<SqliteTarget::KeyColumn> locate(const QStringList &names, const QStringList &shown)
{
    std::vector<SqliteTarget::KeyColumn> key;
    for (const QString &name : names) {
        const qsizetype column = shown.indexOf(name);
        if (column < 0)
            return {};
        key.push_back({quotedName(name), quotedName(name), static_cast<int>(column)});
    }
    return key;
}

// The primary key where the result shows all of it, else every value of the row.
std::vector<SqliteTarget::KeyColumn> visibleKey(const TableColumns &columns, const QStringList &shown)
{
    auto key = locate(columns.primaryKey, shown);
    if (key.empty()) {
        QStringList names = shown;
        names.removeAll(QString());
        names.removeDuplicates();
        key = locate(names, shown);
    }
    return key;
}

// An aggregate of this very SELECT gives one row even where there is none. It can stand anywhere in the list,
// even in a subquery that has no rows of its own, so only the database can tell. EXISTS spares computing that
// row. A statement that can't be asked this way was not understood and counts as folded.
bool folds(const SqliteSession &session, const SqliteTarget &target)
{
    try {
        const auto probe = session.prepareQuery(u"SELECT EXISTS(%1 0)"_s.arg(target.selectRow));
        return !stepRow(probe) || sqlite3_column_int(probe.get(), 0) != 0;
    } catch (const Error &) {
        return true;
    }
}

} // namespace

std::vector<int> SqliteTarget::writable() const
{
    std::vector<int> fields;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (!columns[i].isEmpty())
            fields.push_back(static_cast<int>(i));
    }
    return fields;
}

SqliteTarget SqliteTarget::find(const SqliteSession &session, const QString &sql,
                                const std::vector<FieldInfo> &fields)
{
    const SimpleSelect select = SimpleSelect::parse(SqlScanner(sql));
    SqliteTarget target;
    target.whyReadOnly = readOnlyReason(select.fault);
    if (target.whyReadOnly.isEmpty() && !isTable(session, select))
        target.whyReadOnly = Texts::readOnlyView().arg(select.table);
    if (!target.whyReadOnly.isEmpty())
        return target;

    target.table = quotedName(select.table);
    if (!select.schema.isEmpty())
        target.table.prepend(quotedName(select.schema) + u'.');
    target.alias = quotedName(select.alias);
    const TableColumns columns = columnsOf(session, select);
    const auto shown = shownColumns(select, columns, fields);
    if (!shown) {
        target.whyReadOnly = Texts::readOnlyJoin();
        return target;
    }
    for (const QString &name : *shown)
        target.columns.push_back(name.isEmpty() || columns.generated.contains(name) ? QString()
                                                                                    : quotedName(name));

    const RowId rowId = rowIdOf(session, target.table, columns);
    target.rowId = rowId.name;
    QString hidden;
    if (rowId.name.isEmpty()) {
        target.key = visibleKey(columns, *shown);
    } else {
        target.hiddenKey = true;
        const QString written = rowId.column.isEmpty() ? QString() : quotedName(rowId.column);
        target.key = {{rowId.name, written, static_cast<int>(fields.size())}};
        hidden = u", %1.%2"_s.arg(target.alias, rowId.name);
        // A rowid that is no column of the table is given anew when another program compacts the database.
        if (!columns.all.contains(rowId.column))
            target.witnesses = target.writable();
    }

    const QString head =
        sql.left(select.listEnd) + hidden + sql.sliced(select.listEnd, select.sourceEnd - select.listEnd);
    target.statement = head + sql.sliced(select.sourceEnd);
    target.selectRow = head + " WHERE "_L1;
    if (target.key.empty())
        target.whyReadOnly = Texts::readOnlyNoTable();
    else if (folds(session, target))
        target.whyReadOnly = Texts::readOnlyGrouped();
    return target;
}

} // namespace ADODB
