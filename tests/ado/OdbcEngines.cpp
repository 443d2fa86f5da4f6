#include "OdbcEngines.h"

#include "ado/ConnectionString.h"
#include "ado/OdbcCatalogue.h"

#include <QtCore/QFile>

#include <sql.h>
#include <sqlext.h>

#include <array>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace AdoTest {

namespace {

// A plain connection for one statement.
class Bare
{
public:
    explicit Bare(const QString &text)
    {
        SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &m_environment);
        SQLSetEnvAttr(m_environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        SQLAllocHandle(SQL_HANDLE_DBC, m_environment, &m_connection);
        QByteArray narrow = text.toUtf8();
        const SQLRETURN code =
            SQLDriverConnect(m_connection, nullptr, reinterpret_cast<SQLCHAR *>(narrow.data()), SQL_NTS,
                             nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
        EXPECT_TRUE(SQL_SUCCEEDED(code));
        SQLAllocHandle(SQL_HANDLE_STMT, m_connection, &m_statement);
    }
    ~Bare()
    {
        SQLFreeHandle(SQL_HANDLE_STMT, m_statement);
        SQLDisconnect(m_connection);
        SQLFreeHandle(SQL_HANDLE_DBC, m_connection);
        SQLFreeHandle(SQL_HANDLE_ENV, m_environment);
    }
    Q_DISABLE_COPY_MOVE(Bare)

    void run(const QString &sql)
    {
        const SQLRETURN code = SQLExecDirectW(
            m_statement, const_cast<SQLWCHAR *>(reinterpret_cast<const SQLWCHAR *>(sql.constData())),
            static_cast<SQLINTEGER>(sql.size()));
        EXPECT_TRUE(SQL_SUCCEEDED(code) || code == SQL_NO_DATA) << sql.toStdString() << "\n" << error();
    }
    QString firstValue()
    {
        if (SQLFetch(m_statement) != SQL_SUCCESS)
            return u"none"_s;
        std::array<char16_t, 4096> text{};
        SQLLEN length = 0;
        SQLGetData(m_statement, 1, SQL_C_WCHAR, text.data(), sizeof text, &length);
        return length == SQL_NULL_DATA ? u"NULL"_s : QString::fromUtf16(text.data());
    }

private:
    std::string error() const
    {
        std::array<SQLCHAR, 6> state{};
        std::array<SQLCHAR, 1000> words{};
        SQLGetDiagRec(SQL_HANDLE_STMT, m_statement, 1, state.data(), nullptr, words.data(), 1000, nullptr);
        return reinterpret_cast<const char *>(words.data());
    }

    SQLHENV m_environment = nullptr;
    SQLHDBC m_connection = nullptr;
    SQLHSTMT m_statement = nullptr;
};

} // namespace

void PrintTo(const OdbcEngineCase &engine, std::ostream *out)
{
    *out << engine.name;
}

void OnOdbc::SetUp()
{
    if (GetParam().variable) {
        m_text = qEnvironmentVariable(GetParam().variable);
        if (m_text.isEmpty())
            GTEST_SKIP() << GetParam().variable << " names no server";
    } else {
        if (!odbcDrivers().contains(u"SQLite3"_s))
            GTEST_SKIP() << "SQLite's ODBC driver is not installed";
        const QString path = m_folder.filePath(u"odbc.db"_s);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        m_text = u"Driver=SQLite3;Database="_s + path;
    }
    dropTables();
}

void OnOdbc::TearDown()
{
    if (!m_text.isEmpty() && GetParam().variable)
        dropTables();
}

void OnOdbc::dropTables() const
{
    execute(u"DROP VIEW IF EXISTS kova_v"_s);
    execute(u"DROP TABLE IF EXISTS kova_b"_s);
    execute(u"DROP TABLE IF EXISTS kova_a"_s);
}

void OnOdbc::execute(const QString &sql) const
{
    Bare(m_text).run(sql);
}

QString OnOdbc::ask(const QString &sql) const
{
    Bare bare(m_text);
    bare.run(sql);
    return bare.firstValue();
}

std::shared_ptr<Connection> OnOdbc::connect() const
{
    auto connection = std::make_shared<Connection>();
    connection->Open(m_text);
    return connection;
}

std::shared_ptr<Recordset> OnOdbc::open(const QString &sql) const
{
    return open(sql, connect());
}

std::shared_ptr<Recordset> OnOdbc::open(const QString &sql,
                                        const std::shared_ptr<Connection> &connection) const
{
    auto recordset = std::make_shared<Recordset>();
    recordset->Open(sql, connection, adOpenKeyset, adLockOptimistic, adCmdText);
    return recordset;
}

} // namespace AdoTest
