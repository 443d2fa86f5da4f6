#include "ado/providers/odbc/OdbcHandle.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcError.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// For names and the like; longer texts are truncated.
constexpr qsizetype textLength = 1024;
using Text = std::array<char16_t, textLength>;

QString textOf(const Text &buffer, SQLSMALLINT bytes)
{
    const qsizetype length = qBound<qsizetype>(0, bytes / qsizetype{sizeof(char16_t)}, textLength - 1);
    // Some drivers count the terminating zero.
    const QString text = QString::fromUtf16(buffer.data(), length);
    return text.left(text.indexOf(QChar(u'\0')));
}

} // namespace

OdbcConnection::OdbcConnection()
{
    if (!succeeded(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &m_environment)) ||
        !succeeded(SQLSetEnvAttr(m_environment, SQL_ATTR_ODBC_VERSION, asPointer(SQL_OV_ODBC3), 0)) ||
        !succeeded(SQLAllocHandle(SQL_HANDLE_DBC, m_environment, &m_connection))) {
        release();
        throw Error(dbErrFailed, Texts::outOfMemory(), u"ODBC"_s, u"HY001"_s);
    }
}

OdbcConnection::~OdbcConnection()
{
    release();
}

void OdbcConnection::release()
{
    if (m_canceller)
        SQLFreeHandle(SQL_HANDLE_STMT, m_canceller);
    if (m_connected) {
        // A driver refuses to disconnect within a transaction.
        if (!succeeded(SQLDisconnect(m_connection))) {
            SQLEndTran(SQL_HANDLE_DBC, m_connection, SQL_ROLLBACK);
            SQLDisconnect(m_connection);
        }
    }
    if (m_connection)
        SQLFreeHandle(SQL_HANDLE_DBC, m_connection);
    if (m_environment)
        SQLFreeHandle(SQL_HANDLE_ENV, m_environment);
}

void OdbcConnection::connect(const QString &text, int timeoutInSeconds, const QStringList &secrets)
{
    m_secrets = secrets;
    if (timeoutInSeconds > 0) {
        SQLSetConnectAttrW(m_connection, SQL_ATTR_LOGIN_TIMEOUT,
                           asPointer(static_cast<std::uintptr_t>(timeoutInSeconds)), SQL_IS_UINTEGER);
    }
    const SQLRETURN code = SQLDriverConnectW(m_connection, nullptr, wide(text), SQL_NTS, nullptr, 0, nullptr,
                                             SQL_DRIVER_NOPROMPT);
    m_connected = succeeded(code);
    if (!m_connected)
        throwOdbcError(SQL_HANDLE_DBC, m_connection, *this, OdbcWork::Connecting);
}

void OdbcConnection::makeCanceller()
{
    if (!m_canceller && !succeeded(SQLAllocHandle(SQL_HANDLE_STMT, m_connection, &m_canceller)))
        throwOdbcError(SQL_HANDLE_DBC, m_connection, *this);
}

std::optional<bool> OdbcConnection::isDead() const
{
    SQLUINTEGER dead = SQL_CD_FALSE;
    const SQLRETURN code = SQLGetConnectAttrW(m_connection, SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr);
    return succeeded(code) ? std::optional(dead == SQL_CD_TRUE) : std::nullopt;
}

void OdbcConnection::setIdle()
{
    m_untried = true;
    m_idleSince = std::chrono::steady_clock::now();
}

std::chrono::steady_clock::duration OdbcConnection::idleTime() const
{
    return std::chrono::steady_clock::now() - m_idleSince;
}

// Narrow, as all answers are ASCII: a narrow driver then writes directly into this buffer. It may write
// nothing for an unknown item, and the driver manager would convert its own uninitialized buffer.
QString OdbcConnection::info(SQLUSMALLINT what) const
{
    std::array<char, 1024> buffer{};
    const SQLRETURN code =
        SQLGetInfoA(m_connection, what, buffer.data(), static_cast<SQLSMALLINT>(buffer.size() - 1), nullptr);
    return succeeded(code) ? QString::fromLatin1(buffer.data()) : QString();
}

SQLUINTEGER OdbcConnection::number(SQLUSMALLINT what) const
{
    SQLUINTEGER value = 0;
    SQLGetInfoW(m_connection, what, &value, sizeof value, nullptr);
    return value;
}

SQLUSMALLINT OdbcConnection::shortNumber(SQLUSMALLINT what) const
{
    SQLUSMALLINT value = 0;
    SQLGetInfoW(m_connection, what, &value, sizeof value, nullptr);
    return value;
}

OdbcHandle::OdbcHandle(std::shared_ptr<OdbcConnection> connection) : m_connection(std::move(connection))
{
    if (!succeeded(SQLAllocHandle(SQL_HANDLE_STMT, m_connection->handle(), &m_statement)))
        throwOdbcError(SQL_HANDLE_DBC, m_connection->handle(), *m_connection);
}

OdbcHandle::~OdbcHandle()
{
    // PostgreSQL's driver leaks what it knows of a statement that was only prepared.
    SQLFreeStmt(m_statement, SQL_CLOSE);
    SQLFreeHandle(SQL_HANDLE_STMT, m_statement);
}

void OdbcHandle::check(SQLRETURN code) const
{
    if (!succeeded(code))
        throwOdbcError(SQL_HANDLE_STMT, m_statement, *m_connection);
}

void OdbcHandle::set(SQLINTEGER attribute, std::uintptr_t value) const
{
    set(attribute, asPointer(value));
}

void OdbcHandle::set(SQLINTEGER attribute, void *address) const
{
    check(SQLSetStmtAttrW(m_statement, attribute, address, 0));
}

void OdbcHandle::prepare(const QString &sql) const
{
    check(SQLPrepareW(m_statement, wide(sql), static_cast<SQLINTEGER>(sql.size())));
}

void OdbcHandle::execute(const QString &sql) const
{
    const SQLRETURN code = SQLExecDirectW(m_statement, wide(sql), static_cast<SQLINTEGER>(sql.size()));
    if (code != SQL_NO_DATA) // a change that found no row
        check(code);
}

bool OdbcHandle::fetch() const
{
    const SQLRETURN code = SQLFetch(m_statement);
    if (code == SQL_NO_DATA)
        return false;
    check(code);
    return true;
}

int OdbcHandle::columns() const
{
    SQLSMALLINT count = 0;
    check(SQLNumResultCols(m_statement, &count));
    return count;
}

QString OdbcHandle::columnText(int column, SQLUSMALLINT what) const
{
    Text buffer{};
    SQLSMALLINT bytes = 0;
    const SQLRETURN code =
        SQLColAttributeW(m_statement, static_cast<SQLUSMALLINT>(column + 1), what, buffer.data(),
                         static_cast<SQLSMALLINT>(sizeof buffer), &bytes, nullptr);
    return succeeded(code) ? textOf(buffer, bytes) : QString();
}

qint64 OdbcHandle::columnNumber(int column, SQLUSMALLINT what) const
{
    SQLLEN value = 0;
    const SQLRETURN code = SQLColAttributeW(m_statement, static_cast<SQLUSMALLINT>(column + 1), what, nullptr,
                                            0, nullptr, &value);
    return succeeded(code) ? value : 0;
}

} // namespace ADODB
