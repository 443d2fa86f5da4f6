#include "OdbcEngines.h"

#include "ado/ConnectionString.h"
#include "ado/connection/OdbcCatalogue.h"
#include "servers/OdbcSession.h"

#include <QtCore/QFile>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace AdoTest {

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
    KovaTest::OdbcSession(m_text).run({u"DROP VIEW IF EXISTS kova_v"_s, u"DROP TABLE IF EXISTS kova_b"_s,
                                       u"DROP TABLE IF EXISTS kova_a"_s});
}

void OnOdbc::execute(const QString &sql) const
{
    KovaTest::OdbcSession(m_text).run(sql);
}

QString OnOdbc::ask(const QString &sql) const
{
    return KovaTest::OdbcSession(m_text).ask(sql);
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
