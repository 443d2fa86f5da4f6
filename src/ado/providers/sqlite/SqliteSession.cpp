#include "ado/providers/sqlite/SqliteSession.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/StrayCharacter.h"
#include "ado/providers/sqlite/SqliteDigest.h"
#include "ado/providers/sqlite/SqliteError.h"
#include "ado/providers/sqlite/SqliteStatement.h"
#include "ado/providers/sqlite/SqliteTypes.h"
#include "sql/Names.h"
#include "sql/SqlScanner.h"

#include <sqlite3.h>

#include <algorithm>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

namespace {

// Pragmas that only return information. All others could change the database or the connection.
bool isReadingPragma(std::string_view name)
{
    static constexpr std::string_view names[] = {
        "collation_list", "compile_options", "database_list", "foreign_key_list",
        "function_list",  "index_info",      "index_list",    "index_xinfo",
        "module_list",    "table_info",      "table_list",    "table_xinfo",
    };
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// These only return information if they have no argument. FTS and R*Tree tables use them.
bool isReadingWithoutValue(std::string_view name)
{
    static constexpr std::string_view names[] = {"data_version", "encoding", "page_count", "page_size"};
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// This layer is used by one thread at a time, so SQLite's locking would only cost time.
constexpr int openFlags = SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;

SqliteHandle compile(sqlite3 *db, const QByteArray &sql, const char **tail)
{
    sqlite3_stmt *statement = nullptr;
    const int code = sqlite3_prepare_v2(db, sql.constData(), static_cast<int>(sql.size()), &statement, tail);
    if (code != SQLITE_OK)
        throwSqliteError(db, code);
    return SqliteHandle(statement);
}

Error sqliteRefusal(ProviderErrorEnum number, const QString &description)
{
    return Error(number, description, u"SQLite"_s, u"42000"_s);
}

} // namespace

SqliteSession::Writing::Writing(const SqliteSession &session) : m_session(session)
{
    m_session.setQueryOnly(false);
    m_session.m_watch.canWrite = true;
}

SqliteSession::Writing::~Writing()
{
    try {
        m_session.setQueryOnly(true);
        m_session.m_watch.canWrite = false;
    } catch (const Error &) {
        // The authorizer still refuses what query_only no longer prevents.
    } catch (const std::exception &error) {
        qWarning("Writing could not be switched off: %s", error.what());
    }
}

void SqliteFinalizer::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

SqliteSession::SqliteSession(const QString &path, int timeoutInMilliseconds)
    : m_engine{SqliteTypes::applyDeclaration, {}}, m_isOfFile(path != ":memory:"_L1)
{
    const QByteArray name = path.toUtf8();
    int code = sqlite3_open_v2(name.constData(), &m_db, openFlags | SQLITE_OPEN_READWRITE, nullptr);
    if (code != SQLITE_OK) {
        close();
        code = sqlite3_open_v2(name.constData(), &m_db, openFlags | SQLITE_OPEN_READONLY, nullptr);
    }
    try {
        if (code != SQLITE_OK)
            throwSqliteError(m_db, code);
        sqlite3_busy_timeout(m_db, timeoutInMilliseconds);
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_ENABLE_FKEY, 1, nullptr);
        // The file may come from a stranger: its schema must not call functions with side effects, nothing
        // may write to SQLite's internal tables, and statements must not pass function pointers.
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, 0, nullptr);
        SqliteDigest::install(m_db);
        // The first access to the file, whose tables are read for it: a locked, encrypted or damaged file is
        // reported here and not by the first statement.
        prepareOwn(u"SELECT 1 FROM sqlite_master"_s);
        beginWatch();
    } catch (...) {
        close();
        throw;
    }
}

SqliteSession::SqliteSession(SqliteEngine engine) : m_engine(std::move(engine))
{
    const int code =
        sqlite3_open_v2(":memory:", &m_db, openFlags | SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (code == SQLITE_OK) {
        sqlite3_db_config(m_db, SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, 0, nullptr);
        return;
    }
    try {
        throwSqliteError(m_db, code);
    } catch (...) {
        close();
        throw;
    }
}

void SqliteSession::beginWatch()
{
    setQueryOnly(true);
    sqlite3_set_authorizer(m_db, allow, &m_watch);
}

// SQLite calls this for each action of a statement while compiling it.
int SqliteSession::allow(void *data, int action, const char *first, const char *second, const char *,
                         const char *)
{
    const Watch &watch = *static_cast<const Watch *>(data);
    if (!watch.isOn)
        return SQLITE_OK;
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_RECURSIVE:
        return SQLITE_OK;
    case SQLITE_FUNCTION: // it returns and accepts code addresses
        return qstricmp(second, "fts3_tokenizer") == 0 ? SQLITE_DENY : SQLITE_OK;
    case SQLITE_PRAGMA:
        return isReadingPragma(first) || (isReadingWithoutValue(first) && !second) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
        // FTS and R*Tree tables compile their changes even if they are only read, and table-valued functions
        // (json_each) declare their columns as a schema change. None of these can run. A user's statement
        // that changes something is refused anyway, because it is not read-only.
        return watch.canWrite ? SQLITE_DENY : SQLITE_OK;
    default:
        return SQLITE_DENY;
    }
}

