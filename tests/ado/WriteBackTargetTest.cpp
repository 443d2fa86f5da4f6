// The row that a write changes must be the one that was shown, whatever else the statement shows.

#include "TestDatabase.h"
#include "Throwing.h"

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::cellTexts;
using AdoTest::TestDatabase;

namespace {

const QString targetScript = u"CREATE TABLE S(id INTEGER PRIMARY KEY, v INTEGER, name TEXT);"
                             "INSERT INTO S VALUES (1, 777, 'a'), (2, 20, 'b'), (3, 30, 'c'), (4, 40, 'd');"
                             "CREATE TABLE W(k TEXT PRIMARY KEY, v TEXT) WITHOUT ROWID;"
                             "INSERT INTO W VALUES ('k1', 'k2'), ('k2', 'k3'), ('k3', 'k1');"
                             "CREATE TABLE loose(v TEXT, n INTEGER);"
                             "INSERT INTO loose VALUES ('a', 1), ('b', 2), ('c', 3);"
                             "CREATE VIEW seen AS SELECT * FROM S;"_s;

QString idsOf(const TestDatabase &database)
{
    return database.ask(u"SELECT group_concat(id) FROM (SELECT id FROM S ORDER BY id)"_s);
}

void putField(Recordset &recordset, const QString &field, const QVariant &value)
{
    recordset.Fields().Item(field).PutValue(value);
}

TEST(WriteBackTarget, DeletesTheRowItselfWhereASubqueryShowsTheKeyOfAnother)
{
    const TestDatabase database(targetScript);
    const auto recordset = database.open(
        u"select (select x.id from S x where x.id > S.id order by x.id limit 1) as nxt, name from S"_s);
    ASSERT_EQ(recordset->CellText(1, 0), u"2"_s);
    recordset->Delete();
    EXPECT_EQ(idsOf(database), u"2,3,4"_s);
}

TEST(WriteBackTarget, TakesNoValueForAColumnThatASubqueryReads)
{
    const TestDatabase database(targetScript);
    const auto recordset =
        database.open(u"select id, (select x.v from S x where x.id=1) as first_v from S where id=3"_s);
    ASSERT_EQ(recordset->CellText(1, 1), u"777"_s);
    EXPECT_ADO_ERROR(adErrFeatureNotAvailable, putField(*recordset, u"first_v"_s, 778));
    putField(*recordset, u"id"_s, 9);
    recordset->Update();
    EXPECT_EQ(database.ask(u"SELECT v FROM S WHERE id = 9"_s), u"30"_s);
    EXPECT_EQ(database.ask(u"SELECT v FROM S WHERE id = 1"_s), u"777"_s);
}

TEST(WriteBackTarget, ReachesTheRowBehindFieldsThatOnlyLookLikeColumns)
{
    for (const QString &item :
         {u"(SELECT x.id FROM S x WHERE x.id = 4) AS id"_s, u"(SELECT x.id FROM S x ORDER BY 1 DESC) id"_s,
          u"(SELECT id FROM seen ORDER BY 1) AS id"_s, u"(SELECT max(x.id) FROM S x) AS id"_s,
          u"(SELECT id FROM (SELECT * FROM S ORDER BY id DESC)) AS id"_s,
          u"(WITH c AS (SELECT * FROM S) SELECT id FROM c ORDER BY id) AS id"_s,
          u"CASE WHEN 1 THEN (SELECT 4) END AS id"_s, u"(id) AS id"_s, u"+id AS id"_s, u"id + 1 AS id"_s,
          u"CAST(id AS INTEGER) AS id"_s, u"id COLLATE NOCASE AS id"_s, u"(SELECT S.id) AS id"_s,
          u"(SELECT v FROM W) AS id"_s, u"'id' AS id"_s, u"max(id, 4) AS id"_s}) {
        SCOPED_TRACE(item.toStdString());
        const TestDatabase database(targetScript);
        const auto recordset = database.open(u"SELECT %1, name FROM S ORDER BY S.id"_s.arg(item));
        EXPECT_EQ(recordset->Fields().Item(0).Attributes() & adFldUpdatable, 0);
        EXPECT_NE(recordset->Fields().Item(1).Attributes() & adFldUpdatable, 0);
        EXPECT_ADO_ERROR(adErrFeatureNotAvailable, putField(*recordset, u"id"_s, 9));
        recordset->MoveNext();
        putField(*recordset, u"name"_s, u"new"_s);
        recordset->Update();
        EXPECT_EQ(database.ask(u"SELECT group_concat(id || name) FROM (SELECT * FROM S ORDER BY id)"_s),
                  u"1a,2new,3c,4d"_s);
        recordset->Delete();
        EXPECT_EQ(idsOf(database), u"1,3,4"_s);
    }
}

TEST(WriteBackTarget, WritesPlainColumnsHoweverTheyAreSpelt)
{
    for (const QString &item : {u"v"_s, u"S.v"_s, u"main.S.v"_s, u"[v]"_s, u"`S`.\"v\" AS [x]"_s, u"V 'x'"_s,
                                u"S.*"_s, u"*"_s, u"S . /* , */ v"_s}) {
        SCOPED_TRACE(item.toStdString());
        const TestDatabase database(targetScript);
        const auto recordset = database.open(u"SELECT ALL name, %1 FROM S WHERE id = 2"_s.arg(item));
        const int column = recordset->Fields().Count() == 2 ? 1 : 2;
        recordset->Fields().Item(column).PutValue(21);
        recordset->Update();
        EXPECT_EQ(database.ask(u"SELECT group_concat(v) FROM (SELECT * FROM S ORDER BY id)"_s),
                  u"777,21,30,40"_s);
    }
}

TEST(WriteBackTarget, RefusesResultsWhoseRowsAreNoneOfTheTable)
{
    const TestDatabase database(targetScript);
    const QByteArray before = database.fileBytes();
    for (const QString &sql : {u"SELECT name, (SELECT max(S.id)) FROM S"_s,
                               u"SELECT name, (SELECT (SELECT min(S.id))) FROM S"_s,
                               u"SELECT name, (SELECT max(S.id) FROM W) FROM S"_s,
                               u"SELECT id, 1 + total(v) AS v FROM S"_s,
                               u"SELECT a.id, a.name FROM S a, S b WHERE b.id = 4"_s,
                               u"SELECT b.* FROM S a JOIN S b ON b.id = a.id + 1"_s,
                               u"SELECT * FROM S a NATURAL JOIN S b"_s,
                               u"SELECT * FROM (SELECT id, v, name FROM S)"_s,
                               u"SELECT * FROM (S)"_s,
                               u"WITH S AS (SELECT 4 AS id, 5 AS v) SELECT id FROM S"_s,
                               u"SELECT * FROM seen"_s,
                               u"SELECT id, sum(v) OVER () FROM S"_s,
                               u"SELECT id IS DISTINCT FROM v FROM S"_s,
                               u"SELECT S.* FROM S JOIN loose ON loose.n = S.id"_s,
                               u"SELECT * FROM S, W"_s,
                               u"SELECT count(*) AS id FROM S"_s,
                               u"SELECT max(id) AS id FROM S"_s,
                               u"SELECT id, upper(group_concat(name)) FROM S"_s,
                               u"SELECT v, count(*) FROM S GROUP BY v"_s,
                               u"SELECT DISTINCT name FROM S"_s,
                               u"SELECT id FROM S UNION SELECT 1"_s,
                               u"WITH x AS (SELECT * FROM S) SELECT * FROM x"_s,
                               u"SELECT id, row_number() OVER () FROM S"_s,
                               u"VALUES (1)"_s,
                               u"SELECT * FROM json_each('[1]')"_s,
                               u"SELECT 1"_s}) {
        SCOPED_TRACE(sql.toStdString());
        const auto recordset = database.open(sql);
        const qint64 records = recordset->RecordCount();
        EXPECT_ADO_ERROR(adErrFeatureNotAvailable, recordset->Delete());
        EXPECT_ADO_ERROR(adErrFeatureNotAvailable, recordset->AddNew());
        EXPECT_ADO_ERROR(adErrFeatureNotAvailable, recordset->Fields().Item(0).PutValue(1));
        EXPECT_EQ(recordset->EditMode(), adEditNone);
        EXPECT_EQ(recordset->RecordCount(), records);
    }
    EXPECT_ADO_ERROR(adErrFeatureNotAvailable, database.open(u"SELECT * FROM S"_s, adLockReadOnly)->Delete());
    EXPECT_EQ(database.fileBytes(), before);
}

TEST(WriteBackTarget, AllowsWhatOnlyLooksFolded)
{
    const TestDatabase database(targetScript);
    for (const char *sql :
         {"SELECT name, max(id, 5) FROM S", "SELECT name, (SELECT count(*) FROM W) FROM S",
          "SELECT name FROM S WHERE id > (SELECT min(id) FROM S) - 1", "SELECT name AS [count] FROM S"}) {
        SCOPED_TRACE(sql);
        const auto recordset = database.open(QString::fromUtf8(sql));
        EXPECT_NE(recordset->Fields().Item(0).Attributes() & adFldUpdatable, 0);
        recordset->Fields().Item(0).PutValue(u"same"_s);
        recordset->Update();
        EXPECT_EQ(recordset->CellText(1, 0), u"same"_s);
    }
}

TEST(WriteBackTarget, TakesTheKeyOfATableWithoutRowidFromItsOwnColumnsOnly)
{
    const TestDatabase database(targetScript);
    const auto recordset =
        database.open(u"SELECT (SELECT x.k FROM W x WHERE x.k = W.v) AS k, v FROM W ORDER BY W.k"_s);
    ASSERT_EQ(cellTexts(*recordset).section(u'\n', 0, 0), u"k2|k2"_s);
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT group_concat(k) FROM W"_s), u"k2,k3"_s);
}

TEST(WriteBackTarget, FollowsARowidThatIsWrittenUnderAnyName)
{
    const TestDatabase database(targetScript);
    const auto recordset = database.open(u"SELECT rowid, v, v AS again FROM loose ORDER BY n"_s);
    putField(*recordset, u"rowid"_s, 50);
    recordset->Update();
    putField(*recordset, u"again"_s, u"z"_s);
    recordset->Update();
    EXPECT_EQ(database.ask(u"SELECT group_concat(rowid || v || n) FROM loose"_s), u"2b2,3c3,50z1"_s);
    EXPECT_EQ(cellTexts(*recordset).section(u'\n', 0, 0), u"50|z|z"_s);
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT group_concat(v) FROM loose"_s), u"b,c"_s);

    const auto keyed = database.open(u"SELECT id, id AS twin FROM S WHERE id = 4"_s);
    putField(*keyed, u"id"_s, 41);
    putField(*keyed, u"twin"_s, 42);
    keyed->Update();
    EXPECT_EQ(idsOf(database), u"1,2,3,42"_s);
    EXPECT_EQ(cellTexts(*keyed), u"42|42"_s);
}

TEST(WriteBackTarget, RefusesARowThatTookTheRowidOfTheOneSeen)
{
    const TestDatabase database(targetScript);
    const auto recordset = database.open(u"SELECT v FROM loose ORDER BY n"_s);
    recordset->MoveNext();
    // The rows move up by one rowid.
    database.execute(u"DELETE FROM loose WHERE n = 1; VACUUM;"_s);
    ASSERT_EQ(database.ask(u"SELECT v FROM loose WHERE rowid = 2"_s), u"c"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    putField(*recordset, u"v"_s, u"z"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Update());
    EXPECT_EQ(database.ask(u"SELECT group_concat(v) FROM loose"_s), u"b,c"_s);
}

TEST(WriteBackTarget, WritesNothingOnceTheTableHasOtherColumns)
{
    const TestDatabase database(targetScript);
    const auto recordset = database.open(u"SELECT * FROM S ORDER BY id"_s);
    database.execute(u"ALTER TABLE S ADD COLUMN other INTEGER DEFAULT 4"_s);
    putField(*recordset, u"name"_s, u"new"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Update());
    EXPECT_EQ(database.ask(u"SELECT name FROM S WHERE id = 1"_s), u"a"_s);
    recordset->CancelUpdate();
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    EXPECT_EQ(idsOf(database), u"1,2,3,4"_s);
}

TEST(WriteBackTarget, LeavesGeneratedColumnsToTheDatabase)
{
    const TestDatabase database(u"CREATE TABLE g(a INTEGER, b INTEGER AS (a * 2), c AS (a || '') STORED);"
                                "INSERT INTO g(a) VALUES (1), (2);"_s);
    const auto recordset = database.open(u"SELECT * FROM g"_s);
    EXPECT_ADO_ERROR(adErrFeatureNotAvailable, putField(*recordset, u"b"_s, 1));
    putField(*recordset, u"a"_s, 5);
    recordset->Update();
    EXPECT_EQ(cellTexts(*recordset), u"5|10|5\n2|4|2"_s);
    recordset->Delete();
    EXPECT_EQ(database.ask(u"SELECT group_concat(a) FROM g"_s), u"2"_s);
}

// Characters that are markers or terminators for other programs are stored like any other.
TEST(WriteBackTarget, StoresTextsWhole)
{
    const TestDatabase database(targetScript);
    for (const QString &text : {u"\uFEFFa"_s, u"\uFEFF\uFEFF"_s, u"a\0b"_s, u"\uFFFEa"_s}) {
        const auto recordset = database.open(u"SELECT * FROM S ORDER BY id"_s);
        putField(*recordset, u"name"_s, text);
        recordset->Update();
        EXPECT_EQ(recordset->Fields().Item(u"name"_s).Value(), QVariant(text));
        EXPECT_EQ(database.ask(u"SELECT hex(name) FROM S WHERE id = 1"_s),
                  QString::fromLatin1(text.toUtf8().toHex().toUpper()));
        const auto again = database.open(u"SELECT * FROM S ORDER BY id"_s);
        EXPECT_EQ(again->CellText(1, 2), text);
        EXPECT_EQ(again->CellValue(1, 2), QVariant(text));
    }
}

} // namespace
