#include "ado/providers/access/sql/AccessModule.h"

#include "ado/Error.h"
#include "ado/providers/access/file/AccessKeyIndex.h"
#include "ado/providers/access/functions/AccessCall.h"
#include "ado/providers/access/sql/AccessCollation.h"
#include "ado/providers/sqlite/SqliteError.h"
#include "ado/providers/sqlite/SqliteSession.h"

#include <QtCore/QStringList>

#include <sqlite3.h>

#include <map>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

constexpr char moduleName[] = "access_table";

using File = std::shared_ptr<const AccessFile>;

struct Table : sqlite3_vtab
{
    explicit Table(File keptFile, const AccessTable &tableOfFile)
        : sqlite3_vtab{}, file(std::move(keptFile)), table(tableOfFile)
    {
    }

    File file;
    const AccessTable &table;
    // By column. The first lookup in a column scans the table, which is cheaper than building an index. A
    // second lookup probably means one for every row of another table, so it builds the index.
    std::map<int, std::unique_ptr<AccessKeyIndex>> indices;
};

struct Cursor : sqlite3_vtab_cursor
{
    explicit Cursor(const Table &table) : sqlite3_vtab_cursor{}, reader(*table.file, table.table) {}

    AccessReader reader;
    bool isAtEnd = true;
    bool isLookup = false; // reads `found` instead of the whole table
    std::vector<qint64> found;
    std::size_t nextFound = 0;
};

Table &tableOf(sqlite3_vtab *table)
{
    return *static_cast<Table *>(table);
}

Cursor &cursorOf(sqlite3_vtab_cursor *cursor)
{
    return *static_cast<Cursor *>(cursor);
}

// Exceptions must not pass through SQLite, so they become a result code with the error's text.
template<typename Action>
int guarded(sqlite3_vtab *table, Action &&action)
{
    try {
        action();
        return SQLITE_OK;
    } catch (const std::bad_alloc &) {
        return SQLITE_NOMEM;
    } catch (const Error &error) {
        sqlite3_free(table->zErrMsg);
        table->zErrMsg = sqlite3_mprintf("%s", error.what());
        return SQLITE_CORRUPT;
    }
}

QByteArray declaration(const AccessTable &table)
{
    QStringList columns;
    for (const AccessColumn &column : table.columns)
        columns += quotedName(column.name) + u' ' + AccessTypes::declaration(column);
    return (u"CREATE TABLE t("_s + columns.join(u',') + u')').toUtf8();
}

// The argument after module, database and table name is the table's index in the file.
int connect(sqlite3 *db, void *context, int, const char *const *arguments, sqlite3_vtab **answer, char **)
{
    try {
        const File &file = *static_cast<const File *>(context);
        const std::size_t index = QByteArrayView(arguments[3]).toULongLong();
        const AccessTable &table = file->tables().at(index);
        const int code = sqlite3_declare_vtab(db, declaration(table).constData());
        if (code == SQLITE_OK)
            *answer = std::make_unique<Table>(file, table).release();
        return code;
    } catch (const std::bad_alloc &) {
        return SQLITE_NOMEM;
    }
}

// A separate function: if it were the same as xConnect, the module would also be an eponymous table.
int create(sqlite3 *db, void *context, int count, const char *const *arguments, sqlite3_vtab **answer,
           char **message)
{
    return connect(db, context, count, arguments, answer, message);
}

int disconnect(sqlite3_vtab *table)
{
    const std::unique_ptr<Table> owner(&tableOf(table));
    return SQLITE_OK;
}

// Whether values that are equal by this collation have equal hashes.
bool isHashed(std::string_view collation)
{
    return collation == AccessCollation::textName || collation == AccessCollation::dateName ||
           collation == "BINARY" || collation == "NOCASE";
}

// Uses at most one equality, passed as column + 1 in idxNum. SQLite chooses which, by cost.
int bestIndex(sqlite3_vtab *base, sqlite3_index_info *info)
{
    constexpr double lookupCost = 10;
    const AccessTable &table = tableOf(base).table;
    const auto rows = std::max<qint64>(table.rows, 1);
    info->estimatedCost = static_cast<double>(rows) + lookupCost;
    info->estimatedRows = rows;
    for (int i = 0; i < info->nConstraint; ++i) {
        const auto &constraint = info->aConstraint[i];
        if (!constraint.usable || constraint.op != SQLITE_INDEX_CONSTRAINT_EQ || constraint.iColumn < 0 ||
            !isHashed(sqlite3_vtab_collation(info, i)))
            continue;
        const AccessColumn &column = table.columns[static_cast<std::size_t>(constraint.iColumn)];
        if (info->idxNum != 0 && !column.isKey)
            continue;
        for (int other = 0; other < i; ++other)
            info->aConstraintUsage[other].argvIndex = 0;
        info->aConstraintUsage[i].argvIndex = 1;
        info->idxNum = constraint.iColumn + 1;
        info->estimatedCost = lookupCost;
        info->estimatedRows = column.isKey ? 1 : 10;
    }
    return SQLITE_OK;
}

