#include "OdbcEngines.h"
#include "TestDatabase.h"
#include "Throwing.h"

#include <QtCore/QDateTime>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::cellTexts;
using AdoTest::errorOf;
using AdoTest::OnOdbc;

namespace {

KOVA_ON_ODBC_ENGINES(OnOdbc);

TEST_P(OnOdbc, ReadsValuesAsTheyAre)
{
    // SQLite stores no decimals, and its driver accepts no characters above U+FFFF in a statement.
    const QString emoji = is("SQLite") ? u"é"_s : u"😀"_s;
    const QString decimal = is("SQLite") ? u"VARCHAR(60)"_s : u"DECIMAL(38,3)"_s;
    execute(u"CREATE TABLE kova_a(id %1, name VARCHAR(40), price %2, born DATE, seen %3, x REAL)"_s.arg(
        QLatin1StringView(GetParam().integerKey), decimal, QLatin1StringView(GetParam().timestamp)));
    execute(u"INSERT INTO kova_a(id, name, price, born, seen, x) VALUES "
            "(1, '北京 %1 it''s', '12345678901234567890123456789012345.678', '2024-02-29',"
            " '2024-02-29 09:05:00.25', 0.1), (2, '', NULL, NULL, NULL, NULL),"
            " (-2147483648, NULL, '-0.500', '0001-01-01', '9999-12-31 23:59:59', -1.5)"_s.arg(emoji));
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id DESC"_s);
    EXPECT_EQ(cellTexts(*recordset),
              u"2|||||\n"
              "1|北京 %1 it's|12345678901234567890123456789012345.678|2024-02-29|2024-02-29 09:05:00.25|0.1\n"
              "-2147483648||-0.500|0001-01-01|9999-12-31 23:59:59|-1.5"_s.arg(emoji));
    EXPECT_FALSE(recordset->IsNull(1, 1));
    EXPECT_TRUE(recordset->IsNull(1, 2));
    EXPECT_TRUE(recordset->IsNull(3, 1));
    EXPECT_EQ(recordset->CellValue(2, 3), QVariant(QDate(2024, 2, 29)));
    EXPECT_EQ(recordset->Fields().Item(3).Type(), adDBDate);
    EXPECT_EQ(recordset->Fields().Item(4).Type(), adDBTimeStamp);
    EXPECT_EQ(recordset->Fields().Item(0).Type(), adInteger);
}

// Lengths around the limits of a block's places, in enough rows for several blocks.
TEST_P(OnOdbc, CutsNoTextHoweverLong)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, t %1)"_s.arg(is("MariaDB") ? u"LONGTEXT"_s
                                                                                     : u"TEXT"_s));
    const QString fill =
        is("PostgreSQL") ? u"SELECT i, repeat('长', i % 300) FROM generate_series(1, 2500) i"_s
        : is("MariaDB")  ? u"SELECT seq, repeat('长', seq % 300) FROM seq_1_to_2500"_s
                         : u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2500)"
                          " SELECT i, replace(printf('%0' || (i % 300) || 'd', 0), '0', '长') FROM n"_s;
    execute(u"INSERT INTO kova_a "_s + fill);
    const QString longText(1'000'000, u'字');
    execute(u"INSERT INTO kova_a VALUES (5000, '"_s + longText + u"')"_s);
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    ASSERT_EQ(recordset->RecordCount(), 2501);
    for (qint64 record : {1, 254, 255, 256, 257, 299, 1255, 2356, 2499})
        EXPECT_EQ(recordset->CellText(record, 1), QString(record % 300, u'长')) << record;
    EXPECT_EQ(recordset->CellText(2501, 1), longText);
}

