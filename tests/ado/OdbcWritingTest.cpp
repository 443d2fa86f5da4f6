// Rows that are written back through a driver.
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

class WritingOnOdbc : public OnOdbc
{
protected:
    void SetUp() override
    {
        OnOdbc::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        execute(u"CREATE TABLE kova_a(id %1, name VARCHAR(40), price DECIMAL(38,2), note %2, seen %3)"_s.arg(
            QLatin1StringView(GetParam().integerKey), is("MariaDB") ? u"LONGTEXT"_s : u"TEXT"_s,
            QLatin1StringView(GetParam().timestamp)));
        execute(u"INSERT INTO kova_a(id, name, price, note, seen) VALUES (1, '甲', 1.5, 'n1', '2024-02-29 "
                u"09:05:00'),"
                " (2, '乙', NULL, NULL, NULL), (3, '', 3, 'n3', '2024-01-01 00:00:00.5')"_s);
    }
    QString table() const { return cellTexts(*open(u"SELECT * FROM kova_a ORDER BY id"_s)); }
};

KOVA_ON_ODBC_ENGINES(WritingOnOdbc);

// Drivers truncate the text there, some when writing and others when reading.
TEST_P(WritingOnOdbc, RefusesATextWithU0000)
{
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    for (const char *field : {"name", "note"}) {
        const QString name = QString::fromLatin1(field);
        const QString before = ask(u"SELECT %1 FROM kova_a WHERE id = 1"_s.arg(name));
        const Error error = errorOf([&] { recordset->Fields().Item(name).PutValue(u"a\0b"_s); });
        EXPECT_TRUE(error.is(adErrDataConversion)) << error.what();
        EXPECT_TRUE(error.Description().contains(u"U+0000")) << error.what();
        EXPECT_EQ(recordset->EditMode(), adEditNone);
        recordset->Update();
        EXPECT_EQ(ask(u"SELECT %1 FROM kova_a WHERE id = 1"_s.arg(name)), before);
    }
}

TEST_P(WritingOnOdbc, KeepsAByteOrderMarkAtTheBeginningOfAText)
{
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    const QString text = u"\uFEFF\uFEFF甲"_s;
    for (const char *field : {"name", "note"})
        recordset->Fields().Item(QString::fromLatin1(field)).PutValue(text);
    recordset->Update();
    for (const int column : {1, 3}) {
        EXPECT_EQ(recordset->CellText(1, column), text);
        EXPECT_EQ(open(u"SELECT * FROM kova_a ORDER BY id"_s)->CellText(1, column), text);
    }
    EXPECT_EQ(
        ask(u"SELECT %1(name) FROM kova_a WHERE id = 1"_s.arg(is("SQLite") ? u"length"_s : u"char_length"_s)),
        u"3"_s);
}

TEST_P(WritingOnOdbc, ChangesDeletesAndInsertsTheOneRow)
{
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    recordset->Fields().Item(u"name"_s).PutValue(u"丙😀"_s);
    recordset->Fields().Item(u"price"_s).PutValue(u"2.25"_s);
    recordset->Fields().Item(u"note"_s).PutValue(QString(5000, u'长'));
    recordset->Update();
    EXPECT_EQ(recordset->CellText(1, 1), u"丙😀"_s);
    EXPECT_EQ(recordset->CellText(1, 2), u"2.25"_s);
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a WHERE id = 1 AND price = 2.25 AND length(note) >= 5000"_s),
              u"1"_s);
    if (!is("SQLite")) { // which holds no decimals
        const QString digits = u"123456789012345678901234567890123456.78"_s;
        recordset->Fields().Item(u"price"_s).PutValue(digits);
        recordset->Update();
        EXPECT_EQ(recordset->CellText(1, 2), digits);
    }
    recordset->MoveNext();
    recordset->Fields().Item(u"seen"_s).PutValue(QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3), Qt::UTC));
    recordset->Update();
    EXPECT_EQ(recordset->CellText(2, 4), u"2020-02-29 01:02:03"_s);
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a WHERE id = 2"_s), u"0"_s);
    recordset->AddNew();
    recordset->Fields().Item(u"id"_s).PutValue(10);
    recordset->Fields().Item(u"name"_s).PutValue(u"新"_s);
    recordset->Update();
    EXPECT_EQ(recordset->RecordCount(), 3);
    EXPECT_EQ(recordset->CellText(3, 1), u"新"_s);
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 10"_s), u"新"_s);
}

