#include "TestDatabase.h"
#include "Throwing.h"

#include <QtCore/QFile>

#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::cellTexts;
using AdoTest::OtherProgram;
using AdoTest::TestDatabase;

namespace {

const QString shop =
    u"CREATE TABLE customer(id INTEGER PRIMARY KEY, name TEXT NOT NULL, city TEXT DEFAULT '上海', vip "
    u"BOOLEAN);"
    "INSERT INTO customer VALUES (1, '甲', '北京', 1), (2, '乙', NULL, 0), (3, '丙', '广州', NULL);"
    "CREATE TABLE orders(no INTEGER PRIMARY KEY, customer INTEGER REFERENCES customer(id));"
    "INSERT INTO orders VALUES (10, 1);"
    "CREATE TABLE pair(a TEXT, b TEXT, v REAL, PRIMARY KEY(a, b));"
    "INSERT INTO pair VALUES ('x', 'y', 1), ('x', NULL, 2);"
    "CREATE TABLE loose(v TEXT);"
    "INSERT INTO loose VALUES ('same'), ('same'), ('other');"
    "CREATE TABLE strict_key(k TEXT PRIMARY KEY, v TEXT) WITHOUT ROWID;"
    "INSERT INTO strict_key VALUES ('k1', 'same'), ('k2', 'same'), ('k3', 'other');"_s;

void put(Recordset &recordset, const QString &field, const QVariant &value)
{
    recordset.Fields().Item(field).PutValue(value);
}

// A database that keeps no zone would drop it without a word.
TEST(WriteBack, TakesAZoneWhereValuesShowOne)
{
    const TestDatabase database(u"CREATE TABLE t(id INTEGER PRIMARY KEY, plain TIMESTAMP, zoned TIMESTAMP);"
                                "INSERT INTO t VALUES (1, '2024-07-01 12:00:00', NULL),"
                                "(2, NULL, '2024-07-01 12:00:00+08')"_s);
    const auto recordset = database.open(u"SELECT * FROM t ORDER BY id"_s);
    const QString typed = u"2024-07-02 01:02:03.123456-03:30"_s;
    EXPECT_ADO_ERROR(adErrDataConversion, put(*recordset, u"plain"_s, typed));
    EXPECT_ADO_ERROR(adErrDataConversion, put(*recordset, u"zoned"_s, u"2024-07-32 01:02+08"_s));
    put(*recordset, u"zoned"_s, typed);
    recordset->Update();
    EXPECT_EQ(database.ask(u"SELECT plain || zoned FROM t WHERE id = 1"_s), u"2024-07-01 12:00:00"_s + typed);
    recordset->AddNew();
    put(*recordset, u"zoned"_s, u"2024-07-02 01:02"_s);
    EXPECT_ADO_ERROR(adErrDataConversion, put(*recordset, u"plain"_s, typed));
}

TEST(WriteBack, DeletesTheOneRecord)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT name FROM customer ORDER BY id"_s);
    recordset->MoveNext();
    recordset->Delete(adAffectCurrent);
    EXPECT_EQ(recordset->RecordCount(), 2);
    EXPECT_EQ(recordset->EditMode(), adEditDelete);
    EXPECT_ADO_ERROR(dbErrDeletedRow, recordset->Fields().Item(0).Value());
    EXPECT_ADO_ERROR(dbErrDeletedRow, recordset->Delete());
    recordset->MoveNext();
    EXPECT_EQ(recordset->Fields().Item(0).Value(), QVariant(u"丙"_s));
    EXPECT_EQ(cellTexts(*recordset), u"甲\n丙"_s);
    EXPECT_EQ(database.ask(u"SELECT group_concat(id) FROM customer"_s), u"1,3"_s);
}

TEST(WriteBack, DeletesOneOfSeveralEqualRowsByItsRowid)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT v FROM loose"_s);
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT group_concat(v) FROM loose"_s), u"same,other"_s);
    EXPECT_ADO_ERROR(adErrInvalidArgument, recordset->Delete(adAffectAll));
}

TEST(WriteBack, KeepsARecordThatOthersReferTo)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT * FROM customer"_s);
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->Delete());
    EXPECT_EQ(recordset->RecordCount(), 3);
    EXPECT_EQ(recordset->Fields().Item(0).Value(), QVariant(1));
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM customer"_s), u"3"_s);
    // Nothing of the failed transaction is left open.
    recordset->MoveNext();
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM customer"_s), u"2"_s);
}

