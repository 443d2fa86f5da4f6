// Connection strings of OLE DB providers, translated to the keywords of the installed ODBC drivers.
#include "InstalledDrivers.h"

#include "ado/connection/OleDbWords.h"

#include <gtest/gtest.h>

using namespace ADODB;
using namespace AdoTest;
using namespace Qt::StringLiterals;

namespace {

struct WordsCase
{
    const QStringList &installed;
    QString given;
    QString translated;
};

void expectTranslated(std::initializer_list<WordsCase> cases)
{
    for (const WordsCase &c : cases) {
        EXPECT_EQ(inOdbcWords(ConnectionString(c.given), are(c.installed)).text(), c.translated)
            << qUtf8Printable(c.given);
    }
}

} // namespace

TEST(OleDbWords, OfSqlServersProviders)
{
    const QString to18 = u"Driver=ODBC Driver 18 for SQL Server;Server=db;Encrypt=No"_s;
    expectTranslated({
        {driver18, u"Provider=SQLOLEDB;Data Source=db"_s, to18},
        {driver18, u"Provider=SQLOLEDB.1;Data Source=db"_s, to18},
        {driver18, u"provider=sqloledb;DATA SOURCE=db"_s, to18},
        {driver18, u"Data Source=db;Provider=SQLNCLI"_s, to18},
        {driver18, u"Provider=SQLNCLI.1;Server=db"_s, to18},
        {driver18, u"Provider=SQLNCLI10;Server=db"_s, to18},
        {driver18, u"Provider=SQLNCLI10.1;Server=db"_s, to18},
        {driver18, u"Provider=SQLNCLI11;Server=db"_s, to18},
        {driver18, u"Provider=MSOLEDBSQL;Server=db"_s, to18},
        {driver18, u"Provider=MSOLEDBSQL.1;Server=db"_s, to18},
        {driver18, u"Provider=MSOLEDBSQL19;Server=db"_s,
         u"Driver=ODBC Driver 18 for SQL Server;Server=db;Encrypt=Yes"_s},
        {driver18, u"Provider=MSOLEDBSQL19.1;Server=db"_s,
         u"Driver=ODBC Driver 18 for SQL Server;Server=db;Encrypt=Yes"_s},
    });
}

TEST(OleDbWords, GoToTheBestDriverOfTheSystem)
{
    const QString given = u"Provider=SQLOLEDB;Data Source=db"_s;
    const QStringList unusual{u"sql server"_s, u"odbc driver 13 FOR sql server"_s};
    const QStringList future{u"ODBC Driver 9 for SQL Server"_s, u"ODBC Driver 21 for SQL Server"_s};
    const QStringList oldest{u"SQL Native Client"_s, u"SQL Server"_s};
    expectTranslated({
        {driver17, given, u"Driver=ODBC Driver 17 for SQL Server;Server=db"_s},
        {nativeClient, given, u"Driver=SQL Server Native Client 11.0;Server=db"_s},
        {plainWindows, given, u"Driver=SQL Server;Server=db"_s},
        {freeTds, given, u"Driver=FreeTDS;Server=db"_s},
        {unusual, given, u"Driver=odbc driver 13 FOR sql server;Server=db"_s},
        {future, given, u"Driver=ODBC Driver 21 for SQL Server;Server=db;Encrypt=No"_s},
        {oldest, given, u"Driver=SQL Native Client;Server=db"_s},
        // A driver that the string itself names, if it is one for this database.
        {driver18, given + u";Driver={SQL Server}"_s, u"Driver=SQL Server;Server=db"_s},
        {driver17, given + u";Driver={SQL Server}"_s, u"Driver=ODBC Driver 17 for SQL Server;Server=db"_s},
        {driver18, given + u";Driver={MariaDB Unicode}"_s,
         u"Driver=ODBC Driver 18 for SQL Server;Server=db;Encrypt=No"_s},
        {oracle, u"Provider=OraOLEDB.Oracle;Data Source=orcl"_s,
         u"Driver=Oracle in instantclient_21_3;DBQ=orcl"_s},
    });
}

