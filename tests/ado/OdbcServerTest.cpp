#include "OdbcEngines.h"
#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/ConnectionString.h"
#include "ado/automation/Criteria.h"
#include "ado/connection/OdbcCatalogue.h"
#include "ado/providers/odbc/OdbcHandle.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QScopeGuard>

#include <array>

#ifdef Q_OS_UNIX
#include "SilentServer.h"
#endif

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::cellTexts;
using AdoTest::errorOf;

namespace {

const QString marker = u"Geheim}wort;4711"_s;

TEST(OdbcConnecting, NamesTheInstalledDriversWhenOneIsUnknown)
{
    Connection connection;
    const Error error =
        errorOf([&] { connection.Open(u"Driver={No such driver};Server=x;Password=\"%1\""_s.arg(marker)); });
    EXPECT_TRUE(error.is(adErrProviderNotFound)) << error.what();
    EXPECT_TRUE(error.Description().contains(u"No such driver"));
    EXPECT_FALSE(error.Description().contains(u"4711"));
    for (const QString &driver : odbcDrivers())
        EXPECT_TRUE(error.Description().contains(driver)) << error.what();
}

TEST(OdbcConnecting, SaysThatADataSourceIsUnknown)
{
    Connection connection;
    for (const char *text : {"DSN=kova no such", "Provider=MSDASQL;Data Source=kova no such",
                             "Provider=MSDASQL.1;DSN=kova no such"}) {
        const Error error = errorOf([&] { connection.Open(QString::fromUtf8(text)); });
        EXPECT_EQ(error.SQLState(), u"IM002"_s);
        EXPECT_TRUE(error.Description().contains(u"kova no such")) << error.what();
    }
}

TEST(OdbcConnecting, ListsTheProvidersWhenOneIsUnknown)
{
    Connection connection;
    const Error error = errorOf([&] { connection.Open(u"Provider=Nobody;Data Source=x"_s); });
    EXPECT_TRUE(error.is(adErrProviderNotFound));
    EXPECT_TRUE(error.Description().contains(u"MSDASQL") && error.Description().contains(u"SQLite"));
}

TEST(OdbcConnecting, TakesOnlySecondsForATimeLimit)
{
    Connection connection;
    EXPECT_ADO_ERROR(adErrInvalidArgument, connection.Open(u"DSN=x;Connect Timeout=soon"_s));
    EXPECT_ADO_ERROR(adErrInvalidArgument, connection.Open(u"DSN=x;Command Timeout=-1"_s));
}

using OnServer = AdoTest::OnOdbc;

class OdbcServer : public OnServer
{
};

KOVA_ON_ODBC_SERVERS(OdbcServer);

TEST_P(OdbcServer, ShowsNoPasswordWhenALoginFails)
{
    Connection connection;
    const Error error = errorOf([&] { connection.Open(connectionString(), {}, marker); });
    EXPECT_TRUE(error.is(dbErrAuthFailed)) << error.what();
    EXPECT_FALSE(error.Description().contains(u"4711")) << error.what();
    EXPECT_EQ(connection.State(), adStateClosed);
    connection.Open(connectionString());
    EXPECT_FALSE(connection.ConnectionString().contains(u"PWD", Qt::CaseInsensitive));
}

TEST_P(OdbcServer, ShowsNoPasswordFromAStatement)
{
    const ADODB::ConnectionString text(connectionString());
    const QString password = text.value(u"PWD"_s) + text.value(u"Password"_s);
    ASSERT_FALSE(password.isEmpty());
    const Error error = errorOf([&] { open(u"SELECT * FROM \"%1\""_s.arg(password)); });
    EXPECT_FALSE(error.Description().contains(password)) << error.what();
    EXPECT_TRUE(error.Description().contains(u"***")) << error.what();
}

#ifdef Q_OS_UNIX
TEST_P(OdbcServer, WaitsForAConnectionUntilTheTimeLimit)
{
    const AdoTest::SilentServer silent;
    ASSERT_GT(silent.port(), 0);
    ADODB::ConnectionString text(connectionString());
    text.set(u"Port"_s, QString::number(silent.port()));
    text.set(u"Connect Timeout"_s, u"2"_s);
    QElapsedTimer timer;
    timer.start();
    Connection connection;
    const Error error = errorOf([&] { connection.Open(text.text()); });
    EXPECT_TRUE(error.Description().startsWith(u"无法连接数据库服务器")) << error.what();
    EXPECT_LT(timer.elapsed(), 10'000);
    EXPECT_EQ(connection.State(), adStateClosed);
}
#endif

TEST_P(OdbcServer, UnderstandsAdosKeywords)
{
    ADODB::ConnectionString text(connectionString());
    const auto rename = [&](const QString &from, const QString &to) {
        if (!text.contains(from))
            return;
        text.set(to, text.value(from));
        text.remove(from);
    };
    rename(u"Server"_s, u"Data Source"_s);
    rename(u"Database"_s, u"Initial Catalog"_s);
    rename(u"UID"_s, u"User ID"_s);
    rename(u"PWD"_s, u"Password"_s);
    text.set(u"Provider"_s, u"MSDASQL"_s);
    Connection connection;
    connection.Open(text.text());
    EXPECT_EQ(connection.State(), adStateOpen);
}

TEST_P(OdbcServer, IsClosedOnceTheServerEndedItAndCanBeOpenedAgain)
{
    const auto connection = connect();
    const QString id =
        open(is("MariaDB") ? u"SELECT connection_id()"_s : u"SELECT pg_backend_pid()"_s, connection)
            ->CellText(1, 0);
    Recordset reading;
    int questions = 0;
    reading.SetProgress([&](qint64) {
        if (++questions == 5) // it is asked for its first row
            execute((is("MariaDB") ? u"KILL %1"_s : u"SELECT pg_terminate_backend(%1)"_s).arg(id));
        return true;
    });
    const Error error = errorOf([&] { reading.Open(QString::fromLatin1(GetParam().endless), connection); });
    EXPECT_TRUE(error.Description().contains(u"连接已断开"))
        << error.what() << ' ' << error.SQLState().toStdString();
    EXPECT_EQ(connection->State(), adStateClosed);
    connection->Open();
    EXPECT_EQ(open(u"SELECT 1"_s, connection)->CellText(1, 0), u"1"_s);
}

// Preparing a statement again first deallocates the old one in the server; the loss then has another error
// number.
TEST_P(OdbcServer, IsKnownToBeLostWhenAStatementIsPreparedAgain)
{
    const auto connection = std::make_shared<OdbcConnection>();
    connection->connect(connectionString(), 15, {});
    const OdbcHandle statement(connection);
    statement.execute(is("MariaDB") ? u"SELECT connection_id()"_s : u"SELECT pg_backend_pid()"_s);
    ASSERT_TRUE(statement.fetch());
    std::array<char, 32> id{};
    SQLGetData(statement.get(), 1, SQL_C_CHAR, id.data(), static_cast<SQLLEN>(id.size()), nullptr);
    SQLFreeStmt(statement.get(), SQL_CLOSE);
    execute((is("MariaDB") ? u"KILL %1"_s : u"SELECT pg_terminate_backend(%1)"_s)
                .arg(QString::fromLatin1(id.data())));
    const Error error = errorOf([&] { statement.execute(u"SELECT 1"_s); });
    EXPECT_TRUE(error.Description().contains(u"连接已断开")) << error.what() << ' ' << error.NativeError();
    EXPECT_TRUE(connection->isLost());
}

TEST_P(OdbcServer, KeepsFunctionsInAQueryFromChangingData)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY)"_s);
    execute(u"DROP FUNCTION IF EXISTS kova_change"_s);
    execute(is("MariaDB")
                ? u"CREATE FUNCTION kova_change() RETURNS INTEGER BEGIN INSERT INTO kova_a VALUES (1);"
                  " RETURN 1; END"_s
                : u"CREATE FUNCTION kova_change() RETURNS INTEGER LANGUAGE plpgsql AS "
                  "'BEGIN INSERT INTO kova_a VALUES (1); RETURN 1; END'"_s);
    EXPECT_ADO_ERROR(dbErrPermissionDenied, open(u"SELECT kova_change()"_s));
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"0"_s);
    execute(u"DROP FUNCTION kova_change"_s);
}

