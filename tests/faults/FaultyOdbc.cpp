#include "FaultyOdbc.h"

#include "ado/providers/odbc/OdbcApi.h"

#include <cstring>
#include <dlfcn.h>
#include <map>
#include <mutex>

// Functions defined in the program take precedence over those of the driver manager's library, which are next
// in the symbol search order.

namespace {

using KovaTest::FaultyOdbc::Fault;

std::recursive_mutex mutex; // a call that waits for a server comes from another thread
int callsLeft = 0;          // to the one that fails; 0 when none does
Fault nextFault = Fault::NotDone;
bool isLost = false;
const char *failedCall = nullptr;
int readLists = 0;
std::map<SQLHANDLE, const char *> states; // of failed handles that have not been used since

thread_local int depth = 0; // of calls that the driver manager makes itself

bool mustFail(const char *name)
{
    if (isLost)
        return true;
    if (callsLeft == 0 || --callsLeft > 0)
        return false;
    failedCall = name;
    isLost = nextFault == Fault::Lost;
    return true;
}

const char *stateOf(Fault fault)
{
    switch (fault) {
    case Fault::Memory:
        return "HY001";
    case Fault::Lost:
        return "08S01";
    default:
        return "HY000";
    }
}

template<typename Call>
SQLRETURN made(const char *name, SQLHANDLE handle, bool canBeDone, Call &&call)
{
    bool isFailing = false;
    Fault fault = Fault::NotDone;
    if (depth == 0) {
        const std::lock_guard lock(mutex);
        states.erase(handle);
        isFailing = mustFail(name);
        fault = nextFault;
        if (isFailing)
            states[handle] = stateOf(fault);
    }
    if (isFailing && (fault != Fault::Done || !canBeDone))
        return SQL_ERROR;
    ++depth;
    const SQLRETURN code = call();
    --depth;
    return isFailing ? SQL_ERROR : code;
}

template<typename Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

void copy(const char *text, SQLWCHAR *to, std::size_t room)
{
    std::size_t i = 0;
    for (; text[i] && i + 1 < room; ++i)
        to[i] = static_cast<SQLWCHAR>(text[i]);
    to[i] = 0;
}

} // namespace

namespace KovaTest::FaultyOdbc {

void failAt(int call, Fault fault)
{
    const std::lock_guard lock(mutex);
    callsLeft = call;
    nextFault = fault;
    isLost = false;
    failedCall = nullptr;
    states.clear();
}

void stopFailing()
{
    const std::lock_guard lock(mutex);
    callsLeft = 0;
    isLost = false;
}

QString failed()
{
    const std::lock_guard lock(mutex);
    return QString::fromLatin1(failedCall);
}

int listsRead()
{
    const std::lock_guard lock(mutex);
    return ::readLists;
}

} // namespace KovaTest::FaultyOdbc

