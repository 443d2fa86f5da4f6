#include "ado/providers/sqlite/SqliteCall.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

SqliteCall::SqliteCall(const SqliteSession &session, const QString &sql)
    : m_statement(session.prepareOwn(sql))
{
}

void SqliteCall::bind(const RawValue &value)
{
    sqlite3_stmt *const statement = handle();
    ++m_bound;
    const int size = static_cast<int>(value.bytes.size());
    switch (value.kind) {
    case RawValue::Kind::Null:
        sqlite3_bind_null(statement, m_bound);
        break;
    case RawValue::Kind::Integer:
        sqlite3_bind_int64(statement, m_bound, value.integer);
        break;
    case RawValue::Kind::Real:
        sqlite3_bind_double(statement, m_bound, value.real);
        break;
    case RawValue::Kind::Text:
        sqlite3_bind_text(statement, m_bound, value.bytes.data(), size, SQLITE_TRANSIENT);
        break;
    case RawValue::Kind::Blob:
        // A blob without bytes must not become Null, which is what no address means.
        sqlite3_bind_blob(statement, m_bound, size > 0 ? value.bytes.data() : "", size, SQLITE_TRANSIENT);
        break;
    }
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

void SqliteCall::changeOneRow()
{
    step();
    const int changed = sqlite3_changes(sqlite3_db_handle(handle()));
    if (changed == 0)
        throw Error(dbErrConcurrency, Texts::rowGone(), u"SQLite"_s, u"01001"_s);
    if (changed > 1)
        throw Error(dbErrConcurrency, Texts::rowNotUnique().arg(changed), u"SQLite"_s, u"01001"_s);
}

} // namespace ADODB
