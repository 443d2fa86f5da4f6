#include "ado/providers/sqlite/SqliteDigest.h"

#include "ado/providers/sqlite/SqliteError.h"

#include <QtCore/QCryptographicHash>

#include <sqlite3.h>

#include <array>
#include <bit>
#include <cstring>
#include <new>

namespace ADODB::SqliteDigest {

namespace {

constexpr auto functionName = "kova_digest";

void addNumber(QCryptographicHash &hash, quint64 number)
{
    std::array<char, sizeof number> bytes{};
    std::memcpy(bytes.data(), &number, sizeof number);
    hash.addData(QByteArrayView(bytes.data(), bytes.size()));
}

void add(QCryptographicHash &hash, sqlite3_value *value)
{
    const int type = sqlite3_value_type(value);
    addNumber(hash, static_cast<quint64>(type));
    switch (type) {
    case SQLITE_INTEGER:
        return addNumber(hash, static_cast<quint64>(sqlite3_value_int64(value)));
    case SQLITE_FLOAT:
        return addNumber(hash, std::bit_cast<quint64>(sqlite3_value_double(value)));
    case SQLITE_TEXT:
    case SQLITE_BLOB: {
        // The stored bytes, without conversion to another encoding.
        const void *const bytes = sqlite3_value_blob(value);
        const int size = sqlite3_value_bytes(value);
        addNumber(hash, static_cast<quint64>(size));
        hash.addData(QByteArrayView(static_cast<const char *>(bytes), size));
        return;
    }
    default:
        return;
    }
}

void digest(sqlite3_context *context, int count, sqlite3_value **values)
{
    try {
        QCryptographicHash hash(QCryptographicHash::Blake2s_128);
        for (int i = 0; i < count; ++i)
            add(hash, values[i]);
        const QByteArray result = hash.result();
        sqlite3_result_blob(context, result.constData(), static_cast<int>(result.size()), SQLITE_TRANSIENT);
    } catch (const std::bad_alloc &) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

QString name()
{
    return QString::fromLatin1(functionName);
}

void install(sqlite3 *db)
{
    const int code = sqlite3_create_function_v2(db, functionName, -1,
                                                SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY,
                                                nullptr, digest, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        throwSqliteError(db, code);
}

} // namespace ADODB::SqliteDigest