TEST(OleDbWords, SayWhoLogsIn)
{
    const QString to17 = u"Driver=ODBC Driver 17 for SQL Server;"_s;
    expectTranslated({
        {driver17, u"Provider=SQLOLEDB;Data Source=db;Initial Catalog=shop;User ID=sa;Password=x"_s,
         to17 + u"Server=db;Database=shop;UID=sa;PWD=x"_s},
        {driver17, u"Provider=SQLOLEDB;Server=db;Database=shop;UID=sa;PWD=x"_s,
         to17 + u"Server=db;Database=shop;UID=sa;PWD=x"_s},
        {driver17, u"Provider=SQLOLEDB;Server=db;User Id=sa;Password="_s, to17 + u"Server=db;UID=sa"_s},
        {driver17, u"Provider=SQLOLEDB;Server=db;UserID=sa;PWD=x"_s, to17 + u"Server=db;UID=sa;PWD=x"_s},
        {driver17, u"Provider=SQLOLEDB;Server=db;Integrated Security=SSPI"_s,
         to17 + u"Server=db;Trusted_Connection=Yes"_s},
        {driver17, u"Provider=SQLOLEDB;Server=db;Integrated Security=true"_s,
         to17 + u"Server=db;Trusted_Connection=Yes"_s},
        {driver17, u"Provider=SQLOLEDB;Server=db;Trusted_Connection=yes"_s,
         to17 + u"Server=db;Trusted_Connection=Yes"_s},
        // Integrated security takes precedence over a user and password, as in the providers.
        {driver17, u"Provider=SQLOLEDB;Integrated Security=sspi;UID=sa;PWD=x;Server=db"_s,
         to17 + u"Server=db;Trusted_Connection=Yes"_s},
        {driver17, u"Provider=SQLOLEDB;Server=db;Integrated Security=False;UID=sa;PWD=x"_s,
         to17 + u"Server=db;UID=sa;PWD=x"_s},
        {driver17, u"Provider=SQLOLEDB;Server=db;Integrated Security=;UID=sa"_s,
         to17 + u"Server=db;UID=sa"_s},
        {freeTds, u"Provider=SQLOLEDB;Server=db;Integrated Security=SSPI"_s,
         u"Driver=FreeTDS;Server=db;Trusted_Connection=Yes"_s},
    });
}

