#include "ado/providers/sqlite/SqliteTarget.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/sqlite/SqliteDigest.h"
#include "ado/providers/sqlite/SqliteSession.h"
#include "ado/recordset/ReadOnlyReason.h"
#include "sql/SqlScanner.h"
#include "sql/select/SimpleSelect.h"

#include <QtCore/QStringList>

#include <sqlite3.h>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SimpleSelect;
using KOVAVSFDataGridLib::SqlScanner;

namespace {

struct TableColumns
{
    QStringList all;
    QStringList shown;     // those of *
    QStringList generated; // computed from others, so not writable
    QStringList primaryKey;
    QStringList neverNull;
};

struct RowId
{
    QString name;   // empty for a table WITHOUT ROWID
    QString column; // the origin that SQLite reports for a rowid; empty if it could be another column
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
    constexpr int notNull = 3;
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
        if (sqlite3_column_int(info.get(), notNull) != 0)
            columns.neverNull += column;
    }
    return columns;
}

QString originOf(const SqliteHandle &statement, int column)
{
    return QString::fromUtf8(sqlite3_column_origin_name(statement.get(), column));
}

// The rowid has three names, and a column of the table can hide any of them.
RowId rowIdOf(const SqliteSession &session, const QString &table, const TableColumns &columns)
{
    for (const QString &name : {u"rowid"_s, u"_rowid_"_s, u"oid"_s}) {
        if (columns.all.contains(name, Qt::CaseInsensitive))
            continue;
        try {
            const auto reading = session.prepareOwn(u"SELECT %1 FROM %2"_s.arg(name, table));
            // Whatever name was used, the origin is "rowid", unless the rowid is a column of the table.
            return {name, name == "rowid"_L1 ? originOf(reading, 0) : QString()};
        } catch (const Error &) {
            return {}; // a table WITHOUT ROWID
        }
    }
    return {};
}

// For each field, the column it shows; empty for a computed one. The text and the origins that SQLite reports
// must agree: SQLite also reports an origin for a value that a subquery took from another row. Nothing if
// they contradict each other.
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

// Columns that are fetched after the user's fields.
class HiddenColumns
{
public:
    explicit HiddenColumns(std::size_t fields) : m_next(static_cast<int>(fields)) {}

    // Returns the column's index in the result.
    int add(const QString &expression)
    {
        m_text += ", "_L1 + expression;
        return m_next++;
    }
    const QString &text() const { return m_text; }
    int end() const { return m_next; }

private:
    int m_next;
    QString m_text;
};

// The columns of a key. Fetches those that the result does not show.
std::vector<SqliteTarget::KeyColumn> keyOf(const QStringList &names, const QStringList &shown,
                                           const QString &alias, HiddenColumns &hidden)
{
    std::vector<SqliteTarget::KeyColumn> key;
    for (const QString &name : names) {
        const qsizetype place = shown.indexOf(name);
        const QString quoted = quotedName(name);
        key.push_back(
            {quoted, quoted, place >= 0 ? static_cast<int>(place) : hidden.add(alias + u'.' + quoted)});
    }
    return key;
}

// If another program vacuums the database, rows get new rowids. So a rowid that is not a column of the table
// does not identify the row that was shown. Its primary key does if that is never Null; otherwise all its
// values do, and those that are not shown are fetched as a digest.
void hideIdentity(const TableColumns &columns, const QStringList &shown, const QString &alias,
                  HiddenColumns &hidden)
{
    const auto isNeverNull = [&](const QString &name) { return columns.neverNull.contains(name); };
    const bool hasKey = !columns.primaryKey.isEmpty() &&
                        std::all_of(columns.primaryKey.begin(), columns.primaryKey.end(), isNeverNull);
    QStringList missing;
    for (const QString &name : hasKey ? columns.primaryKey : columns.shown) {
        if (!shown.contains(name))
            missing += alias + u'.' + quotedName(name);
    }
    if (hasKey) {
        for (const QString &column : missing)
            hidden.add(column);
        return;
    }
    constexpr qsizetype mostArguments = 100; // SQLite's limit is 127
    for (qsizetype i = 0; i < missing.size(); i += mostArguments)
        hidden.add(SqliteDigest::name() + u'(' + missing.mid(i, mostArguments).join(", "_L1) + u')');
}

// All columns of the result except those that can differ between two reads.
std::vector<int> comparedColumns(const SimpleSelect &select, const TableColumns &columns,
                                 const QStringList &shown, int end)
{
    std::vector<bool> restless;
    for (const SimpleSelect::Item &item : select.items)
        restless.insert(restless.end(), item.all ? static_cast<std::size_t>(columns.shown.size()) : 1,
                        item.changesByItself);
    std::vector<int> compared;
    for (int i = 0; i < end; ++i) {
        const bool isComputed = i < shown.size() && shown[i].isEmpty();
        if (!isComputed || !restless[static_cast<std::size_t>(i)])
            compared.push_back(i);
    }
    return compared;
}

// Whether this SELECT is an aggregate, which returns one row even if there is none. The aggregate function
// can be anywhere in the list, even in a subquery without rows of its own, so only SQLite can tell. EXISTS
// avoids computing the row. A statement that can't be tested like this is treated as an aggregate. A list
// of columns alone needs no test.
bool folds(const SqliteSession &session, const SqliteTarget &target, const SimpleSelect &select)
{
    if (std::ranges::none_of(select.items, &SimpleSelect::Item::isComputed))
        return false;
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
    HiddenColumns hidden(fields.size());
    if (rowId.name.isEmpty()) {
        target.key = keyOf(columns.primaryKey, *shown, target.alias, hidden);
    } else {
        const QString written = rowId.column.isEmpty() ? QString() : quotedName(rowId.column);
        const qsizetype place = written.isEmpty() ? -1 : shown->indexOf(rowId.column);
        target.key = {{rowId.name, written,
                       place >= 0 ? static_cast<int>(place) : hidden.add(target.alias + u'.' + rowId.name)}};
        if (!columns.all.contains(rowId.column))
            hideIdentity(columns, *shown, target.alias, hidden);
    }
    target.hasHidden = !hidden.text().isEmpty();
    target.compared = comparedColumns(select, columns, *shown, hidden.end());

    const QString head = sql.left(select.listEnd) + hidden.text() +
                         sql.sliced(select.listEnd, select.sourceEnd - select.listEnd);
    target.statement = head + sql.sliced(select.sourceEnd);
    target.selectRow = head + " WHERE "_L1;
    if (target.key.empty())
        target.whyReadOnly = Texts::readOnlyNoTable();
    else if (folds(session, target, select))
        target.whyReadOnly = Texts::readOnlyGrouped();
    return target;
}

} // namespace ADODB
