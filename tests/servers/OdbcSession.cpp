#include "servers/OdbcSession.h"

#include <gtest/gtest.h>

#if defined(_WIN32)
#include <windows.h>
#endif
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <array>

namespace KovaTest {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "texts go to the driver as UTF-16");

namespace {

SQLWCHAR *wide(QString &text)
{
    return reinterpret_cast<SQLWCHAR *>(text.data());
}

bool succeeded(SQLRETURN result)
{
    return result == SQL_SUCCESS || result == SQL_SUCCESS_WITH_INFO;
}

QString whyNot(SQLSMALLINT type, SQLHANDLE handle)
{
    QString state(6, u' ');
    QString message(500, u' ');
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    SQLGetDiagRecW(type, handle, 1, wide(state), &native, wide(message),
                   static_cast<SQLSMALLINT>(message.size()), &length);
    return message.left(length);
}

} // namespace

struct OdbcSession::Handles
{
    SQLHENV environment = SQL_NULL_HENV;
    SQLHDBC connection = SQL_NULL_HDBC;
};

namespace {

// One statement, freed with its result.
class OdbcStatement
{
public:
    explicit OdbcStatement(SQLHDBC connection, QString text)
    {
        SQLAllocHandle(SQL_HANDLE_STMT, connection, &m_handle);
        const SQLRETURN result = SQLExecDirectW(m_handle, wide(text), SQL_NTS);
        EXPECT_TRUE(succeeded(result) || result == SQL_NO_DATA)
            << qUtf8Printable(text.left(200)) << '\n'
            << qUtf8Printable(whyNot(SQL_HANDLE_STMT, m_handle));
    }
    ~OdbcStatement() { SQLFreeHandle(SQL_HANDLE_STMT, m_handle); }
    Q_DISABLE_COPY_MOVE(OdbcStatement)

    QString firstText()
    {
        if (!succeeded(SQLFetch(m_handle)))
            return {};
        std::array<char16_t, 1000> text{};
        SQLLEN bytes = 0;
        const auto size = static_cast<SQLLEN>(text.size() * sizeof(char16_t));
        if (!succeeded(SQLGetData(m_handle, 1, SQL_C_WCHAR, text.data(), size, &bytes)) ||
            bytes == SQL_NULL_DATA)
            return {};
        return QString::fromUtf16(text.data());
    }

private:
    SQLHSTMT m_handle = SQL_NULL_HSTMT;
};

} // namespace

OdbcSession::OdbcSession(const QString &connectionString) : m_handles(std::make_unique<Handles>())
{
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &m_handles->environment);
    SQLSetEnvAttr(m_handles->environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3),
                  0);
    SQLAllocHandle(SQL_HANDLE_DBC, m_handles->environment, &m_handles->connection);
    QString text = connectionString;
    const SQLRETURN result = SQLDriverConnectW(m_handles->connection, nullptr, wide(text), SQL_NTS, nullptr,
                                               0, nullptr, SQL_DRIVER_NOPROMPT);
    EXPECT_TRUE(succeeded(result)) << qUtf8Printable(whyNot(SQL_HANDLE_DBC, m_handles->connection));
}

OdbcSession::~OdbcSession()
{
    SQLDisconnect(m_handles->connection);
    SQLFreeHandle(SQL_HANDLE_DBC, m_handles->connection);
    SQLFreeHandle(SQL_HANDLE_ENV, m_handles->environment);
}

void OdbcSession::run(const QString &statement)
{
    const OdbcStatement run(m_handles->connection, statement);
}

void OdbcSession::run(const QStringList &statements)
{
    for (const QString &statement : statements)
        run(statement);
}

QString OdbcSession::ask(const QString &statement)
{
    return OdbcStatement(m_handles->connection, statement).firstText();
}

} // namespace KovaTest