// Which are no limits to SQLite.
TEST_P(OnOdbc, CutsNothingThatIsLongerThanItsColumn)
{
    if (!is("SQLite"))
        GTEST_SKIP() << "its columns hold no more than they say";
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, n INTEGER, x DOUBLE, d DATE, t VARCHAR(10))"_s);
    execute(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)"
        " INSERT INTO kova_a SELECT i, -9223372036854775807, i / 7.0, '2024-02-29 longer', 'short' FROM n"_s);
    const QString longText(700, u'长');
    execute(u"UPDATE kova_a SET t = '%1' WHERE id = 2500"_s.arg(longText));
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    ASSERT_EQ(recordset->RecordCount(), 3000);
    EXPECT_EQ(recordset->CellText(1, 0), u"1"_s);
    EXPECT_EQ(recordset->CellText(1, 1), u"-9223372036854775807"_s);
    EXPECT_EQ(recordset->CellText(1, 2), u"0.142857142857143"_s);
    EXPECT_EQ(recordset->CellText(3000, 3), u"2024-02-29 longer"_s);
    EXPECT_EQ(recordset->CellText(2500, 4), longText);
    recordset->PutAbsolutePosition(2500);
    recordset->Fields().Item(1).PutValue(5);
    recordset->Update();
    EXPECT_EQ(recordset->CellText(2500, 4), longText) << "as it was read again";
    EXPECT_EQ(ask(u"SELECT n FROM kova_a WHERE id = 2500"_s), u"5"_s);
}

TEST_P(OnOdbc, KeepsBytesAsTheyAre)
{
    execute(u"CREATE TABLE kova_a(b %1)"_s.arg(is("PostgreSQL") ? u"BYTEA"_s : u"BLOB"_s));
    execute(is("PostgreSQL") ? u"INSERT INTO kova_a VALUES ('\\x00ff0041')"_s
                             : u"INSERT INTO kova_a VALUES (x'00ff0041')"_s);
    EXPECT_EQ(open(u"SELECT b FROM kova_a"_s)->CellValue(1, 0), QVariant(QByteArray("\0\xff\0A", 4)));
}

TEST_P(OnOdbc, RefusesWhateverIsNotOneQueryBeforeItRuns)
{
    struct Refused
    {
        const char *sql;
        ProviderErrorEnum number;
    };
    const std::vector<Refused> cases{
        {"", dbErrInCommand},
        {" -- nothing\n", dbErrInCommand},
        {";", dbErrInCommand},
        {"select * from kova_a where", dbErrInCommand},
        {"select nothing from kova_a", dbErrInCommand},
        {"select ? from kova_a", dbErrInCommand},
        {"select * from missing", dbErrNoTable},
        {"select 1; delete from kova_a", dbErrMultipleStatements},
        {"select ';' -- ;\n; /* ; */ delete from kova_a", dbErrMultipleStatements},
        {"delete from kova_a", dbErrPermissionDenied},
        {"delete from kova_a returning id", dbErrPermissionDenied},
        {"/* select */ update kova_a set id = 7", dbErrPermissionDenied},
        {"insert into kova_a(id) values (9) returning id", dbErrPermissionDenied},
        {"with gone as (delete from kova_a returning id) select * from gone", dbErrPermissionDenied},
        {"with gone as (select 1) delete from kova_a", dbErrPermissionDenied},
        {"select * into kova_b from kova_a", dbErrPermissionDenied},
        {"drop table kova_a", dbErrPermissionDenied},
        {"create table kova_b(a int)", dbErrPermissionDenied},
        {"explain analyze delete from kova_a", dbErrPermissionDenied},
        {"commit", dbErrPermissionDenied},
    };
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY)"_s);
    execute(u"INSERT INTO kova_a VALUES (1), (2)"_s);
    const auto connection = connect();
    for (const Refused &c : cases) {
        SCOPED_TRACE(c.sql);
        EXPECT_ADO_ERROR(c.number, open(QString::fromUtf8(c.sql), connection));
    }
    EXPECT_EQ(cellTexts(*open(u"select id from kova_a order by id"_s, connection)), u"1\n2"_s);
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a WHERE id IN (1, 2)"_s), u"2"_s);
}

TEST_P(OnOdbc, ReportsTheDriversStateAndNumber)
{
    const Error error = errorOf([this] { open(u"SELECT * FROM kova_missing"_s); });
    EXPECT_EQ(error.Source(), u"ODBC"_s);
    EXPECT_EQ(error.SQLState(), is("PostgreSQL") ? u"42P01"_s : u"42S02"_s);
    EXPECT_EQ(error.NativeError(), is("MariaDB") ? 1146 : 1);
    EXPECT_TRUE(error.Description().contains(u"kova_missing")) << error.what();
}