void SqliteSession::setQueryOnly(bool on) const
{
    const Unwatched unwatched(*this);
    const int code = sqlite3_exec(db(), on ? "PRAGMA query_only = ON" : "PRAGMA query_only = OFF", nullptr,
                                  nullptr, nullptr);
    if (code != SQLITE_OK)
        throwSqliteError(m_db, code);
}

SqliteSession::~SqliteSession()
{
    close();
}

std::unique_ptr<Statement> SqliteSession::prepare(const QString &sql, Access access,
                                                  const std::function<bool()> &)
{
    return std::make_unique<SqliteStatement>(shared_from_this(), sql, access);
}

std::optional<TableColumn> SqliteSession::reference(const TableColumn &column, const std::function<bool()> &)
{
    const auto literal = [](const QString &text) { return KOVAVSFDataGridLib::enclosed(u'\'', text, u'\''); };
    // A foreign key without a column refers to the primary key.
    const SqliteHandle keys =
        prepareOwn(uR"(SELECT f."table", COALESCE(f."to", k.name) FROM pragma_foreign_key_list(%1) f
LEFT JOIN pragma_table_info(f."table") k ON k.pk = f.seq + 1 WHERE f."from" = %2 COLLATE NOCASE)"_s.arg(
            literal(column.table), literal(column.column)));
    if (!stepRow(keys) || sqlite3_column_type(keys.get(), 1) == SQLITE_NULL)
        return std::nullopt;
    const auto text = [&](int at) {
        return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(keys.get(), at)));
    };
    return TableColumn{{}, text(0), text(1)};
}

QStringList SqliteSession::filledColumns(const TableColumn &table, const std::function<bool()> &)
{
    // An INTEGER alone in the key is the number of the row, unless the table has none.
    const SqliteHandle columns = prepareOwn(
        uR"(SELECT name FROM pragma_table_xinfo(%1) t WHERE dflt_value IS NOT NULL OR hidden IN (2, 3)
OR (pk = 1 AND type = 'INTEGER' COLLATE NOCASE AND (SELECT COUNT(*) FROM pragma_table_xinfo(%1) WHERE pk > 0) = 1
AND NOT EXISTS (SELECT 1 FROM pragma_index_list(%1) WHERE origin = 'pk')))"_s.arg(
            KOVAVSFDataGridLib::enclosed(u'\'', table.table, u'\'')));
    QStringList names;
    while (stepRow(columns))
        names += QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(columns.get(), 0)));
    return names;
}

QString SqliteSession::tableStatement(const QString &table) const
{
    return "SELECT * FROM "_L1 + quotedName(table);
}

void SqliteSession::close()
{
    // A statement that is still in use keeps the handle alive until it is finalized.
    sqlite3_close_v2(m_db);
    m_db = nullptr;
}

sqlite3 *SqliteSession::db() const
{
    if (!m_db)
        throw Error(adErrInvalidConnection, Texts::connectionClosed());
    return m_db;
}

SqliteHandle SqliteSession::prepareQuery(const QString &sql) const
{
    const QByteArray text = sql.toUtf8();
    refuseStrayCharacter(SqlScanner(sql), u"SQLite"_s);
    const char *tail = nullptr;
    SqliteHandle statement = compile(db(), text, &tail);
    if (!statement)
        throw sqliteRefusal(dbErrInCommand, Texts::emptyStatement());
    const QByteArray rest = text.sliced(tail - text.constData());
    if (SqlScanner(QString::fromUtf8(rest)).count() > 0)
        throw sqliteRefusal(dbErrMultipleStatements, Texts::secondStatement());
    if (!sqlite3_stmt_readonly(statement.get()) || sqlite3_column_count(statement.get()) == 0)
        throw sqliteRefusal(dbErrPermissionDenied, Texts::notAQuery());
    if (sqlite3_bind_parameter_count(statement.get()) > 0) {
        const char *name = sqlite3_bind_parameter_name(statement.get(), 1);
        throw sqliteRefusal(dbErrInCommand,
                            Texts::parameterInStatement().arg(name ? QString::fromUtf8(name) : u"?"_s));
    }
    return statement;
}

SqliteHandle SqliteSession::prepareOwn(const QString &sql) const
{
    const Unwatched unwatched(*this);
    return compile(db(), sql.toUtf8(), nullptr);
}

SqliteHandle SqliteSession::prepareReading(const QString &sql) const
{
    return compile(db(), sql.toUtf8(), nullptr);
}

QString quotedName(const QString &name)
{
    return KOVAVSFDataGridLib::enclosed(u'"', name, u'"');
}

bool stepRow(const SqliteHandle &statement)
{
    const int code = sqlite3_step(statement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        throwSqliteError(sqlite3_db_handle(statement.get()), code);
    return code == SQLITE_ROW;
}

} // namespace ADODB