int open(sqlite3_vtab *base, sqlite3_vtab_cursor **answer)
{
    return guarded(base, [&] { *answer = std::make_unique<Cursor>(tableOf(base)).release(); });
}

int close(sqlite3_vtab_cursor *base)
{
    const std::unique_ptr<Cursor> owner(&cursorOf(base));
    return SQLITE_OK;
}

void advance(Cursor &cursor)
{
    if (!cursor.isLookup) {
        cursor.isAtEnd = !cursor.reader.next();
        return;
    }
    cursor.isAtEnd = cursor.nextFound == cursor.found.size();
    if (!cursor.isAtEnd)
        cursor.reader.seek(cursor.found[cursor.nextFound++]);
}

void lookUp(Cursor &cursor, int column, const RawValue &value)
{
    Table &table = tableOf(cursor.pVtab);
    const auto family = AccessTypes::familyOf(table.table.columns[static_cast<std::size_t>(column)].type);
    const auto hash = AccessKeyIndex::hashOf(value, family);
    if (!hash)
        return; // SQLite converts the value and compares every row itself
    const auto [index, isNew] = table.indices.try_emplace(column);
    if (isNew)
        return;
    if (!index->second)
        index->second = std::make_unique<AccessKeyIndex>(cursor.reader, column);
    cursor.found = index->second->find(*hash);
    cursor.nextFound = 0;
    cursor.isLookup = true;
}

int filter(sqlite3_vtab_cursor *base, int column, const char *, int, sqlite3_value **arguments)
{
    return guarded(base->pVtab, [&] {
        Cursor &cursor = cursorOf(base);
        cursor.isLookup = false;
        if (column > 0) {
            const RawValue value = rawValue(arguments[0]);
            if (value.kind == RawValue::Kind::Null) { // Null is equal to nothing
                cursor.isAtEnd = true;
                return;
            }
            lookUp(cursor, column - 1, value);
        }
        cursor.reader.rewind();
        advance(cursor);
    });
}

int next(sqlite3_vtab_cursor *base)
{
    return guarded(base->pVtab, [&] { advance(cursorOf(base)); });
}

int isAtEnd(sqlite3_vtab_cursor *base)
{
    return cursorOf(base).isAtEnd ? 1 : 0;
}

int column(sqlite3_vtab_cursor *base, sqlite3_context *context, int index)
{
    return guarded(base->pVtab, [&] { setResult(context, cursorOf(base).reader.value(index)); });
}

int rowId(sqlite3_vtab_cursor *base, sqlite3_int64 *answer)
{
    *answer = cursorOf(base).reader.position();
    return SQLITE_OK;
}

constexpr sqlite3_module tableModule()
{
    sqlite3_module module{};
    module.xCreate = create;
    module.xConnect = connect;
    module.xBestIndex = bestIndex;
    module.xDisconnect = disconnect;
    module.xDestroy = disconnect;
    module.xOpen = open;
    module.xClose = close;
    module.xFilter = filter;
    module.xNext = next;
    module.xEof = isAtEnd;
    module.xColumn = column;
    module.xRowid = rowId;
    return module;
}

constexpr sqlite3_module module = tableModule();

void release(void *context)
{
    const std::unique_ptr<File> owner(static_cast<File *>(context));
}

void run(sqlite3 *db, const QString &sql)
{
    const int code = sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        throwSqliteError(db, code);
}

} // namespace

void AccessModule::install(sqlite3 *db, const std::shared_ptr<const AccessFile> &file)
{
    const std::vector<AccessTable> &tables = file->tables();
    auto context = std::make_unique<File>(file);
    // SQLite takes ownership of the context even if it fails.
    const int code = sqlite3_create_module_v2(db, moduleName, &module, context.release(), release);
    if (code != SQLITE_OK)
        throwSqliteError(db, code);
    run(db, u"BEGIN"_s); // one transaction, not one per table
    for (std::size_t i = 0; i < tables.size(); ++i) {
        try {
            run(db,
                u"CREATE VIRTUAL TABLE %1 USING access_table(%2)"_s.arg(quotedName(tables[i].name)).arg(i));
        } catch (const Error &) {
            // The name is reserved by SQLite, or damage made two names equal. The other tables can still be
            // used.
        }
    }
    run(db, u"COMMIT"_s);
}

} // namespace ADODB
