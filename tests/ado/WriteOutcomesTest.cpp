// The outcomes of a write: saved, not saved (with the reason), or unknown.
#include "OdbcEngines.h"
#include "TestDatabase.h"
#include "Throwing.h"

#include "servers/OdbcSession.h"

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::cellTexts;
using AdoTest::errorOf;

namespace {

void putValue(Recordset &recordset, const QString &field, const QVariant &value)
{
    recordset.Fields().Item(field).PutValue(value);
}

class WriteOutcomes : public AdoTest::OnOdbc
{
protected:
    QString longText() const { return is("MariaDB") ? u"LONGTEXT"_s : u"TEXT"_s; }
    QString content(const QString &column = u"name"_s) const
    {
        return ask(u"SELECT %1 FROM kova_a WHERE id = 1"_s.arg(column));
    }
    void makeTable(const QString &rest = {})
    {
        execute(u"CREATE TABLE kova_a(id %1, name VARCHAR(40), note %2, price DECIMAL(8,2))"_s.arg(
                    QLatin1StringView(GetParam().integerKey), longText()) +
                rest);
        execute(u"INSERT INTO kova_a VALUES (1, 'one', 'first', 1.5), (2, 'two', 'second', 2.5)"_s);
    }
};

KOVA_ON_ODBC_ENGINES(WriteOutcomes);

TEST_P(WriteOutcomes, GiveWhatSomebodyElseWrote)
{
    makeTable();
    const auto recordset = open(u"SELECT id, name, note FROM kova_a ORDER BY id"_s);
    execute(u"UPDATE kova_a SET note = 'theirs' WHERE id = 1"_s);
    putValue(*recordset, u"name"_s, u"mine"_s);
    const Error error = errorOf([&] { recordset->Update(); });
    EXPECT_TRUE(error.is(dbErrConcurrency)) << error.what();
    EXPECT_TRUE(error.Description().contains(u"已被其他用户修改，")) << error.what();
    EXPECT_EQ(content(), u"one"_s);

    Field &note = recordset->Fields().Item(u"note"_s);
    EXPECT_EQ(note.UnderlyingValue(), QVariant(u"first"_s)) << "nobody has asked yet";
    recordset->Resync(adAffectCurrent, adResyncUnderlyingValues);
    EXPECT_EQ(note.UnderlyingValue(), QVariant(u"theirs"_s));
    EXPECT_EQ(note.OriginalValue(), QVariant(u"first"_s));
    EXPECT_EQ(recordset->Fields().Item(u"name"_s).Value(), QVariant(u"mine"_s)) << "the edit is kept";
    EXPECT_EQ(recordset->Fields().Item(u"name"_s).OriginalValue(), QVariant(u"one"_s));
    EXPECT_EQ(recordset->EditMode(), adEditInProgress);

    recordset->Resync();
    EXPECT_EQ(recordset->EditMode(), adEditNone);
    EXPECT_EQ(recordset->CellText(1, 2), u"theirs"_s);
    putValue(*recordset, u"name"_s, u"mine"_s);
    recordset->Update();
    EXPECT_EQ(content(), u"mine"_s);

    execute(u"DELETE FROM kova_a WHERE id = 1"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    EXPECT_ADO_ERROR(dbErrDeletedRow, recordset->Resync());
}

TEST_P(WriteOutcomes, CompareLongValuesToTheirEnd)
{
    makeTable();
    execute(u"UPDATE kova_a SET note = '%1'"_s.arg(QString(70'000, u'n')));
    const auto recordset = open(u"SELECT id, name, note FROM kova_a ORDER BY id"_s);
    execute(u"UPDATE kova_a SET note = '%1x' WHERE id = 1"_s.arg(QString(69'999, u'n')));
    putValue(*recordset, u"name"_s, u"mine"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Update());
    recordset->CancelUpdate();
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    EXPECT_EQ(content(), u"one"_s);
    recordset->MoveLast();
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s);
}

TEST_P(WriteOutcomes, TakeAValueThatTheDatabaseRoundsToTheStoredOne)
{
    if (is("SQLite"))
        GTEST_SKIP() << "it stores what it is given";
    makeTable();
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    putValue(*recordset, u"price"_s, u"1.504"_s);
    recordset->Update();
    EXPECT_EQ(recordset->CellText(1, 3), u"1.50"_s);
    putValue(*recordset, u"price"_s, u"1.516"_s);
    recordset->Update();
    EXPECT_EQ(content(u"price"_s), u"1.52"_s);
}

TEST_P(WriteOutcomes, SaveOrRefuseARoundedValueWithoutAKey)
{
    if (is("SQLite"))
        GTEST_SKIP() << "it stores what it is given";
    execute(u"CREATE TABLE kova_b(name VARCHAR(10), price DECIMAL(8,2))"_s);
    execute(u"INSERT INTO kova_b VALUES ('a', 1.5), ('b', 2.5)"_s);
    const auto recordset = open(u"SELECT * FROM kova_b ORDER BY name"_s);
    putValue(*recordset, u"price"_s, u"1.516"_s);
    if (is("PostgreSQL")) {
        recordset->Update();
        EXPECT_EQ(recordset->CellText(1, 1), u"1.52"_s);
    } else {
        const Error error = errorOf([&] { recordset->Update(); });
        EXPECT_TRUE(error.Description().contains(u"与填写的不同")) << error.what();
        EXPECT_EQ(ask(u"SELECT price FROM kova_b WHERE name = 'a'"_s), u"1.50"_s);
        recordset->CancelUpdate();
        putValue(*recordset, u"price"_s, u"1.504"_s); // which changes nothing
        recordset->Update();
        EXPECT_EQ(recordset->CellText(1, 1), u"1.50"_s);
    }
}

TEST_P(WriteOutcomes, SaveNothingThatMakesTwoRowsOfATableWithoutKeyEqual)
{
    execute(u"CREATE TABLE kova_b(a INTEGER, b VARCHAR(10))"_s);
    execute(u"INSERT INTO kova_b VALUES (1, 'x'), (2, 'x')"_s);
    const auto recordset = open(u"SELECT a, b FROM kova_b ORDER BY a"_s);
    putValue(*recordset, u"a"_s, 2);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Update());
    EXPECT_EQ(ask(u"SELECT sum(a) FROM kova_b"_s), u"3"_s);
}

TEST_P(WriteOutcomes, FollowARowWhoseComputedFieldsChangeByThemselves)
{
    makeTable();
    const auto recordset =
        open((is("MariaDB") ? u"SELECT name, rand() AS r, uuid() AS u FROM kova_a ORDER BY id"_s
                            : u"SELECT name, random() AS r, current_timestamp AS u FROM kova_a "
                              "ORDER BY id"_s));
    putValue(*recordset, u"name"_s, u"mine"_s);
    recordset->Update();
    EXPECT_EQ(content(), u"mine"_s);
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s);
}

TEST_P(WriteOutcomes, SaveWhereAnotherRowIsLockedAndReportWhenTheirOwnIs)
{
    if (is("SQLite"))
        GTEST_SKIP() << "it locks the whole file";
    makeTable();
    auto connection = std::make_shared<Connection>();
    connection->Open(u"Command Timeout=1;"_s + connectionString());
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    KovaTest::OdbcSession other(connectionString());
    other.run({u"BEGIN"_s, u"UPDATE kova_a SET name = 'theirs' WHERE id = 1"_s});
    putValue(*recordset, u"name"_s, u"mine"_s);
    EXPECT_THROW(recordset->Update(), Error);
    EXPECT_EQ(content(), u"one"_s);
    recordset->CancelUpdate();
    recordset->MoveNext();
    recordset->Delete();
    other.run(u"ROLLBACK"_s);
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s);
}

class WritesOnMariaDb : public WriteOutcomes
{
};

INSTANTIATE_TEST_SUITE_P(Engines, WritesOnMariaDb, testing::Values(AdoTest::odbcEngines[2]));

TEST_P(WritesOnMariaDb, LeaveTablesWithoutTransactionsAndKeyAlone)
{
    for (const char *engine : {"MyISAM", "Aria", "MEMORY"}) {
        SCOPED_TRACE(engine);
        execute(u"CREATE TABLE kova_b(a INTEGER, b VARCHAR(10)) ENGINE="_s + QLatin1StringView(engine));
        execute(u"INSERT INTO kova_b VALUES (1, 'x'), (1, 'x'), (1, 'x'), (2, 'x')"_s);
        for (const char *sql : {"SELECT * FROM kova_b ORDER BY a", "SELECT a FROM kova_b ORDER BY a"}) {
            const auto recordset = open(QString::fromLatin1(sql));
            const Error error = errorOf([&] { recordset->Delete(); });
            EXPECT_TRUE(error.is(adErrFeatureNotAvailable)) << error.what();
            EXPECT_TRUE(error.Description().contains(u"“kova_b”既没有主键，又不支持事务")) << error.what();
            EXPECT_ADO_ERROR(adErrFeatureNotAvailable, putValue(*recordset, u"a"_s, 2));
            EXPECT_ADO_ERROR(adErrFeatureNotAvailable, recordset->AddNew());
        }
        EXPECT_EQ(ask(u"SELECT count(*) FROM kova_b WHERE a = 1"_s), u"3"_s);
        execute(u"DROP TABLE kova_b"_s);
    }
}

// "Nothing was saved" would not be true of it.
TEST_P(WritesOnMariaDb, SeeThatATableHasNoTransactionsAnyMore)
{
    const QString all = u"SELECT * FROM kova_b ORDER BY a"_s;
    execute(u"CREATE TABLE kova_b(a INTEGER, b VARCHAR(10)) ENGINE=InnoDB"_s);
    execute(u"INSERT INTO kova_b VALUES (1, 'x'), (2, 'x')"_s);
    const auto connection = connect();
    auto recordset = open(all, connection);
    execute(u"ALTER TABLE kova_b ENGINE=MyISAM"_s);
    putValue(*recordset, u"a"_s, 2);
    const Error error = errorOf([&] { recordset->Update(); });
    EXPECT_TRUE(error.is(dbErrConcurrency)) << error.what();
    EXPECT_TRUE(error.Description().contains(u"表的结构已被其他程序更改"_s)) << error.what();
    recordset->CancelUpdate();
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    recordset->AddNew();
    putValue(*recordset, u"a"_s, 3);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Update());
    recordset->CancelUpdate();
    EXPECT_EQ(ask(u"SELECT group_concat(a ORDER BY a) FROM kova_b"_s), u"1,2"_s);

    recordset = open(all, connection);
    EXPECT_ADO_ERROR(adErrFeatureNotAvailable, putValue(*recordset, u"a"_s, 2));
    execute(u"ALTER TABLE kova_b ENGINE=InnoDB"_s);
    recordset = open(all, connection);
    putValue(*recordset, u"a"_s, 3);
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT group_concat(a ORDER BY a) FROM kova_b"_s), u"2,3"_s);
}

TEST_P(WritesOnMariaDb, WriteTablesWithoutTransactionsByTheirKey)
{
    makeTable(u" ENGINE=MyISAM"_s);
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    putValue(*recordset, u"name"_s, u"mine\\"_s);
    recordset->Update();
    EXPECT_EQ(content(), u"mine\\"_s);
    putValue(*recordset, u"price"_s, u"1.504"_s);
    recordset->Update();
    EXPECT_EQ(recordset->CellText(1, 3), u"1.50"_s);
    recordset->AddNew();
    putValue(*recordset, u"name"_s, u"three"_s);
    recordset->Update();
    EXPECT_EQ(recordset->CellText(3, 1), u"three"_s);
    putValue(*recordset, u"id"_s, 1); // there is one already
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->Update());
    recordset->CancelUpdate();
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"2"_s);
}

// What the server had saved when its connection was killed stays saved there.
TEST_P(WritesOnMariaDb, FindARecordWithoutTransactionsByTheKeyThatWasTyped)
{
    for (const bool isSaved : {true, false}) {
        makeTable(u" ENGINE=MyISAM"_s);
        const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
        execute(u"CREATE TRIGGER kova_t %1 INSERT ON kova_a FOR EACH ROW KILL CONNECTION_ID()"_s.arg(
            isSaved ? u"AFTER"_s : u"BEFORE"_s));
        recordset->AddNew();
        putValue(*recordset, u"id"_s, 7);
        putValue(*recordset, u"name"_s, u"mine"_s);
        putValue(*recordset, u"price"_s, u"1.5"_s); // stored as 1.50
        EXPECT_ADO_ERROR(dbErrInDoubt, recordset->Update());
        execute(u"DROP TRIGGER kova_t"_s);
        EXPECT_EQ(recordset->FindAttempt(), isSaved);
        if (!isSaved)
            recordset->Update();
        EXPECT_EQ(recordset->EditMode(), adEditNone);
        EXPECT_EQ(recordset->CellText(3, 3), u"1.50"_s);
        EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"3"_s);
        EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 7"_s), u"mine"_s);
        recordset->Close();
        execute(u"DROP TABLE kova_a"_s);
    }
}