TEST(WriteBack, KeepsARecordWhoseConstraintIsOnlyCheckedAtTheEnd)
{
    const TestDatabase database(u"CREATE TABLE a(id INTEGER PRIMARY KEY);"
                                "CREATE TABLE b(a REFERENCES a(id) DEFERRABLE INITIALLY DEFERRED);"
                                "INSERT INTO a VALUES (1); INSERT INTO b VALUES (1);"_s);
    const auto recordset = database.open(u"SELECT * FROM a"_s);
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->Delete());
    EXPECT_EQ(recordset->RecordCount(), 1);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM a"_s), u"1"_s);
}

TEST(WriteBack, UpdatesTheFieldsThatWereWritten)
{
    const TestDatabase database(shop);
    const auto recordset =
        database.open(u"SELECT name, city, vip, id * 10 AS ten FROM customer ORDER BY id"_s);
    put(*recordset, u"Name"_s, u"新名"_s);
    put(*recordset, u"vip"_s, false);
    EXPECT_EQ(recordset->EditMode(), adEditInProgress);
    EXPECT_EQ(recordset->Fields().Item(0).Value(), QVariant(u"新名"_s))
        << "a pending edit is seen in its field";
    EXPECT_EQ(recordset->CellText(1, 0), u"甲"_s) << "and only there";
    recordset->Update();
    EXPECT_EQ(recordset->EditMode(), adEditNone);
    EXPECT_EQ(cellTexts(*recordset).section(u'\n', 0, 0), u"新名|北京|False|10"_s);
    EXPECT_EQ(database.ask(u"SELECT name || city || vip FROM customer WHERE id = 1"_s), u"新名北京0"_s);
    put(*recordset, u"city"_s, QVariant());
    recordset->Update();
    EXPECT_EQ(database.ask(u"SELECT city FROM customer WHERE id = 1"_s), u"NULL"_s);
    EXPECT_ADO_ERROR(adErrFeatureNotAvailable, put(*recordset, u"ten"_s, 1));
    EXPECT_ADO_ERROR(adErrDataConversion, put(*recordset, u"vip"_s, u"perhaps"_s));
    EXPECT_EQ(recordset->EditMode(), adEditNone);
}

TEST(WriteBack, FollowsAChangedKeyAndAStoredValue)
{
    const TestDatabase database(shop +
                                u"CREATE TRIGGER tidy AFTER UPDATE OF name ON customer BEGIN"
                                " UPDATE customer SET name = trim(new.name) WHERE id = new.id; END;"_s);
    const auto recordset = database.open(u"SELECT id, name FROM customer WHERE id = 3"_s);
    put(*recordset, u"id"_s, 33);
    recordset->Update();
    put(*recordset, u"name"_s, u"  丁 "_s);
    recordset->Update();
    EXPECT_EQ(cellTexts(*recordset), u"33|丁"_s);
    EXPECT_EQ(database.ask(u"SELECT name FROM customer WHERE id = 33"_s), u"丁"_s);
}

TEST(WriteBack, SavesWhenMovingAway)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT * FROM customer ORDER BY id"_s);
    put(*recordset, u"city"_s, u"深圳"_s);
    recordset->MoveNext();
    EXPECT_EQ(recordset->AbsolutePosition(), 2);
    EXPECT_EQ(database.ask(u"SELECT city FROM customer WHERE id = 1"_s), u"深圳"_s);

    put(*recordset, u"name"_s, QVariant());
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->MoveNext());
    EXPECT_EQ(recordset->AbsolutePosition(), 2) << "what can't be saved is not left";
    EXPECT_EQ(recordset->EditMode(), adEditInProgress);
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->PutAbsolutePage(1));
    recordset->CancelUpdate();
    EXPECT_EQ(recordset->Fields().Item(u"name"_s).Value(), QVariant(u"乙"_s));
    recordset->MoveNext();
    EXPECT_EQ(recordset->AbsolutePosition(), 3);
}

TEST(WriteBack, RefusesToOverwriteWhatSomebodyElseChanged)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT * FROM customer ORDER BY id"_s);
    database.execute(u"UPDATE customer SET city = '天津' WHERE id = 1; DELETE FROM customer WHERE id = 3;"_s);
    put(*recordset, u"city"_s, u"深圳"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Update());
    EXPECT_EQ(database.ask(u"SELECT city FROM customer WHERE id = 1"_s), u"天津"_s);
    recordset->CancelUpdate();
    recordset->MoveLast();
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    EXPECT_EQ(recordset->RecordCount(), 3);
}

