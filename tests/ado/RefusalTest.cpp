#include "TestDatabase.h"
#include "Throwing.h"

#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::OtherProgram;
using AdoTest::TestDatabase;

namespace {

const QString refusalScript = u"CREATE TABLE orders(id INTEGER PRIMARY KEY, item TEXT);"
                              "INSERT INTO orders VALUES (1, 'a'), (2, 'b');"
                              "CREATE VIEW v AS SELECT * FROM orders;"_s;

struct Refused
{
    const char *sql;
    ProviderErrorEnum number;
};

TEST(Opening, RefusesWhateverIsNotOneQueryBeforeItRuns)
{
    const std::vector<Refused> cases{
        {"", dbErrInCommand},
        {"  -- nothing\n", dbErrInCommand},
        {";", dbErrInCommand},
        {"selec", dbErrInCommand},
        {"select * from orders where", dbErrInCommand},
        {"select nothing from orders", dbErrInCommand},
        {"select ? from orders", dbErrInCommand},
        {"select :id from orders", dbErrInCommand},
        {"select * from missing", dbErrNoTable},
        {"select 1; drop table orders", dbErrMultipleStatements},
        {"select 1; select 2", dbErrMultipleStatements},
        {"select 1; ; ", dbErrMultipleStatements},
        {"select 1; nonsense", dbErrMultipleStatements},
        {"delete from orders", dbErrPermissionDenied},
        {"delete from orders returning id", dbErrPermissionDenied},
        {"update orders set item = 'x'", dbErrPermissionDenied},
        {"insert into orders values (3, 'c') returning id", dbErrPermissionDenied},
        {"with gone as (select 1) delete from orders", dbErrPermissionDenied},
        {"drop table orders", dbErrPermissionDenied},
        {"create table more(a)", dbErrPermissionDenied},
        {"alter table orders add column more", dbErrPermissionDenied},
        {"attach ':memory:' as other", dbErrPermissionDenied},
        {"detach main", dbErrPermissionDenied},
        {"pragma user_version = 7", dbErrPermissionDenied},
        {"pragma foreign_keys = off", dbErrPermissionDenied},
        {"pragma journal_mode = wal", dbErrPermissionDenied},
        {"pragma writable_schema = on", dbErrPermissionDenied},
        {"update sqlite_master set sql = 'x'", dbErrInCommand},
        {"begin", dbErrPermissionDenied},
        {"vacuum", dbErrPermissionDenied},
        {"reindex", dbErrPermissionDenied},
        {"analyze", dbErrPermissionDenied},
        {"pragma page_size = 512", dbErrPermissionDenied},
        {"select p.* from orders, pragma_optimize p", dbErrPermissionDenied},
        {"select 1 as a --\r; commit; delete from orders", dbErrPermissionDenied},
        {"select 1 as a --\xc2\x85; delete from orders", dbErrPermissionDenied},
        {"select 1 as a --\xe2\x80\xa8; delete from orders", dbErrPermissionDenied},
        {"select 1 as a /* \f */", dbErrPermissionDenied},
        {"select\v1", dbErrPermissionDenied},
    };
    const TestDatabase database(refusalScript);
    const QByteArray before = database.fileBytes();
    const auto connection = database.connect();
    for (const Refused &c : cases) {
        SCOPED_TRACE(c.sql);
        Recordset recordset;
        EXPECT_ADO_ERROR(c.number, recordset.Open(QString::fromUtf8(c.sql), connection, adOpenKeyset,
                                                  adLockOptimistic, adCmdText));
        EXPECT_EQ(recordset.State(), adStateClosed);
    }
    // The connection is none the worse for it.
    Recordset recordset;
    recordset.Open(u"SELECT count(*) FROM orders"_s, connection);
    EXPECT_EQ(recordset.CellText(1, 0), u"2"_s);
    connection->Close();
    EXPECT_EQ(database.fileBytes(), before);
}

TEST(Opening, AcceptsOneQueryWithWhatMaySurroundIt)
{
    const TestDatabase database(refusalScript);
    for (const char *sql :
         {"select * from orders", "select * from orders;", "select * from orders ; -- done\n /* really */ ",
          "/* first */ select * from orders", "with x as (select * from orders) select * from x",
          "values (1), (2)", "select id from orders union all select 0 where 0", "pragma table_info(orders)",
          "with recursive n(i) as (select 1 union all select i + 1 from n where i < 2) select i from n",
          "select * from v", "select * from pragma_table_info('orders')"}) {
        SCOPED_TRACE(sql);
        EXPECT_EQ(database.open(QString::fromUtf8(sql))->RecordCount(), 2);
    }
    Recordset table;
    table.Open(u"orders"_s, database.connect(), adOpenStatic, adLockReadOnly, adCmdTable);
    EXPECT_EQ(table.RecordCount(), 2);
}

// Pragmas that change something are tables as well, and run only with the statement.
TEST(Opening, KeepsWhatAStatementCallsFromWriting)
{
    const TestDatabase database(
        u"CREATE TABLE t(a); CREATE INDEX i ON t(a); ANALYZE;"
        "INSERT INTO t WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n "
        "WHERE x < 500) SELECT x FROM n;"_s);
    const QString statistics = database.ask(u"SELECT group_concat(stat) FROM sqlite_stat1"_s);
    const QByteArray before = database.fileBytes();
    const auto connection = database.connect();
    for (const char *sql : {"SELECT p.* FROM t, pragma_optimize p WHERE t.a = 1",
                            "SELECT a, (SELECT count(*) FROM pragma_optimize(0xfffe)) FROM t WHERE a = 7"}) {
        SCOPED_TRACE(sql);
        Recordset recordset;
        EXPECT_ADO_ERROR(dbErrPermissionDenied,
                         recordset.Open(QString::fromUtf8(sql), connection, adOpenKeyset, adLockOptimistic));
    }
    connection->Close();
    EXPECT_EQ(database.fileBytes(), before);
    EXPECT_EQ(database.ask(u"SELECT group_concat(stat) FROM sqlite_stat1"_s), statistics);
}

// SQLite's full-text search can be told where in memory its functions are.
TEST(Opening, RefusesStatementsThatNameCodeToRun)
{
    const TestDatabase database;
    for (const char *sql : {"SELECT fts3_tokenizer('simple', x'4141414141414141') AS a",
                            "SELECT hex(FTS3_Tokenizer('simple')) AS a"})
        EXPECT_THROW(database.open(QString::fromUtf8(sql)), Error) << sql;
}

TEST(Opening, ReadsAndWritesTablesForSearchingTextsAndPlaces)
{
    const TestDatabase database(u"CREATE VIRTUAL TABLE f USING fts5(title, body);"
                                "INSERT INTO f VALUES ('one', 'red apple'), ('two', 'green pear');"
                                "CREATE VIRTUAL TABLE f4 USING fts4(body);"
                                "INSERT INTO f4 VALUES ('red apple'), ('green pear');"
                                "CREATE VIRTUAL TABLE r USING rtree(id, x0, x1);"
                                "INSERT INTO r VALUES (1, 0, 10), (2, 20, 30);"_s);
    for (const char *sql :
         {"SELECT * FROM f WHERE f MATCH 'apple'", "SELECT * FROM f4 WHERE f4 MATCH 'apple'",
          "SELECT * FROM r WHERE x1 < 15", "SELECT highlight(f, 1, '<', '>') FROM f('pear')"}) {
        SCOPED_TRACE(sql);
        EXPECT_EQ(database.open(QString::fromUtf8(sql))->RecordCount(), 1);
    }
    const auto texts = database.open(u"SELECT title FROM f ORDER BY rowid"_s);
    texts->Fields().Item(0).PutValue(u"uno"_s);
    texts->Update();
    texts->MoveNext();
    texts->Delete();
    EXPECT_EQ(database.ask(u"SELECT group_concat(title || body) FROM f"_s), u"unored apple"_s);
    const auto places = database.open(u"SELECT * FROM r ORDER BY id"_s);
    places->MoveLast();
    places->Delete();
    EXPECT_EQ(database.ask(u"SELECT group_concat(id) FROM r"_s), u"1"_s);
    // What such a table keeps its index in is its own.
    const auto own = database.open(u"SELECT * FROM f_data"_s);
    EXPECT_THROW(own->Delete(), Error);
}

// A schema from a stranger can hold anything.
TEST(Opening, ASchemaCanCallOnlyFunctionsWithoutEffects)
{
    const TestDatabase database(u"CREATE TABLE t(a); INSERT INTO t VALUES (1);"
                                "CREATE VIEW v AS SELECT kova_digest(a) FROM t;"
                                "CREATE VIEW w AS SELECT * FROM pragma_optimize;"_s);
    EXPECT_THROW(database.open(u"SELECT * FROM v"_s), Error);
    EXPECT_THROW(database.open(u"SELECT * FROM w"_s), Error);
}

TEST(Opening, ReportsErrorsInTheDatabasesOwnWords)
{
    const TestDatabase database(refusalScript);
    const Error error = AdoTest::errorOf([&] { database.open(u"selec"_s); });
    EXPECT_TRUE(error.Description().contains(u"near \"selec\": syntax error")) << error.what();
    EXPECT_EQ(error.Number(), static_cast<qint32>(0x80040E14));
    EXPECT_EQ(error.SQLState(), u"42000"_s);
    EXPECT_EQ(error.Source(), u"SQLite"_s);
    EXPECT_EQ(error.NativeError(), 1);
    EXPECT_EQ(QString::fromUtf8(error.what()), error.Description());
    EXPECT_TRUE(AdoTest::errorOf([&] { database.open(u"select * from missing"_s); })
                    .Description()
                    .contains(u"missing"));
}

TEST(Opening, SaysThatTheDatabaseIsLocked)
{
    const TestDatabase database(refusalScript);
    const auto connection = database.connect();
    const OtherProgram other(database, "BEGIN EXCLUSIVE");
    Recordset recordset;
    EXPECT_ADO_ERROR(adErrResourceLocked, recordset.Open(u"SELECT * FROM orders"_s, connection));
    EXPECT_EQ(recordset.State(), adStateClosed);
}

TEST(Opening, NeedsAnOpenConnectionAndAClosedRecordset)
{
    const TestDatabase database(refusalScript);
    Recordset recordset;
    EXPECT_ADO_ERROR(adErrInvalidConnection, recordset.Open(u"SELECT 1"_s, nullptr));
    EXPECT_ADO_ERROR(adErrInvalidConnection, recordset.Open(u"SELECT 1"_s, std::make_shared<Connection>()));
    recordset.Open(u"SELECT 1"_s, database.connect());
    EXPECT_ADO_ERROR(adErrObjectOpen, recordset.Open(u"SELECT 1"_s, database.connect()));
    EXPECT_ADO_ERROR(adErrInvalidArgument,
                     Recordset().Open(u"SELECT 1"_s, database.connect(), static_cast<CursorTypeEnum>(9)));
}

TEST(Opening, EndsWhenTheProgressReportSaysSo)
{
    const TestDatabase database(refusalScript);
    const auto connection = database.connect();
    const QString endless =
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n"_s;
    Recordset recordset;
    qint64 reports = 0;
    qint64 seen = -1;
    recordset.SetProgress([&](qint64 rows) {
        EXPECT_GE(rows, seen);
        seen = rows;
        return ++reports < 50;
    });
    EXPECT_ADO_ERROR(dbErrCancelled, recordset.Open(endless, connection));
    EXPECT_EQ(reports, 50);
    EXPECT_GT(seen, 0);
    EXPECT_EQ(recordset.State(), adStateClosed);

    // The callback is also called for a statement that takes long to return a row.
    reports = 0;
    seen = -1;
    EXPECT_ADO_ERROR(dbErrCancelled, recordset.Open(endless + u" WHERE i < 0"_s, connection));
    EXPECT_EQ(reports, 50);
    EXPECT_EQ(seen, 0);

    // The next one starts afresh.
    recordset.SetProgress({});
    recordset.Open(u"SELECT * FROM orders"_s, connection);
    EXPECT_EQ(recordset.RecordCount(), 2);
}

TEST(Opening, OutlivesAConnectionThatIsClosedMeanwhile)
{
    const TestDatabase database(refusalScript);
    const auto connection = database.connect();
    Recordset recordset;
    recordset.SetProgress([&](qint64) {
        if (connection->State() == adStateOpen)
            connection->Close();
        return true;
    });
    recordset.Open(u"SELECT * FROM orders"_s, connection);
    EXPECT_EQ(recordset.RecordCount(), 2);
}

} // namespace
