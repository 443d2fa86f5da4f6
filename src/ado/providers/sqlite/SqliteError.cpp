#include "ado/providers/sqlite/SqliteError.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/rows/MissingValue.h"

#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

void throwSqliteError(sqlite3 *db, int code)
{
    const QString words = QString::fromUtf8(sqlite3_errmsg(db));
    const QString source = u"SQLite"_s;
    const int native = sqlite3_extended_errcode(db);
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw Error(adErrResourceLocked, Texts::locked().arg(words), source, u"HYT00"_s, native);
    case SQLITE_INTERRUPT:
        throw Error(dbErrCancelled, Texts::cancelled(), source, u"HY008"_s, native);
    case SQLITE_AUTH:
        throw Error(dbErrPermissionDenied, Texts::notAQuery(), source, u"42000"_s, native);
    case SQLITE_CONSTRAINT:
        throw Error(dbErrIntegrity, Texts::constraintFailed().arg(words), source,
                    native == SQLITE_CONSTRAINT_NOTNULL ? nullRefused : u"23000"_s, native);
    case SQLITE_READONLY:
        throw Error(dbErrPermissionDenied, Texts::readOnlyDatabase().arg(words), source, u"25006"_s, native);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        throw Error(adErrOpeningFile, Texts::damaged().arg(words), source, u"08001"_s, native);
    case SQLITE_FULL:
        throw Error(dbErrFailed, Texts::diskFull().arg(words), source, u"53100"_s, native);
    case SQLITE_NOMEM:
        throw Error(dbErrFailed, Texts::outOfMemory(), source, u"HY001"_s, native);
    case SQLITE_ERROR: {
        const auto missing = "no such table: "_L1;
        if (words.startsWith(missing))
            throw Error(dbErrNoTable, Texts::noTable().arg(words.sliced(missing.size())), source, u"42S02"_s,
                        native);
        throw Error(dbErrInCommand, Texts::statementFailed().arg(words), source, u"42000"_s, native);
    }
    default:
        throw Error(dbErrFailed, Texts::databaseFailed().arg(words), source, u"HY000"_s, native);
    }
}

} // namespace ADODB
