// The errors for OLE DB connection strings that no installed driver supports.
#include "InstalledDrivers.h"
#include "Throwing.h"

#include "ado/connection/OleDbDrivers.h"
#include "ado/connection/OleDbWords.h"

using namespace ADODB;
using namespace AdoTest;
using namespace Qt::StringLiterals;

TEST(OleDbDrivers, AreNamedWhereTheyAreToBeInstalled)
{
    struct Missing
    {
        const QStringList &installed;
        QString given;
        QStringList said;
    };
    const QStringList none;
    const Missing cases[] = {
        {none, u"Provider=SQLOLEDB;Data Source=db"_s, {u"ODBC Driver 18 for SQL Server"_s, u"（无）"_s}},
        {oracle,
         u"Provider=SQLNCLI11;Data Source=db"_s,
         {u"ODBC Driver 18 for SQL Server"_s, u"Oracle in OraHome92"_s}},
        {driver18, u"Provider=OraOLEDB.Oracle;Data Source=db"_s, {u"Oracle"_s, u"MariaDB Unicode"_s}},
        {driver18,
         u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=a.mdb"_s,
         {u"Microsoft Access Database Engine"_s}},
        // What Windows brings reads no newer files.
        {plainWindows,
         u"Provider=Microsoft.ACE.OLEDB.12.0;Data Source=a.accdb"_s,
         {u"Microsoft Access Database Engine"_s, u"Microsoft Access Driver (*.mdb)"_s}},
    };
    for (const Missing &c : cases) {
        for (const int bits : {32, 64}) {
            const Error error = errorOf([&] {
                inOdbcWords(ConnectionString(c.given + u";Password=marker;User ID=marker"_s),
                            are(c.installed), bits);
            });
            EXPECT_TRUE(error.is(adErrProviderNotFound)) << error.what();
            EXPECT_TRUE(error.Description().contains(u"%1 位"_s.arg(bits))) << error.what();
            for (const QString &word : c.said)
                EXPECT_TRUE(error.Description().contains(word)) << error.what();
            EXPECT_FALSE(error.Description().contains(u"marker"_s)) << error.what();
        }
    }
}

TEST(OleDbDrivers, AreNotGivenWhatNobodyUnderstandsAndItIsNotQuoted)
{
    struct Refused
    {
        const QStringList &installed;
        QString given;
        ErrorValueEnum number;
    };
    const Refused cases[] = {
        {driver17, u"Provider=SQLOLEDB;Integrated Security=marker"_s, adErrInvalidArgument},
        {driver17, u"Provider=SQLOLEDB;Trusted_Connection=Yes marker"_s, adErrInvalidArgument},
        {driver17, u"Provider=SQLOLEDB;Encrypt=marker"_s, adErrInvalidArgument},
        {driver17, u"Provider=SQLOLEDB;TrustServerCertificate=ｙｅｓ marker"_s, adErrInvalidArgument},
        {driver17, u"Provider=SQLOLEDB;Extended Properties=\"Server=db;marker\""_s, adErrInvalidArgument},
        {driver17, u"Provider=SQLOLEDB;Extended Properties=\"PWD='marker\""_s, adErrInvalidArgument},
        {driver17, u"Provider=SQLOLEDB;Encrypt=Strict;PWD=marker"_s, adErrFeatureNotAvailable},
        {freeTds, u"Provider=SQLOLEDB;Encrypt=Strict;PWD=marker"_s, adErrFeatureNotAvailable},
        {oracle, u"Provider=OraOLEDB.Oracle;OSAuthent=marker"_s, adErrInvalidArgument},
        {office, u"Provider=Microsoft.Jet.OLEDB.4.0;Password=marker"_s, adErrInvalidArgument},
        {office,
         u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=a.xls;"
         "Extended Properties=\"Excel 8.0;HDR=Yes;PWD=marker\""_s,
         adErrFeatureNotAvailable},
    };
    for (const Refused &c : cases) {
        const Error error = errorOf([&] { inOdbcWords(ConnectionString(c.given), are(c.installed)); });
        EXPECT_TRUE(error.is(c.number)) << qUtf8Printable(c.given) << error.what();
        EXPECT_FALSE(error.Description().contains(u"marker"_s)) << error.what();
    }
}

// Because a driver manager lists them slowly.
TEST(OleDbDrivers, AreAskedForOnceAndOnlyWhereOneIsChosen)
{
    const struct
    {
        const char *given;
        int asked;
    } cases[] = {
        {"Provider=SQLOLEDB;Data Source=db", 1}, {"Provider=SQLOLEDB;Driver=FreeTDS;Data Source=db", 1},
        {"Driver=SQL Server;Server=db", 0},      {"DSN=shop", 0},
        {"Provider=MSDASQL;DSN=shop", 0},        {"Provider=MSDASQL;Driver=SQL Server;Server=db", 0},
        {"Provider=SQLOLEDB;DSN=shop", 0},
    };
    for (const auto &c : cases) {
        int asked = 0;
        inOdbcWords(ConnectionString(QString::fromLatin1(c.given)), [&asked] {
            ++asked;
            return driver17;
        });
        EXPECT_EQ(asked, c.asked) << c.given;
    }
}

TEST(OleDbDrivers, AreKnownForProvidersWithAndWithoutAVersion)
{
    EXPECT_EQ(oleDbKind(u"MSDASQL.1"_s), OleDbKind::Odbc);
    EXPECT_EQ(oleDbKind(u"sqlncli10.1"_s), OleDbKind::SqlServer);
    EXPECT_EQ(oleDbKind(u"oraoledb.oracle.2"_s), OleDbKind::Oracle);
    EXPECT_EQ(oleDbKind(u"Microsoft.Jet.OLEDB.3.51"_s), OleDbKind::Access);
    for (const QString &other : {u""_s, u"SQLite"_s, u"SQLOLEDB."_s, u"SQLOLEDB.x"_s, u"SQLNCLI12"_s,
                                 u"SQLOLEDB 1"_s, u"Microsoft.Jet"_s, u"OraOLEDB"_s})
        EXPECT_EQ(oleDbKind(other), std::nullopt) << qPrintable(other);
    for (const QString &name : oleDbServerProviders())
        EXPECT_TRUE(oleDbKind(name).has_value()) << qPrintable(name);
}