#define KOVA_FAULTY(name, canBeDone, handle, parameters, arguments)                                          \
    SQLRETURN SQL_API name parameters                                                                        \
    {                                                                                                        \
        static auto *const next = real<decltype(name)>(#name);                                               \
        return made(#name, handle, canBeDone, [&] { return next arguments; });                               \
    }

extern "C" {

KOVA_FAULTY(SQLAllocHandle, false, parent, (SQLSMALLINT type, SQLHANDLE parent, SQLHANDLE *made_),
            (type, parent, made_))
KOVA_FAULTY(SQLSetEnvAttr, true, h, (SQLHENV h, SQLINTEGER a, SQLPOINTER v, SQLINTEGER l), (h, a, v, l))
KOVA_FAULTY(SQLSetConnectAttrW, true, h, (SQLHDBC h, SQLINTEGER a, SQLPOINTER v, SQLINTEGER l), (h, a, v, l))
KOVA_FAULTY(SQLSetStmtAttrW, true, h, (SQLHSTMT h, SQLINTEGER a, SQLPOINTER v, SQLINTEGER l), (h, a, v, l))
KOVA_FAULTY(SQLGetInfoA, true, h,
            (SQLHDBC h, SQLUSMALLINT what, SQLPOINTER v, SQLSMALLINT room, SQLSMALLINT *length),
            (h, what, v, room, length))
KOVA_FAULTY(SQLGetInfoW, true, h,
            (SQLHDBC h, SQLUSMALLINT what, SQLPOINTER v, SQLSMALLINT room, SQLSMALLINT *length),
            (h, what, v, room, length))
KOVA_FAULTY(SQLDriverConnectW, false, h,
            (SQLHDBC h, SQLHWND w, SQLWCHAR *in, SQLSMALLINT inLength, SQLWCHAR *out, SQLSMALLINT room,
             SQLSMALLINT *outLength, SQLUSMALLINT completion),
            (h, w, in, inLength, out, room, outLength, completion))
KOVA_FAULTY(SQLPrepareW, true, h, (SQLHSTMT h, SQLWCHAR *sql, SQLINTEGER length), (h, sql, length))
KOVA_FAULTY(SQLExecDirectW, true, h, (SQLHSTMT h, SQLWCHAR *sql, SQLINTEGER length), (h, sql, length))
KOVA_FAULTY(SQLExecute, true, h, (SQLHSTMT h), (h))
KOVA_FAULTY(SQLFetch, true, h, (SQLHSTMT h), (h))
KOVA_FAULTY(SQLFreeStmt, true, h, (SQLHSTMT h, SQLUSMALLINT option), (h, option))
KOVA_FAULTY(SQLEndTran, true, h, (SQLSMALLINT type, SQLHANDLE h, SQLSMALLINT end), (type, h, end))
KOVA_FAULTY(SQLNumResultCols, true, h, (SQLHSTMT h, SQLSMALLINT *count), (h, count))
KOVA_FAULTY(SQLNumParams, true, h, (SQLHSTMT h, SQLSMALLINT *count), (h, count))
KOVA_FAULTY(SQLRowCount, true, h, (SQLHSTMT h, SQLLEN *count), (h, count))
KOVA_FAULTY(SQLSetPos, true, h, (SQLHSTMT h, SQLSETPOSIROW row, SQLUSMALLINT operation, SQLUSMALLINT lock),
            (h, row, operation, lock))
KOVA_FAULTY(SQLBindCol, true, h,
            (SQLHSTMT h, SQLUSMALLINT column, SQLSMALLINT type, SQLPOINTER v, SQLLEN room, SQLLEN *length),
            (h, column, type, v, room, length))
KOVA_FAULTY(SQLGetData, true, h,
            (SQLHSTMT h, SQLUSMALLINT column, SQLSMALLINT type, SQLPOINTER v, SQLLEN room, SQLLEN *length),
            (h, column, type, v, room, length))
KOVA_FAULTY(SQLBindParameter, true, h,
            (SQLHSTMT h, SQLUSMALLINT number, SQLSMALLINT way, SQLSMALLINT type, SQLSMALLINT sqlType,
             SQLULEN size, SQLSMALLINT digits, SQLPOINTER v, SQLLEN room, SQLLEN *length),
            (h, number, way, type, sqlType, size, digits, v, room, length))
KOVA_FAULTY(SQLColAttributeW, true, h,
            (SQLHSTMT h, SQLUSMALLINT column, SQLUSMALLINT what, SQLPOINTER v, SQLSMALLINT room,
             SQLSMALLINT *length, SQLLEN *number),
            (h, column, what, v, room, length, number))
KOVA_FAULTY(SQLDescribeColW, true, h,
            (SQLHSTMT h, SQLUSMALLINT column, SQLWCHAR *name, SQLSMALLINT room, SQLSMALLINT *length,
             SQLSMALLINT *type, SQLULEN *size, SQLSMALLINT *digits, SQLSMALLINT *nullable),
            (h, column, name, room, length, type, size, digits, nullable))
KOVA_FAULTY(SQLTablesW, true, h,
            (SQLHSTMT h, SQLWCHAR *a, SQLSMALLINT al, SQLWCHAR *b, SQLSMALLINT bl, SQLWCHAR *c,
             SQLSMALLINT cl, SQLWCHAR *d, SQLSMALLINT dl),
            (h, a, al, b, bl, c, cl, d, dl))
KOVA_FAULTY(SQLColumnsW, true, h,
            (SQLHSTMT h, SQLWCHAR *a, SQLSMALLINT al, SQLWCHAR *b, SQLSMALLINT bl, SQLWCHAR *c,
             SQLSMALLINT cl, SQLWCHAR *d, SQLSMALLINT dl),
            (h, a, al, b, bl, c, cl, d, dl))
KOVA_FAULTY(SQLPrimaryKeysW, true, h,
            (SQLHSTMT h, SQLWCHAR *a, SQLSMALLINT al, SQLWCHAR *b, SQLSMALLINT bl, SQLWCHAR *c,
             SQLSMALLINT cl),
            (h, a, al, b, bl, c, cl))
KOVA_FAULTY(SQLStatisticsW, true, h,
            (SQLHSTMT h, SQLWCHAR *a, SQLSMALLINT al, SQLWCHAR *b, SQLSMALLINT bl, SQLWCHAR *c,
             SQLSMALLINT cl, SQLUSMALLINT unique, SQLUSMALLINT reserved),
            (h, a, al, b, bl, c, cl, unique, reserved))

// What was lost has undone what was not committed; the driver wouldn't disconnect before.
SQLRETURN SQL_API SQLDisconnect(SQLHDBC h)
{
    static auto *const disconnect = real<decltype(SQLDisconnect)>("SQLDisconnect");
    static auto *const end = real<decltype(SQLEndTran)>("SQLEndTran");
    ++depth;
    if (isLost)
        end(SQL_HANDLE_DBC, h, SQL_ROLLBACK);
    const SQLRETURN code = disconnect(h);
    --depth;
    return code;
}

// Both lists are read by the data access alone; a fault in them has no meaning for what is read or written.
#define KOVA_COUNTED(name)                                                                                   \
    SQLRETURN SQL_API name(SQLHENV h, SQLUSMALLINT direction, SQLWCHAR *a, SQLSMALLINT ar, SQLSMALLINT *al,  \
                           SQLWCHAR *b, SQLSMALLINT br, SQLSMALLINT *bl)                                     \
    {                                                                                                        \
        static auto *const next = real<decltype(name)>(#name);                                               \
        if (direction == SQL_FETCH_FIRST) {                                                                  \
            const std::lock_guard lock(mutex);                                                               \
            ++readLists;                                                                                     \
        }                                                                                                    \
        return next(h, direction, a, ar, al, b, br, bl);                                                     \
    }

KOVA_COUNTED(SQLDriversW)
KOVA_COUNTED(SQLDataSourcesW)

SQLRETURN SQL_API SQLGetDiagRecW(SQLSMALLINT type, SQLHANDLE h, SQLSMALLINT record, SQLWCHAR *state,
                                 SQLINTEGER *native, SQLWCHAR *text, SQLSMALLINT room, SQLSMALLINT *length)
{
    static auto *const next = real<decltype(SQLGetDiagRecW)>("SQLGetDiagRecW");
    {
        const std::lock_guard lock(mutex);
        const auto found = states.find(h);
        if (found != states.end()) {
            if (record != 1)
                return SQL_NO_DATA;
            copy(found->second, state, 6);
            copy(KovaTest::FaultyOdbc::words, text, static_cast<std::size_t>(room));
            *native = 0;
            *length = static_cast<SQLSMALLINT>(std::strlen(KovaTest::FaultyOdbc::words));
            return SQL_SUCCESS;
        }
    }
    return next(type, h, record, state, native, text, room, length);
}

} // extern "C"