class OnPostgreSql : public OnServer
{
};

INSTANTIATE_TEST_SUITE_P(Servers, OnPostgreSql, testing::Values(AdoTest::odbcEngines[1]),
                         [](const auto &engine) { return std::string(engine.param.name); });

TEST_P(OnPostgreSql, ShowsDatesThatTheDriverCannotHoldAsTheServerWritesThem)
{
    const auto recordset =
        open(u"SELECT 'infinity'::date, '0044-03-15 BC'::date, '0044-03-15 10:00:00 BC'::timestamp,"
             " '24:00:00'::time, '10000-01-01'::timestamp, '-infinity'::timestamp,"
             " '2024-02-29 01:02:03.123456'::timestamp, '2024-02-29'::date; -- all"_s);
    EXPECT_EQ(cellTexts(*recordset),
              u"infinity|0044-03-15 BC|0044-03-15 10:00:00 BC|24:00:00|10000-01-01 00:00:00|"
              "-infinity|2024-02-29 01:02:03.123456|2024-02-29"_s);
    EXPECT_EQ(recordset->CellValue(1, 7), QVariant(QDate(2024, 2, 29)));
}

// The server's own comparison is the model for the conditions of a recordset.
TEST_P(OnPostgreSql, TimesAreComparedByTheRecordsetAsByTheServer)
{
    const QString moments =
        u"(VALUES (1, 'infinity'::timestamp), (2, '-infinity'), (3, '0044-03-15 10:00:00 BC'), (4, "
        u"'12000-01-01'),"
        " (5, '2024-02-29 01:02:03.123456'), (6, '2024-02-29 01:02:03.123'), (7, '2024-02-29'), (8, NULL)) AS v(id, ts)"_s;
    const auto shown = open(u"SELECT id, ts FROM "_s + moments + u" ORDER BY id"_s);
    for (const QString &moment :
         {u"infinity"_s, u"-infinity"_s, u"0044-03-15 10:00:00 BC"_s, u"12000-01-01"_s, u"2024-02-29"_s,
          u"2024-02-29 01:02:03.123456"_s, u"2024-02-29 01:02:03.1"_s}) {
        for (const QString &comparator : {u"="_s, u"<>"_s, u"<"_s, u"<="_s, u">"_s, u">="_s}) {
            const QString condition = u"ts %1 '%2'"_s.arg(comparator, moment);
            const auto criteria = Criteria::parse(condition, *shown);
            QStringList met;
            for (qint64 record = 1; record <= shown->RecordCount(); ++record) {
                if (criteria.matches(*shown, record))
                    met += shown->CellText(record, 0);
            }
            const auto expected = ask(u"SELECT coalesce(string_agg(id::text, ' ' ORDER BY id), '') FROM "_s +
                                      moments + u" WHERE "_s + condition);
            EXPECT_EQ(met.join(u' '), expected) << condition.toStdString();
        }
    }
}