TEST(WriteBack, InsertsAndShowsWhatTheDatabaseMadeOfIt)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT * FROM customer ORDER BY id"_s);
    recordset->AddNew();
    EXPECT_EQ(recordset->EditMode(), adEditAdd);
    EXPECT_FALSE(recordset->isEOF());
    EXPECT_EQ(recordset->AbsolutePosition(), adPosUnknown);
    EXPECT_EQ(recordset->RecordCount(), 3);
    EXPECT_FALSE(recordset->Fields().Item(0).Value().isValid());
    put(*recordset, u"name"_s, u"丁"_s);
    put(*recordset, u"vip"_s, true);
    recordset->Update();
    EXPECT_EQ(recordset->RecordCount(), 4);
    EXPECT_EQ(recordset->AbsolutePosition(), 4);
    EXPECT_EQ(cellTexts(*recordset).section(u'\n', 3), u"4|丁|上海|True"_s);
    EXPECT_EQ(database.ask(u"SELECT name || city || vip FROM customer WHERE id = 4"_s), u"丁上海1"_s);

    put(*recordset, u"city"_s, u"南京"_s);
    recordset->Update();
    EXPECT_EQ(recordset->CellText(4, 2), u"南京"_s) << "a new record can be edited at once";
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM customer"_s), u"3"_s);
}

TEST(WriteBack, InsertsOneAfterTheOther)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT v FROM loose WHERE v = 'none'"_s);
    for (const QString &text : {u"a"_s, u"b"_s, u"c"_s}) {
        recordset->AddNew();
        put(*recordset, u"v"_s, text);
    }
    recordset->MoveFirst();
    EXPECT_EQ(cellTexts(*recordset), u"a\nb\nc"_s);
    EXPECT_EQ(recordset->Fields().Item(0).Value(), QVariant(u"a"_s));
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM loose"_s), u"6"_s);
}

TEST(WriteBack, KeepsAFailedInsertPendingUntilItIsCancelled)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT * FROM customer ORDER BY id"_s);
    recordset->MoveNext();
    recordset->AddNew();
    put(*recordset, u"id"_s, 1);
    put(*recordset, u"name"_s, u"重"_s);
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->Update());
    EXPECT_EQ(recordset->EditMode(), adEditAdd);
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->MoveFirst());
    EXPECT_ADO_ERROR(dbErrCancelled, recordset->AddNew());
    EXPECT_EQ(recordset->EditMode(), adEditAdd) << "the refused one stays";
    put(*recordset, u"id"_s, 9);
    recordset->CancelUpdate();
    EXPECT_EQ(recordset->AbsolutePosition(), 2) << "back where it was";
    EXPECT_EQ(recordset->RecordCount(), 3);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM customer"_s), u"3"_s);
}

TEST(WriteBack, TakesNoEmptyRecordTwiceAndDropsItOnTheWay)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT * FROM customer ORDER BY id"_s);
    recordset->AddNew();
    EXPECT_ADO_ERROR(dbErrCancelled, recordset->AddNew());
    EXPECT_EQ(AdoTest::errorOf([&] { recordset->AddNew(); }).Number(), -2147217842);
    recordset->MoveNext();
    EXPECT_EQ(recordset->EditMode(), adEditNone);
    EXPECT_EQ(recordset->AbsolutePosition(), 2);
    recordset->AddNew();
    recordset->Delete();
    EXPECT_EQ(recordset->EditMode(), adEditNone);
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM customer"_s), u"3"_s);
    // Asked for outright, the database's defaults make the record.
    const auto loose = database.open(u"SELECT v FROM loose"_s);
    loose->AddNew();
    loose->Update();
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM loose WHERE v IS NULL"_s), u"1"_s);
}

TEST(WriteBack, FindsRowsByACompositeKeyWithNullInIt)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT v, b, a FROM pair ORDER BY v"_s);
    recordset->MoveLast();
    put(*recordset, u"v"_s, 7.5);
    recordset->Update();
    EXPECT_EQ(database.ask(u"SELECT v FROM pair WHERE b IS NULL"_s), u"7.5"_s);
    EXPECT_EQ(database.ask(u"SELECT v FROM pair WHERE b = 'y'"_s), u"1.0"_s);
}

TEST(WriteBack, FindsTheRowByAKeyThatIsNotShown)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT v FROM strict_key ORDER BY k"_s);
    recordset->MoveNext();
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT group_concat(k) FROM strict_key"_s), u"k1,k3"_s);
    recordset->AddNew();
    put(*recordset, u"v"_s, u"new"_s);
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->Update());

    const auto keyed = database.open(u"SELECT * FROM strict_key"_s);
    keyed->AddNew();
    put(*keyed, u"k"_s, u"k9"_s);
    keyed->Update();
    EXPECT_EQ(keyed->CellText(3, 0), u"k9"_s);
}

