#include "ado/providers/sqlite/SqliteCall.h"

#include "ado/providers/sqlite/SqliteError.h"

#include <sqlite3.h>

namespace ADODB {

SqliteCall::SqliteCall(const SqliteSession &session, Purpose purpose, const QString &sql)
    : m_session(session),
      m_purpose(purpose),
      m_statement(purpose == Writes ? session.prepareOwn(sql) : session.prepareReading(sql))
{
}

void SqliteCall::bind(const RawValue &value)
{
    sqlite3_stmt *const statement = handle();
    ++m_bound;
    const auto size = static_cast<sqlite3_uint64>(value.bytes.size());
    switch (value.kind) {
    case RawValue::Kind::Null:
        check(sqlite3_bind_null(statement, m_bound));
        break;
    case RawValue::Kind::Integer:
        check(sqlite3_bind_int64(statement, m_bound, value.integer));
        break;
    case RawValue::Kind::Real:
        check(sqlite3_bind_double(statement, m_bound, value.real));
        break;
    case RawValue::Kind::Text:
        check(
            sqlite3_bind_text64(statement, m_bound, value.bytes.data(), size, SQLITE_TRANSIENT, SQLITE_UTF8));
        break;
    case RawValue::Kind::Blob:
        // An empty blob must not become Null, which a null pointer means.
        check(sqlite3_bind_blob64(statement, m_bound, size > 0 ? value.bytes.data() : "", size,
                                  SQLITE_TRANSIENT));
        break;
    }
}

void SqliteCall::check(int code) const
{
    if (code != SQLITE_OK)
        throwSqliteError(sqlite3_db_handle(handle()), code);
}

void SqliteCall::bind(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::LongLong:
        return bind(RawValue::fromInteger(value.toLongLong()));
    case QMetaType::Double:
        return bind(RawValue::fromReal(value.toDouble()));
    case QMetaType::QString:
        return bind(RawValue::fromText(value.toString().toUtf8()));
    case QMetaType::QByteArray:
        return bind(RawValue::fromBlob(value.toByteArray()));
    default:
        return bind(RawValue());
    }
}

bool SqliteCall::step()
{
    if (m_purpose == Reads)
        return stepRow(m_statement);
    const SqliteSession::Unwatched unwatched(m_session);
    return stepRow(m_statement);
}

} // namespace ADODB