TEST_P(OnPostgreSql, SeesASecondStatementThroughItsOwnQuotes)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY)"_s);
    execute(u"INSERT INTO kova_a VALUES (1)"_s);
    for (const char *sql :
         {"select E'\\'' ; delete from kova_a -- '", "select $$ ' $$ ; delete from kova_a -- '",
          "select $a$ $$ ' $a$ ; delete from kova_a -- '"})
        EXPECT_ADO_ERROR(dbErrMultipleStatements, open(QString::fromUtf8(sql)));
    for (const char *sql : {"select $$ ; delete from kova_a $$", "select E'\\' ; delete from kova_a'",
                            "select 1 /* /* */ ; delete from kova_a */"})
        EXPECT_EQ(open(QString::fromUtf8(sql))->RecordCount(), 1);
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s);
}

// The scanner treats them as part of the text, as servers do unless configured otherwise.
TEST_P(OnPostgreSql, ChangesNothingWhereBackslashesEndNoText)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY)"_s);
    execute(u"INSERT INTO kova_a VALUES (1)"_s);
    // Of this process's sessions: others use the server meanwhile.
    qputenv("PGOPTIONS", "-c standard_conforming_strings=off");
    const auto restored = qScopeGuard([] { qunsetenv("PGOPTIONS"); });
    ASSERT_EQ(ask(u"SHOW standard_conforming_strings"_s), u"off"_s);
    for (const char *sql :
         {R"(select 'a\'' ; delete from kova_a -- ')", R"(select 'a\'' ; commit; delete from kova_a -- ')",
          R"(select 'a\'' ; rollback; begin; delete from kova_a; commit; select 1 -- ')"}) {
        EXPECT_EQ(open(QString::fromUtf8(sql))->RecordCount(), 1) << "one text: " << sql;
        EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s) << sql;
    }
}