TEST(WriteBack, UsesAnotherNameWhereAColumnHidesTheRowid)
{
    const TestDatabase database(u"CREATE TABLE [odd \"t\"](rowid TEXT, v TEXT);"
                                "INSERT INTO [odd \"t\"] VALUES ('r', 'a'), ('r', 'a');"_s);
    const auto recordset = database.open(u"SELECT o.v FROM [odd \"t\"] AS o WHERE 1 ORDER BY 1 LIMIT 5;"_s);
    put(*recordset, u"v"_s, u"b"_s);
    recordset->Update();
    recordset->MoveNext();
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT group_concat(v) FROM [odd \"t\"]"_s), u"b"_s);
}

TEST(WriteBack, CarriesBinaryValues)
{
    const TestDatabase database(u"CREATE TABLE t(p BLOB); INSERT INTO t VALUES (x'00');"_s);
    const auto recordset = database.open(u"SELECT p FROM t"_s);
    put(*recordset, u"p"_s, QByteArray("\0\xff\0", 3));
    recordset->Update();
    EXPECT_EQ(database.ask(u"SELECT hex(p) FROM t"_s), u"00FF00"_s);
    put(*recordset, u"p"_s, QByteArray(""));
    recordset->Update();
    EXPECT_EQ(database.ask(u"SELECT typeof(p) FROM t"_s), u"blob"_s);
    EXPECT_ADO_ERROR(adErrDataConversion, put(*recordset, u"p"_s, u"text"_s));
}

TEST(WriteBack, UndoesWhatATriggerStops)
{
    const TestDatabase database(
        u"CREATE TABLE t(a TEXT); INSERT INTO t VALUES ('x');"
        "CREATE TRIGGER ignore BEFORE DELETE ON t BEGIN SELECT raise(IGNORE); END;"
        "CREATE TRIGGER stop BEFORE UPDATE ON t BEGIN SELECT raise(ABORT, 'not now'); END;"_s);
    const auto recordset = database.open(u"SELECT a FROM t"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    put(*recordset, u"a"_s, u"y"_s);
    const Error error = AdoTest::errorOf([&] { recordset->Update(); });
    EXPECT_TRUE(error.Description().contains(u"not now")) << error.what();
    EXPECT_EQ(cellTexts(*recordset), u"x"_s);
    EXPECT_EQ(database.ask(u"SELECT a FROM t"_s), u"x"_s);
}

#ifdef Q_OS_UNIX
TEST(WriteBack, WritesNothingWhereTheFileIsNoMoreTheOneThatWasRead)
{
    for (const bool isReplaced : {false, true}) {
        SCOPED_TRACE(isReplaced ? "replaced" : "deleted");
        const QString table = u"PRAGMA journal_mode = WAL; CREATE TABLE t(id INTEGER PRIMARY KEY, a TEXT);"_s;
        const TestDatabase database(table + u"INSERT INTO t VALUES (1, 'old')"_s);
        const TestDatabase other(table + u"INSERT INTO t VALUES (1, 'old'), (2, 'new')"_s);
        const auto recordset = database.open(u"SELECT * FROM t ORDER BY id"_s);
        ASSERT_TRUE(QFile::remove(database.path()));
        if (isReplaced) {
            ASSERT_TRUE(QFile::rename(other.path(), database.path()));
        }
        put(*recordset, u"a"_s, u"mine"_s);
        const Error error = AdoTest::errorOf([&] { recordset->Update(); });
        EXPECT_TRUE(error.Description().contains(u"已被移动、删除或替换")) << error.what();
        recordset->CancelUpdate();
        EXPECT_THROW(recordset->Delete(), Error);
        if (isReplaced) {
            EXPECT_EQ(database.ask(u"SELECT group_concat(a) FROM t"_s), u"old,new"_s);
        }
    }
}
#endif

TEST(WriteBack, SaysThatTheDatabaseIsLocked)
{
    const TestDatabase database(shop);
    const auto recordset = database.open(u"SELECT * FROM customer WHERE id = 3"_s);
    {
        const OtherProgram other(database, "BEGIN IMMEDIATE");
        EXPECT_ADO_ERROR(adErrResourceLocked, recordset->Delete());
    }
    EXPECT_EQ(recordset->RecordCount(), 1);
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT count(*) FROM customer"_s), u"2"_s);
}

} // namespace
