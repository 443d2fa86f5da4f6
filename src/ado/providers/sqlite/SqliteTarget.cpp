#include "ado/providers/sqlite/SqliteTarget.h"

#include "ado/Error.h"
#include "ado/SimpleSelect.h"
#include "ado/SqlScanner.h"
#include "ado/Texts.h"
#include "ado/providers/sqlite/SqliteSession.h"

#include <QtCore/QStringList>

#include <sqlite3.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

struct TableColumns
{
    QStringList all;
    QStringList primaryKey;
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
    const QString schema = select.schema.isEmpty() ? QString() : quotedName(select.schema) + u'.';
    const auto info = session.prepareOwn(u"PRAGMA %1table_xinfo(%2)"_s.arg(schema, quotedName(select.table)));
    TableColumns columns;
    while (stepRow(info)) {
        columns.all += textAt(info, name);
        if (sqlite3_column_int(info.get(), keyPlace) > 0)
            columns.primaryKey += textAt(info, name);
    }
    return columns;
}

// A rowid goes by three names, and a column of the table can hide any of them.
QString rowIdOf(const SqliteSession &session, const QString &table, const TableColumns &columns)
{
    for (const QString &name : {u"rowid"_s, u"_rowid_"_s, u"oid"_s}) {
        if (columns.all.contains(name, Qt::CaseInsensitive))
            continue;
        try {
            session.prepareOwn(u"SELECT %1 FROM %2"_s.arg(name, table));
            return name;
        } catch (const Error &) {
            return {}; // a table WITHOUT ROWID
        }
    }
    return {};
}

bool isAggregate(const SqliteSession &session, const SimpleSelect::FunctionCall &call)
{
    const QString name = call.name.toLower();
    if (name == "min"_L1 || name == "max"_L1)
        return call.arguments == 1;
    const auto found = session.prepareOwn(
        u"SELECT 1 FROM pragma_function_list WHERE name = ?1 AND type IN ('a', 'w') LIMIT 1"_s);
    const QByteArray text = name.toUtf8();
    sqlite3_bind_text(found.get(), 1, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
    return stepRow(found);
}

// The result's columns that hold the named ones of the table; empty when one is missing.
std::vector<SqliteTarget::KeyColumn> locate(const QStringList &names, const std::vector<FieldInfo> &fields)
{
    std::vector<SqliteTarget::KeyColumn> key;
    for (const QString &name : names) {
        const auto field = std::find_if(fields.begin(), fields.end(), [&](const FieldInfo &candidate) {
            return candidate.baseColumn.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (field == fields.end())
            return {};
        key.push_back({quotedName(name), static_cast<int>(field - fields.begin())});
    }
    return key;
}

QStringList baseColumns(const std::vector<FieldInfo> &fields)
{
    QStringList names;
    for (const FieldInfo &field : fields) {
        if (!field.baseColumn.isEmpty() && !names.contains(field.baseColumn))
            names += field.baseColumn;
    }
    return names;
}

} // namespace

SqliteTarget SqliteTarget::find(const SqliteSession &session, const QString &sql,
                                const std::vector<FieldInfo> &fields)
{
    const SimpleSelect select = SimpleSelect::parse(SqlScanner(sql));
    SqliteTarget target;
    target.whyReadOnly = select.reason;
    // What the database says of the columns must agree with what was read from the text.
    const auto isForeign = [&](const FieldInfo &field) {
        return !field.baseTable.isEmpty() && field.baseTable.compare(select.table, Qt::CaseInsensitive) != 0;
    };
    if (target.whyReadOnly.isEmpty() && !isTable(session, select))
        target.whyReadOnly = Texts::readOnlyView().arg(select.table);
    if (target.whyReadOnly.isEmpty() && std::any_of(fields.begin(), fields.end(), isForeign))
        target.whyReadOnly = Texts::readOnlyJoin();
    const auto folds = [&](const SimpleSelect::FunctionCall &call) { return isAggregate(session, call); };
    if (target.whyReadOnly.isEmpty() && std::any_of(select.functions.begin(), select.functions.end(), folds))
        target.whyReadOnly = Texts::readOnlyGrouped();
    if (!target.whyReadOnly.isEmpty())
        return target;

    target.table = quotedName(select.table);
    if (!select.schema.isEmpty())
        target.table.prepend(quotedName(select.schema) + u'.');
    target.alias = quotedName(select.alias);
    const TableColumns columns = columnsOf(session, select);
    target.rowId = rowIdOf(session, target.table, columns);

    // The primary key where the result shows all of it, else the rowid, else every value of the row.
    target.key = locate(columns.primaryKey, fields);
    QString hidden;
    if (target.key.empty() && !target.rowId.isEmpty()) {
        target.hiddenKey = true;
        target.key.push_back({target.rowId, static_cast<int>(fields.size())});
        hidden = u", %1.%2"_s.arg(target.alias, target.rowId);
    } else if (target.key.empty()) {
        target.key = locate(baseColumns(fields), fields);
    }
    if (target.key.empty())
        target.whyReadOnly = Texts::readOnlyNoTable();

    const QString head =
        sql.left(select.listEnd) + hidden + sql.sliced(select.listEnd, select.sourceEnd - select.listEnd);
    target.statement = head + sql.sliced(select.sourceEnd);
    target.selectRow = head + " WHERE "_L1;
    return target;
}

} // namespace ADODB
