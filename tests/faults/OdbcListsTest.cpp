// The driver manager takes longer each time it lists the drivers and data sources, so they are listed only
// when needed.
#include "FaultyOdbc.h"

#include "ado/OdbcEngines.h"

#include "ado/Error.h"
#include "ado/connection/OdbcCatalogue.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace ADODB;
using KovaTest::FaultyOdbc::listsRead;

namespace {

class OdbcLists : public AdoTest::OnOdbc
{
};

KOVA_ON_ODBC_ENGINES(OdbcLists);

void expectRefused(const QString &connectionString)
{
    Connection connection;
    EXPECT_THROW(connection.Open(connectionString), Error) << qUtf8Printable(connectionString);
}

} // namespace

TEST_P(OdbcLists, AreNotReadForADriverThatIsNamed)
{
    const int before = listsRead();
    const auto first = connect();
    const auto second = connect(); // in the session that is there
    EXPECT_EQ(open(u"SELECT 6 * 7"_s, second)->CellText(1, 0), u"42"_s);
    EXPECT_EQ(listsRead(), before);
}

TEST(OdbcListsOfDrivers, AreReadOnceToTellWhichThereAre)
{
    const int before = listsRead();
    expectRefused(u"Driver={No such driver};Server=x"_s);
    EXPECT_EQ(listsRead(), before + 1);
}

TEST(OdbcListsOfDrivers, AreReadOnceForTheProviderOfAServer)
{
    const int before = listsRead();
    expectRefused(u"Provider=OraOLEDB.Oracle;Data Source=orcl"_s);
    EXPECT_EQ(listsRead(), before + 1);
}

TEST(OdbcListsOfDataSources, AreReadOnceToFindTheDriverOfOne)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "SQLite's driver unloads the library that has read its settings, which keeps them";
#endif
    if (!odbcDrivers().contains(u"SQLite3"_s))
        GTEST_SKIP() << "SQLite's ODBC driver is not installed";
    QTemporaryDir folder;
    QFile shop(folder.filePath(u"shop.db"_s));
    QFile list(folder.filePath(u"odbc.ini"_s));
    ASSERT_TRUE(shop.open(QIODevice::WriteOnly) && list.open(QIODevice::WriteOnly));
    list.write("[kova shop]\nDriver=SQLite3\nDatabase=" + QFile::encodeName(shop.fileName()) + "\n");
    list.close();
    const QByteArray user = qgetenv("ODBCINI");
    qputenv("ODBCINI", QFile::encodeName(list.fileName()));
    const int before = listsRead();
    {
        Connection connection;
        connection.Open(u"DSN=kova shop"_s);
        EXPECT_EQ(connection.State(), adStateOpen);
    }
    EXPECT_EQ(listsRead(), before + 1);
    ASSERT_TRUE(shop.remove());
    expectRefused(u"DSN=kova shop"_s);
    EXPECT_FALSE(shop.exists()) << "a database that is missing is not made";
    user.isNull() ? qunsetenv("ODBCINI") : qputenv("ODBCINI", user);
}