TEST_P(WritingOnOdbc, FindsTheRowByAKeyThatIsNotShown)
{
    const auto recordset =
        open(u"SELECT a.name, upper(a.name) FROM kova_a a WHERE a.id >= 1 ORDER BY a.id DESC"_s);
    EXPECT_EQ(recordset->Fields().Count(), 2);
    EXPECT_NE(recordset->Fields().Item(0).Attributes() & adFldUpdatable, 0);
    EXPECT_EQ(recordset->Fields().Item(1).Attributes() & adFldUpdatable, 0);
    recordset->Fields().Item(0).PutValue(u"z"_s);
    recordset->Update();
    EXPECT_EQ(recordset->CellText(1, 1), u"Z"_s);
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 3"_s), u"z"_s);
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"2"_s);
    recordset->AddNew();
    recordset->Fields().Item(0).PutValue(u"自动"_s);
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a WHERE name = '自动'"_s), u"1"_s);
}

TEST_P(WritingOnOdbc, FindsTheRowByAKeyOfSeveralFields)
{
    execute(u"CREATE TABLE kova_b(a INTEGER, b VARCHAR(10), c VARCHAR(10), PRIMARY KEY (a, b))"_s);
    execute(u"INSERT INTO kova_b VALUES (1, 'x', 'same'), (1, 'y', 'same'), (2, 'x', 'same')"_s);
    const auto recordset = open(u"SELECT c, b FROM kova_b ORDER BY a, b"_s);
    EXPECT_EQ(recordset->Fields().Item(0).Attributes() & adFldKeyColumn, 0);
    EXPECT_NE(recordset->Fields().Item(1).Attributes() & adFldKeyColumn, 0);
    recordset->MoveNext();
    recordset->Fields().Item(0).PutValue(u"other"_s);
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT c FROM kova_b WHERE a = 1 AND b = 'y'"_s), u"other"_s);
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_b WHERE c = 'same'"_s), u"2"_s);
}

TEST_P(WritingOnOdbc, TakesAUniqueIndexForAKeyOnlyWhereItKnowsNoNulls)
{
    execute(u"CREATE TABLE kova_b(a INTEGER, b INTEGER NOT NULL)"_s);
    execute(u"CREATE UNIQUE INDEX kova_b_a ON kova_b(a)"_s);
    execute(u"CREATE UNIQUE INDEX kova_b_b ON kova_b(b)"_s);
    execute(u"INSERT INTO kova_b VALUES (1, 1), (NULL, 2), (NULL, 3)"_s);
    const auto recordset = open(u"SELECT a, b FROM kova_b ORDER BY b"_s);
    EXPECT_EQ(recordset->Fields().Item(0).Attributes() & adFldKeyColumn, 0);
    EXPECT_NE(recordset->Fields().Item(1).Attributes() & adFldKeyColumn, 0);
    recordset->MoveLast();
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT max(b) FROM kova_b"_s), u"2"_s);
}

TEST_P(WritingOnOdbc, OnlyReadsWhatIsNoWholeTable)
{
    if (!is("MariaDB"))
        GTEST_SKIP() << "it has no DUAL";
    const auto recordset = open(u"SELECT 1 AS a FROM dual"_s);
    EXPECT_EQ(recordset->CellText(1, 0), u"1"_s);
    EXPECT_ADO_ERROR(adErrFeatureNotAvailable, recordset->Delete());
}

TEST_P(WritingOnOdbc, LeavesTheRowOfAnotherAlone)
{
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    execute(u"UPDATE kova_a SET name = 'other' WHERE id = 1"_s);
    execute(u"DELETE FROM kova_a WHERE id = 2"_s);
    recordset->Fields().Item(u"name"_s).PutValue(u"mine"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Update());
    recordset->CancelUpdate();
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 1"_s), u"other"_s);
    recordset->MoveNext();
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    EXPECT_EQ(recordset->RecordCount(), 3);
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"2"_s);
}