TEST_P(OnPostgreSql, GivesTextsOfAnyLengthWhole)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, a TEXT, b VARCHAR, c VARCHAR(5000))"_s);
    execute(u"INSERT INTO kova_a SELECT g, repeat('长', g), repeat('文', g), left(repeat('c', g), 5000)"
            " FROM unnest(ARRAY[1, 127, 128, 255, 256, 257, 8190, 8191, 300000]) g"_s);
    const auto connection = connect();
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    for (const int column : {1, 2, 3})
        EXPECT_EQ(recordset->Fields().Item(column).Type(), adVarWChar) << column;
    for (qint64 row = 1; row <= recordset->RecordCount(); ++row) {
        const auto length = recordset->CellText(row, 0).toInt();
        EXPECT_EQ(recordset->CellText(row, 1), QString(length, u'长'));
        EXPECT_EQ(recordset->CellText(row, 2), QString(length, u'文'));
        EXPECT_EQ(recordset->CellText(row, 3), QString(std::min(length, 5000), u'c'));
    }
    recordset->MoveFirst();
    recordset->Fields().Item(1).PutValue(QString(200000, u'新'));
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT length(a) FROM kova_a WHERE id = 1"_s), u"200000"_s);
}

TEST_P(OnPostgreSql, RefusesAResultWithoutColumns)
{
    EXPECT_ADO_ERROR(dbErrPermissionDenied, open(u"SELECT"_s));
}

class OnMariaDb : public OnServer
{
};

INSTANTIATE_TEST_SUITE_P(Servers, OnMariaDb, testing::Values(AdoTest::odbcEngines[2]),
                         [](const auto &engine) { return std::string(engine.param.name); });

TEST_P(OnMariaDb, ChangesNothingWhereBackslashesEndNoText)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY)"_s);
    execute(u"INSERT INTO kova_a VALUES (1)"_s);
    constexpr int severalStatements = 67108864;
    const auto connection = std::make_shared<Connection>();
    connection->Open(connectionString() +
                     u";Option=%1;InitStmt={SET sql_mode='NO_BACKSLASH_ESCAPES'}"_s.arg(severalStatements));
    for (const char *sql :
         {R"(select '\' ; delete from kova_a -- ')", R"(select '\' ; commit; delete from kova_a -- ')",
          "select 1 /*!999999 ; delete from kova_a */", "select 1 /*! ; delete from kova_a */"}) {
        EXPECT_ANY_THROW(open(QString::fromUtf8(sql), connection)) << sql;
        EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s) << sql;
    }
    EXPECT_EQ(open(u"SELECT 1"_s, connection)->CellText(1, 0), u"1"_s) << "the driver still works";
}

} // namespace