// Two rows that a trigger makes of what was written are not what was asked for.
class WritesOnPostgreSql : public WriteOutcomes
{
};

INSTANTIATE_TEST_SUITE_P(Engines, WritesOnPostgreSql, testing::Values(AdoTest::odbcEngines[1]));

TEST_P(WritesOnPostgreSql, SayThatATriggerKeptTheRow)
{
    makeTable();
    execute(u"CREATE OR REPLACE FUNCTION kova_keep() RETURNS trigger LANGUAGE plpgsql AS "
            "$$ BEGIN RETURN NULL; END $$"_s);
    execute(
        u"CREATE TRIGGER keep BEFORE UPDATE OR DELETE ON kova_a FOR EACH ROW EXECUTE FUNCTION kova_keep()"_s);
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    putValue(*recordset, u"name"_s, u"mine"_s);
    const Error error = errorOf([&] { recordset->Update(); });
    EXPECT_TRUE(error.Description().contains(u"触发器")) << error.what();
    recordset->CancelUpdate();
    EXPECT_TRUE(errorOf([&] { recordset->Delete(); }).Description().contains(u"触发器"));
    EXPECT_EQ(content(), u"one"_s);
}

// Which column was changed meanwhile is not seen, but the version of the row is.
TEST_P(WritesOnPostgreSql, SeeAChangeOfAFieldThatIsNotShown)
{
    makeTable();
    const auto recordset = open(u"SELECT name FROM kova_a ORDER BY id"_s);
    execute(u"UPDATE kova_a SET price = 9 WHERE id = 1"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    recordset->Resync();
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s);
}

} // namespace
