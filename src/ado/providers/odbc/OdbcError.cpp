#include "ado/providers/odbc/OdbcError.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/rows/MissingValue.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

struct Diagnosis
{
    QString state;
    QString words;
    SQLINTEGER native = 0;
};

Diagnosis diagnose(SQLSMALLINT handleType, SQLHANDLE handle)
{
    std::array<char16_t, 6> state{};
    std::array<char16_t, 4096> words{};
    Diagnosis diagnosis;
    SQLSMALLINT length = 0;
    // If a driver returns several records, the first one has the cause. But a warning of the driver manager
    // about an unsupported attribute can precede it.
    for (SQLSMALLINT record = 1; succeeded(SQLGetDiagRecW(
             handleType, handle, record, reinterpret_cast<SQLWCHAR *>(state.data()), &diagnosis.native,
             reinterpret_cast<SQLWCHAR *>(words.data()), static_cast<SQLSMALLINT>(words.size()), &length));
         ++record) {
        diagnosis.state = QString::fromUtf16(state.data());
        diagnosis.words = QString::fromUtf16(words.data()).simplified();
        if (!diagnosis.state.startsWith("01"_L1))
            break;
    }
    return diagnosis;
}

// SQLite's driver returns SQLite's own error numbers with one general SQLSTATE.
void refineSqlite(Diagnosis &diagnosis)
{
    struct Meaning
    {
        SQLINTEGER native;
        QStringView state;
    };
    static constexpr Meaning meanings[] = {
        {1, u"42000"}, {5, u"40001"}, {6, u"40001"}, {8, u"25006"}, {19, u"23000"},
    };
    if (diagnosis.state != "HY000"_L1 || !diagnosis.words.startsWith("[SQLite]"_L1))
        return;
    for (const Meaning &meaning : meanings) {
        if (meaning.native == diagnosis.native)
            diagnosis.state = meaning.state.toString();
    }
    if (diagnosis.words.contains("no such table"_L1))
        diagnosis.state = u"42S02"_s;
}

// The engines report a Null in a required field by their own numbers, with more general SQLSTATEs.
void refineNull(Diagnosis &diagnosis)
{
    static constexpr SQLINTEGER numbers[] = {1048, 1263, 1364, // MariaDB and MySQL
                                             515,              // SQL Server
                                             1400, 1407};      // Oracle
    const bool isGeneral = diagnosis.state == "HY000"_L1 || diagnosis.state.startsWith("23"_L1);
    const bool isNumber =
        std::find(std::begin(numbers), std::end(numbers), diagnosis.native) != std::end(numbers);
    if (isGeneral && (isNumber || diagnosis.words.contains("NOT NULL constraint failed"_L1)))
        diagnosis.state = nullRefused;
}

// The native error numbers that MariaDB, MySQL and their drivers use, with a general SQLSTATE, for a lost
// connection: killed, gone, lost, or a failed write.
bool isLoss(const Diagnosis &diagnosis, const OdbcConnection &connection)
{
    static constexpr SQLINTEGER numbers[] = {1927, 2006, 2013, 5014};
    if (diagnosis.state.startsWith("57P0"_L1) ||
        std::find(std::begin(numbers), std::end(numbers), diagnosis.native) != std::end(numbers))
        return true;
    // PostgreSQL's driver also uses this SQLSTATE for its own failures while the connection still works.
    if (diagnosis.state.startsWith("08"_L1))
        return connection.isDead().value_or(true);
    // And it uses a general one for a loss; the driver knows of the loss without asking the server.
    return connection.info(SQL_DRIVER_NAME).contains("psqlodbc"_L1, Qt::CaseInsensitive) &&
           connection.isDead().value_or(false);
}

bool startsWithAny(const QString &state, std::initializer_list<QLatin1StringView> starts)
{
    return std::any_of(starts.begin(), starts.end(),
                       [&](QLatin1StringView start) { return state.startsWith(start); });
}

} // namespace

void throwOdbcError(SQLSMALLINT handleType, SQLHANDLE handle, OdbcConnection &connection, OdbcWork work)
{
    Diagnosis diagnosis = diagnose(handleType, handle);
    refineSqlite(diagnosis);
    refineNull(diagnosis);
    const QString &state = diagnosis.state;
    const QString words = withoutSecrets(diagnosis.words, connection.secrets());
    const auto fail = [&](auto number, const QString &text) {
        throw Error(number, text.contains("%1"_L1) ? text.arg(words) : text, u"ODBC"_s, state,
                    diagnosis.native);
    };
    // PostgreSQL's driver reports login errors of the server and of connection pools with a general SQLSTATE.
    if (startsWithAny(state, {"28"_L1}) ||
        (work == OdbcWork::Connecting && words.contains("authentication failed"_L1)))
        fail(dbErrAuthFailed, Texts::authenticationFailed());
    if (startsWithAny(state, {"HYT"_L1}))
        fail(dbErrFailed, work == OdbcWork::Connecting ? Texts::connectTimedOut() : Texts::timedOut());
    if (work == OdbcWork::Connecting)
        fail(dbErrFailed, Texts::cannotConnect());
    if (isLoss(diagnosis, connection)) {
        connection.setLost();
        fail(dbErrFailed, Texts::connectionLost());
    }
    if (startsWithAny(state, {"HY008"_L1, "57014"_L1, "HY018"_L1}))
        fail(dbErrCancelled, Texts::cancelledByServer());
    if (startsWithAny(state, {"42S02"_L1, "42P01"_L1, "S0002"_L1}))
        fail(dbErrNoTable, Texts::noTable());
    if (startsWithAny(state, {"23"_L1}))
        fail(dbErrIntegrity, Texts::constraintFailed());
    if (startsWithAny(state, {"25006"_L1}))
        fail(dbErrPermissionDenied, Texts::readOnlyQuery());
    if (startsWithAny(state, {"42501"_L1}))
        fail(dbErrPermissionDenied, Texts::permissionDenied());
    constexpr SQLINTEGER mySqlLockWait = 1205; // comes with a general SQLSTATE
    if (startsWithAny(state, {"40"_L1, "55P03"_L1}) || diagnosis.native == mySqlLockWait)
        fail(adErrResourceLocked, Texts::locked());
    if (startsWithAny(state, {"53100"_L1}))
        fail(dbErrFailed, Texts::diskFull());
    if (startsWithAny(state, {"HY001"_L1, "53200"_L1}))
        fail(dbErrFailed, Texts::outOfMemory());
    if (startsWithAny(state, {"42"_L1, "37"_L1, "S0"_L1, "22"_L1, "21"_L1}))
        fail(dbErrInCommand, Texts::statementFailed());
    fail(dbErrFailed, Texts::databaseFailed());
    Q_UNREACHABLE();
}

QString withoutSecrets(QString text, const QStringList &secrets)
{
    for (const QString &secret : secrets)
        text.replace(secret, u"***"_s);
    return text;
}

} // namespace ADODB