TEST_P(OnOdbc, AcceptsOneQueryWithWhatMaySurroundIt)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, update_into INTEGER)"_s);
    execute(u"INSERT INTO kova_a VALUES (1, 1), (2, 2)"_s);
    for (const char *sql :
         {"select * from kova_a", "select * from kova_a ; -- done\n /* really; */ ",
          "/* first */ select * from kova_a", "with x as (select * from kova_a) select * from x",
          "select id from kova_a union all select 0 from kova_a where 1 = 0",
          "select 'delete; from' as a, replace('a', 'b', 'c') as b, update_into from kova_a"}) {
        SCOPED_TRACE(sql);
        EXPECT_EQ(open(QString::fromUtf8(sql))->RecordCount(), 2);
    }
    Recordset table;
    table.Open(u"kova_a"_s, connect(), adOpenStatic, adLockReadOnly, adCmdTable);
    EXPECT_EQ(table.RecordCount(), 2);
}

TEST_P(OnOdbc, StopsTheServerWhenTheProgressReportSaysSo)
{
    const auto connection = connect();
    Recordset recordset;
    int reports = 0;
    recordset.SetProgress([&](qint64) { return ++reports < 5; });
    EXPECT_ADO_ERROR(dbErrCancelled, recordset.Open(QString::fromUtf8(GetParam().endless), connection));
    EXPECT_GE(reports, 5) << "it is also asked while the server stops";
    EXPECT_EQ(recordset.State(), adStateClosed);
    EXPECT_EQ(connection->State(), adStateOpen);
    recordset.SetProgress({});
    recordset.Open(u"SELECT 1"_s, connection);
    EXPECT_EQ(recordset.CellText(1, 0), u"1"_s);
}

TEST_P(OnOdbc, StopsTheServerInTheMiddleOfAResult)
{
    const auto connection = connect();
    Recordset recordset;
    int reports = 0;
    recordset.SetProgress([&](qint64) { return ++reports < 20; });
    EXPECT_ADO_ERROR(dbErrCancelled, recordset.Open(QString::fromUtf8(GetParam().endlessRows), connection));
    recordset.SetProgress({});
    recordset.Open(u"SELECT 1"_s, connection);
    EXPECT_EQ(recordset.CellText(1, 0), u"1"_s);
}

TEST_P(OnOdbc, EndsAStatementThatTakesTooLong)
{
    const auto connection = std::make_shared<Connection>();
    connection->Open(connectionString() + u";Command Timeout=1"_s);
    const Error error = errorOf([&] { open(QString::fromUtf8(GetParam().endless), connection); });
    EXPECT_EQ(error.SQLState(), u"HYT00"_s) << error.what();
    EXPECT_EQ(open(u"SELECT 1"_s, connection)->CellText(1, 0), u"1"_s);
}

TEST_P(OnOdbc, ReadsOnWhenTheConnectionIsClosedMeanwhile)
{
    execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY)"_s);
    execute(u"INSERT INTO kova_a VALUES (1), (2)"_s);
    const auto connection = connect();
    Recordset recordset;
    recordset.SetProgress([&](qint64 rows) {
        // Before that, the statement may still be waiting for its session.
        if (rows > 0 && connection->State() == adStateOpen)
            connection->Close();
        return true;
    });
    recordset.Open(u"SELECT * FROM kova_a"_s, connection, adOpenKeyset, adLockOptimistic);
    EXPECT_EQ(recordset.RecordCount(), 2);
    EXPECT_EQ(connection->State(), adStateClosed);
    EXPECT_ADO_ERROR(adErrInvalidConnection, recordset.Delete());
}

TEST_P(OnOdbc, GivesDuplicateNamesAndManyColumns)
{
    QString list = u"SELECT 1 AS a, 2 AS a"_s;
    for (int i = 2; i < 1600; ++i)
        list += u", %1 AS c%1"_s.arg(i);
    const auto recordset = open(list);
    ASSERT_EQ(recordset->Fields().Count(), 1600);
    EXPECT_EQ(recordset->Fields().Item(1).Name(), u"a"_s);
    EXPECT_EQ(recordset->CellText(1, 1), u"2"_s);
    EXPECT_EQ(recordset->CellText(1, 1599), u"1599"_s);
}

} // namespace