TEST(OleDbWords, SayWhichServer)
{
    const QString to17 = u"Driver=ODBC Driver 17 for SQL Server;Server="_s;
    expectTranslated({
        {driver17, u"Provider=SQLOLEDB;Data Source=db\\shop"_s, to17 + u"db\\shop"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=tcp:db , 1433"_s, to17 + u"tcp:db,1433"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=.\\SQLEXPRESS"_s, to17 + u".\\SQLEXPRESS"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=(local)"_s, to17 + u"(local)"_s},
        {driver17, u"Provider=SQLOLEDB;Initial Catalog=shop"_s,
         to17.chopped(7) + u"Database=shop;Server=(local)"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=db;Network Library=DBMSSOCN"_s, to17 + u"tcp:db"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=np:db;Network Library=dbmssocn"_s, to17 + u"np:db"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=db;Network Address=10.0.0.7,1500"_s,
         to17 + u"10.0.0.7,1500"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=db,1;Port=1500"_s, to17 + u"db,1500"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=服务器\\实例"_s, to17 + u"服务器\\实例"_s},
        {freeTds, u"Provider=SQLOLEDB;Data Source=tcp:db,1500"_s, u"Driver=FreeTDS;Server=db;Port=1500"_s},
        {freeTds, u"Provider=SQLOLEDB;Data Source=(local),1500"_s,
         u"Driver=FreeTDS;Server=localhost;Port=1500"_s},
        {freeTds, u"Provider=SQLOLEDB;Data Source=.\\X"_s, u"Driver=FreeTDS;Server=localhost\\X"_s},
        {freeTds, u"Provider=SQLOLEDB;Data Source=.example"_s, u"Driver=FreeTDS;Server=.example"_s},
        // A data source by name says the rest itself.
        {driver17, u"Provider=SQLOLEDB;DSN=shop;Integrated Security=SSPI"_s,
         u"DSN=shop;Trusted_Connection=Yes"_s},
        {driver17, u"Provider=SQLOLEDB;DSN=shop;Server=db"_s, to17 + u"db"_s},
    });
}

TEST(OleDbWords, KeepEncryptionAsTheProvidersHaveIt)
{
    const QString from = u"Provider=SQLOLEDB;Server=db;"_s;
    const QString to18 = u"Driver=ODBC Driver 18 for SQL Server;Server=db;"_s;
    const QString to17 = u"Driver=ODBC Driver 17 for SQL Server;Server=db;"_s;
    expectTranslated({
        {driver18, from + u"Encrypt=yes;TrustServerCertificate=true"_s,
         to18 + u"TrustServerCertificate=Yes;Encrypt=Yes"_s},
        {driver18, from + u"Use Encryption for Data=True;Trust Server Certificate=False"_s,
         to18 + u"TrustServerCertificate=No;Encrypt=Yes"_s},
        {driver18, from + u"Encrypt=Mandatory"_s, to18 + u"Encrypt=Yes"_s},
        {driver18, from + u"Encrypt=Optional"_s, to18 + u"Encrypt=No"_s},
        {driver18, from + u"Encrypt=strict"_s, to18 + u"Encrypt=Strict"_s},
        {driver18, u"Provider=MSOLEDBSQL19;Server=db;Encrypt=no"_s, to18 + u"Encrypt=No"_s},
        {driver17, u"Provider=MSOLEDBSQL19;Server=db"_s, to17 + u"Encrypt=Yes"_s},
        {driver17, from + u"Encrypt=false"_s, to17 + u"Encrypt=No"_s},
        {freeTds, from + u"Encrypt=yes;TrustServerCertificate=yes"_s,
         u"Driver=FreeTDS;Server=db;Encryption=require"_s},
        {freeTds, from + u"Encrypt=no"_s, u"Driver=FreeTDS;Server=db;Encryption=request"_s},
    });
}

TEST(OleDbWords, TakeWhatDriversKnowAndLeaveTheRest)
{
    const QString from = u"Provider=SQLOLEDB;Server=db;"_s;
    const QString to17 = u"Driver=ODBC Driver 17 for SQL Server;Server=db;"_s;
    expectTranslated({
        {driver17, from + u"Application Name=My Shop;Workstation ID=till 3;Current Language=简体中文"_s,
         to17 + u"APP=My Shop;WSID=till 3;Language=简体中文"_s},
        {driver17,
         from + u"Persist Security Info=True;OLE DB Services=-2;Locale Identifier=2052;Prompt=4;"
                "Use Procedure for Prepare=1;Auto Translate=True;Packet Size=4096;"
                "Tag with column collation when possible=False;Mode=Read;Pooling=false"_s,
         to17 + u"AutoTranslate=Yes"_s},
        {freeTds, from + u"Packet Size=4096;APP=x"_s, u"Driver=FreeTDS;Server=db;PacketSize=4096;APP=x"_s},
        {driver17, from + u"Connection Timeout=7;Command Timeout=60"_s,
         to17 + u"Connect Timeout=7;Command Timeout=60"_s},
        {driver17, from + u"ConnectTimeout=7;General Timeout=5"_s,
         to17 + u"Connect Timeout=7;General Timeout=5"_s},
        {driver17, from + u"MultipleActiveResultSets=True;Multi Subnet Failover=no;Failover Partner=db2"_s,
         to17 + u"MARS_Connection=Yes;MultiSubnetFailover=No;Failover_Partner=db2"_s},
        {driver17, from + u"KeyStoreAuthentication=x;Regional=No"_s,
         to17 + u"KeyStoreAuthentication=x;Regional=No"_s},
        // The string itself takes precedence over the string inside it.
        {driver17, from + u"UID=me;Extended Properties=\"Server=other;UID=you;PWD=p;Initial Catalog=shop\""_s,
         to17 + u"UID=me;PWD=p;Database=shop"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=;Extended Properties='SERVER=db;Trusted_Connection=yes'"_s,
         to17 + u"Trusted_Connection=Yes"_s},
    });
}

TEST(OleDbWords, KeepValuesAsTheyAre)
{
    for (const QString &password :
         {u"semi;colon"_s, u"bra}ce"_s, u"{both}"_s, u"say \"hi\""_s, u"it's"_s, u"a=b"_s, u" blanks "_s,
          u"全角；＝“引号”　"_s, u"}};{{"_s, u"\"';=}{ "_s, u"=="_s}) {
        ConnectionString given(u"Provider=SQLOLEDB;Data Source=db;User ID=sa"_s);
        given.set(u"Password"_s, password);
        // Both ways to quote, written out as a host has them.
        const QString braced = u"Provider=SQLOLEDB;Data Source=db;User ID=sa;Password={"_s +
                               QString(password).replace(u'}', u"}}"_s) + u'}';
        for (const QString &text : {given.text(), braced}) {
            const ConnectionString words = inOdbcWords(ConnectionString(text), are(driver17));
            EXPECT_EQ(words.value(u"PWD"_s), password);
            EXPECT_EQ(ConnectionString(words.text()).value(u"PWD"_s), password);
            EXPECT_EQ(words.value(u"Server"_s), u"db"_s);
        }
    }
}

// ADO uses the last of several values for one property, whatever its keywords.
TEST(OleDbWords, TakeTheLastOfSeveralValues)
{
    const QString to17 = u"Driver=ODBC Driver 17 for SQL Server;"_s;
    expectTranslated({
        {driver17, u"Provider=SQLOLEDB;Data Source=one;Data Source=two"_s, to17 + u"Server=two"_s},
        {driver17, u"Provider=SQLOLEDB;Data Source=one;Server=two"_s, to17 + u"Server=two"_s},
        {driver17, u"Provider=SQLOLEDB;Server=one;Data Source=two"_s, to17 + u"Server=two"_s},
        {driver17, u"Provider=SQLOLEDB;Server=one;Data Source=two;SERVER=three"_s, to17 + u"Server=three"_s},
        {driver17, u"Provider=SQLOLEDB;UID=a;Server=db;User ID=b;UID=c"_s, to17 + u"Server=db;UID=c"_s},
        {oracle, u"Provider=SQLOLEDB;Data Source=x;Provider=MSDAORA"_s,
         u"Driver=Oracle in instantclient_21_3;DBQ=x"_s},
    });
}

TEST(OleDbWords, OfOraclesProviders)
{
    const QString to21 = u"Driver=Oracle in instantclient_21_3;"_s;
    const QString toMicrosoft = u"Driver=Microsoft ODBC for Oracle;"_s;
    const QString address =
        u"(DESCRIPTION=(ADDRESS=(PROTOCOL=TCP)(HOST=db)(PORT=1521))(CONNECT_DATA=(SERVICE_NAME=shop)))"_s;
    const QStringList linuxClient{u"Oracle 19 ODBC driver"_s, u"Oracle 21 ODBC driver"_s};
    const QStringList express{u"Oracle in XE"_s, u"SQL Server"_s};
    const QStringList homes{u"Oracle in OraHome92"_s, u"Oracle in OraClient11g_home1"_s};
    expectTranslated({
        {oracle, u"Provider=MSDAORA;Data Source=orcl;User ID=scott;Password=tiger"_s,
         to21 + u"DBQ=orcl;UID=scott;PWD=tiger"_s},
        {oracle, u"Provider=MSDAORA.1;Data Source=orcl"_s, to21 + u"DBQ=orcl"_s},
        {oracle, u"Provider=OraOLEDB.Oracle.1;Server=//db:1521/shop"_s, to21 + u"DBQ=//db:1521/shop"_s},
        {oracle, u"Provider=OraOLEDB.Oracle;Data Source="_s + address, to21 + u"DBQ="_s + address},
        {oracle, u"Provider=OraOLEDB.Oracle;Data Source=orcl;OSAuthent=1;PWD=x"_s,
         to21 + u"DBQ=orcl;UID=/"_s},
        {oracle, u"Provider=OraOLEDB.Oracle;Data Source=orcl;User ID=/;Password="_s,
         to21 + u"DBQ=orcl;UID=/"_s},
        {oracle,
         u"Provider=OraOLEDB.Oracle;Data Source=orcl;PLSQLRSet=1;FetchSize=200;OLEDB.NET=true;"
         "Connect Timeout=9;Persist Security Info=False"_s,
         to21 + u"DBQ=orcl;Connect Timeout=9"_s},
        {oldOracle, u"Provider=MSDAORA;Data Source=orcl;UID=scott"_s,
         toMicrosoft + u"UID=scott;Server=orcl"_s},
        {linuxClient, u"Provider=MSDAORA;Data Source=orcl"_s, u"Driver=Oracle 21 ODBC driver;DBQ=orcl"_s},
        {express, u"Provider=MSDAORA;Data Source=XE"_s, u"Driver=Oracle in XE;DBQ=XE"_s},
        {homes, u"Provider=MSDAORA;Data Source=x"_s, u"Driver=Oracle in OraClient11g_home1;DBQ=x"_s},
    });
}

TEST(OleDbWords, OfAccessesProviders)
{
    const QString toBoth = u"Driver=Microsoft Access Driver (*.mdb, *.accdb);DBQ=C:\\数据\\a b.mdb"_s;
    const QString from = u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=C:\\数据\\a b.mdb"_s;
    expectTranslated({
        {office, from, toBoth},
        {office, u"Provider=Microsoft.ACE.OLEDB.12.0;Data Source=a.accdb"_s,
         u"Driver=Microsoft Access Driver (*.mdb, *.accdb);DBQ=a.accdb"_s},
        {office, u"Provider=Microsoft.ACE.OLEDB.16.0;Data Source=a.accdb"_s,
         u"Driver=Microsoft Access Driver (*.mdb, *.accdb);DBQ=a.accdb"_s},
        {office, u"Data Source=a.MDB"_s, u"Driver=Microsoft Access Driver (*.mdb, *.accdb);DBQ=a.MDB"_s},
        {plainWindows, u"Data Source=a.mdb"_s, u"Driver=Microsoft Access Driver (*.mdb);DBQ=a.mdb"_s},
        {office, from + u";User ID=Admin;Password="_s, toBoth + u";UID=Admin"_s},
        {office, from + u";Jet OLEDB:Database Password=\"x;y\""_s, toBoth + u";PWD=\"x;y\""_s},
        {office, from + u";User ID=me;Password=mine;Jet OLEDB:System database=C:\\w.mdw"_s,
         toBoth + u";UID=me;PWD=mine;SystemDB=C:\\w.mdw"_s},
        {office, from + u";Mode=Share Deny None;Jet OLEDB:Engine Type=5"_s, toBoth},
        {office, from + u";Mode=Read|Share Deny None"_s, toBoth + u";ReadOnly=1"_s},
        {office, from + u";Mode=Share Exclusive"_s, toBoth + u";Exclusive=1"_s},
        {office, from + u";Extended Properties="_s, toBoth},
    });
}

TEST(OleDbWords, LeaveStringsOfOtherProviders)
{
    expectTranslated({
        {driver18, u"Driver={SQL Server};Server=db;UID=me"_s, u"Driver=SQL Server;Server=db;UID=me"_s},
        {driver18, u"DSN=shop;Prompt=4"_s, u"DSN=shop;Prompt=4"_s},
        {driver18, u"Provider=SQLite;Data Source=a.db"_s, u"Provider=SQLite;Data Source=a.db"_s},
        {driver18, u"Provider=SQLOLEDBX;Data Source=db"_s, u"Provider=SQLOLEDBX;Data Source=db"_s},
        {driver18, u"Provider=MSDASQL;DSN=shop;User ID=me;Persist Security Info=True;Prompt=4"_s,
         u"Provider=MSDASQL;DSN=shop;User ID=me"_s},
        {driver18, u"Provider=MSDASQL.1;Extended Properties=\"DRIVER=SQL Server;SERVER=db\""_s,
         u"Provider=MSDASQL.1;Extended Properties=\"DRIVER=SQL Server;SERVER=db\""_s},
        {driver18, u""_s, u""_s},
    });
}
