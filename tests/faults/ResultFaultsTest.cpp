// Results that are not what anybody expects.
#include "FaultFixture.h"

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class ResultFaults : public FaultFixture
{
};

} // namespace

KOVA_ON_FAULT_ENGINES(ResultFaults);

TEST_P(ResultFaults, TableDroppedBetweenTwoCommands)
{
    ASSERT_TRUE(load());
    run(u"DROP TABLE faults"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    hands->click(u"Sort"_s);
    EXPECT_TRUE(openError().startsWith(u"找不到表或视图"));
    expectAsLoaded();
}

TEST_P(ResultFaults, FieldTypeChangedBetweenTwoCommands)
{
    ASSERT_TRUE(load());
    run(u"ALTER TABLE faults "_s + QLatin1StringView(engine.idToText));
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    hands->click(u"Sort"_s);
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    EXPECT_EQ(hands->rows(), 1000);
    EXPECT_EQ(hands->texts(u"id"_s).first(), u"999"_s) << "sorted as the texts that they are now";
}

TEST_P(ResultFaults, FieldRemovedBetweenTwoCommands)
{
    ASSERT_TRUE(load(u"SELECT id,name FROM faults"_s));
    run(u"ALTER TABLE faults DROP COLUMN name"_s);
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    hands->click(u"Sort"_s);
    EXPECT_TRUE(openError().contains(u"name"));
    EXPECT_EQ(hands->rows(), 1000);
    EXPECT_EQ(hands->columns(), QStringList({u"id"_s, u"name"_s}));
}

TEST_P(ResultFaults, ResultOfNoColumns)
{
    if (!engine.isPostgreSql())
        GTEST_SKIP() << "it has no such results";
    ASSERT_TRUE(load());
    run(u"DROP TABLE IF EXISTS no_columns"_s);
    run(u"CREATE TABLE no_columns ()"_s);
    hands->grid.PutSQLShow(u"SELECT * FROM no_columns"_s);
    EXPECT_FALSE(hands->grid.IsLoadData());
    EXPECT_TRUE(loadError().startsWith(u"只能打开返回记录的查询语句"));
    expectAsLoaded();
}

TEST_P(ResultFaults, DuplicateColumnNames)
{
    ASSERT_TRUE(load(u"SELECT id, id, name AS id FROM faults ORDER BY 1"_s));
    EXPECT_EQ(hands->rows(), 1000);
    EXPECT_EQ(hands->columns(), QStringList({u"id"_s, u"id"_s, u"id"_s}));
    EXPECT_EQ(hands->grid.CellText(1, 1), u"1"_s);
    EXPECT_EQ(hands->grid.CellText(1, 3), u"name 1"_s);
    EXPECT_TRUE(hands->messages.shown().empty());
}

TEST_P(ResultFaults, SixteenHundredColumns)
{
    QStringList columns;
    for (int i = 1; i <= 1600; ++i)
        columns += u"%1 AS c%1"_s.arg(i);
    ASSERT_TRUE(load(u"SELECT "_s + columns.join(u',') + u" FROM "_s + engine.numbersTo(10)));
    EXPECT_EQ(hands->columns().size(), 1600);
    EXPECT_EQ(hands->rows(), 10);
    EXPECT_EQ(hands->grid.CellText(10, 1600), u"1600"_s);
}

TEST_P(ResultFaults, ValueThatDoesNotDecode)
{
    if (!engine.isPostgreSql())
        GTEST_SKIP() << "it keeps no such values as texts";
    if (ask(u"SELECT count(*) FROM pg_database WHERE datname = 'kova_bytes'"_s) == u"0")
        run(u"CREATE DATABASE kova_bytes ENCODING 'SQL_ASCII' LC_COLLATE 'C' LC_CTYPE 'C' TEMPLATE template0"_s);
    const QString bytes = connection().replace(u"Database=kova"_s, u"Database=kova_bytes"_s);
    {
        OdbcSession session(bytes);
        session.run({u"DROP TABLE IF EXISTS t"_s, u"CREATE TABLE t (id INTEGER, a VARCHAR(20))"_s,
                     uR"(INSERT INTO t VALUES (1, E'caf\xe9'), (2, 'plain'))"_s});
    }
    ASSERT_TRUE(load());
    hands->grid.PutConnectionString(bytes);
    hands->grid.PutSQLShow(u"SELECT * FROM t ORDER BY id"_s);
    EXPECT_FALSE(hands->grid.IsLoadData()) << "rather than to show something else than there is";
    EXPECT_TRUE(loadError().contains(u"0xe9"));
    expectAsLoaded();
}