TEST_P(WritingOnOdbc, ChangesNothingWhereAConstraintForbidsIt)
{
    // SQLite's driver leaves foreign keys unchecked, so its constraint is another one.
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    if (!is("SQLite")) {
        execute(u"CREATE TABLE kova_b(a INTEGER NOT NULL, FOREIGN KEY (a) REFERENCES kova_a(id))"_s);
        execute(u"INSERT INTO kova_b VALUES (1)"_s);
        EXPECT_ADO_ERROR(dbErrIntegrity, recordset->Delete());
    }
    recordset->Fields().Item(u"id"_s).PutValue(3);
    EXPECT_ADO_ERROR(dbErrIntegrity, recordset->Update());
    recordset->CancelUpdate();
    EXPECT_EQ(recordset->RecordCount(), 3);
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 1"_s), u"甲"_s);
    // The connection can still be used.
    recordset->Fields().Item(u"name"_s).PutValue(u"after"_s);
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 1"_s), u"after"_s);
}

TEST_P(WritingOnOdbc, NamesTheFieldThatTakesNoNull)
{
    execute(u"CREATE TABLE kova_b(id %1, 名称 VARCHAR(40) NOT NULL, 城市 VARCHAR(40))"_s.arg(
        QLatin1StringView(GetParam().integerKey)));
    execute(u"INSERT INTO kova_b(id, 名称, 城市) VALUES (1, '甲', '名称')"_s);
    // SQLite's driver doesn't tell which column has another name.
    const QString field = is("SQLite") ? u"名称"_s : u"品名"_s;
    const auto recordset = open(u"SELECT id, 名称 AS %1, 城市 FROM kova_b"_s.arg(field));
    recordset->Fields().Item(field).PutValue({});
    const Error changed = errorOf([&] { recordset->Update(); });
    recordset->CancelUpdate();
    recordset->AddNew();
    recordset->Fields().Item(u"城市"_s).PutValue(u"北京"_s);
    const Error added = errorOf([&] { recordset->Update(); });
    recordset->CancelUpdate();
    for (const Error &error : {changed, added}) {
        EXPECT_TRUE(error.is(dbErrIntegrity)) << error.what();
        EXPECT_EQ(error.SQLState(), u"23502"_s) << error.what();
        const QStringList lines = error.Description().split(u'\n');
        ASSERT_GE(lines.size(), 2) << error.what();
        EXPECT_EQ(lines.at(0), u"字段“%1”不能为空。"_s.arg(field));
        EXPECT_TRUE(lines.at(1).startsWith(u"操作违反了数据库的约束："_s) && lines.at(1).contains(u"名称"_s))
            << "the engine's own words: " << error.what();
    }
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_b"_s), u"1"_s);
}

TEST_P(WritingOnOdbc, RefusesToPickOneOfTwoEqualRows)
{
    execute(u"CREATE TABLE kova_b(a INTEGER, b VARCHAR(10))"_s);
    execute(u"INSERT INTO kova_b VALUES (1, 'x'), (1, 'x'), (2, NULL)"_s);
    const auto recordset = open(u"SELECT * FROM kova_b ORDER BY a"_s);
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_b"_s), u"3"_s);
    recordset->MoveLast();
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_b WHERE a = 2"_s), u"0"_s);
}

TEST_P(WritingOnOdbc, SaysWhyAResultCannotBeWritten)
{
    execute(u"CREATE VIEW kova_v AS SELECT * FROM kova_a"_s);
    for (const char *sql :
         {"SELECT * FROM kova_v", "SELECT count(*) FROM kova_a",
          "SELECT name, count(*) FROM kova_a GROUP BY name", "SELECT DISTINCT name FROM kova_a",
          "SELECT a.id FROM kova_a a, kova_a b", "SELECT 1"}) {
        SCOPED_TRACE(sql);
        const auto recordset = open(QString::fromUtf8(sql));
        EXPECT_ADO_ERROR(adErrFeatureNotAvailable, recordset->Delete());
    }
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"3"_s);
}

} // namespace
