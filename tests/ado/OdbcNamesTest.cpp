// Names over ODBC: the tables that a database has, and every word of each engine's language as a name.
#include "OdbcEngines.h"
#include "TestDatabase.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::cellTexts;

namespace {

class OdbcNames : public AdoTest::OnOdbc
{
protected:
    // What is written one by one: a letter's case, a blank, and each kind of quote.
    QStringList names() const
    {
        QStringList all{u"plain"_s, u"Capital"_s, u"SHOUTED"_s, u"客户"_s, u"two words"_s, u"1a"_s,
                        u"a\"b"_s,  u"a]b"_s,     u"a`b"_s,     u"no#"_s,  u"it's"_s,      u"a$b"_s};
        const QString words = is("PostgreSQL") ? u"SELECT word FROM pg_get_keywords()"_s
                              : is("MariaDB")  ? u"SELECT word FROM information_schema.keywords"_s
                                               : QString();
        if (!words.isEmpty())
            all += cellTexts(*open(words)).split(u'\n', Qt::SkipEmptyParts);
        return all;
    }
};

KOVA_ON_ODBC_ENGINES(OdbcNames);

} // namespace

TEST_P(OdbcNames, AreReadAsTheyAreWritten)
{
    const auto connection = connect();
    const QStringList names = this->names();
    EXPECT_GT(names.size(), is("SQLite") ? 10 : 300);
    for (const QString &name : names) {
        const QString written = connection->WrittenName(name);
        const auto fields = connection->Describe(
            u"WITH %1 AS (SELECT 1 AS %1) SELECT %1 FROM %1 WHERE %1 > 0 ORDER BY %1"_s.arg(written));
        ASSERT_EQ(fields.size(), 1U);
        EXPECT_EQ(fields[0].name, name);
    }
}

TEST_P(OdbcNames, OfTablesAndViewsAreListedAndOpened)
{
    const auto connection = connect();
    execute(u"CREATE TABLE kova_a (%1 INTEGER)"_s.arg(connection->WrittenName(u"Order"_s)));
    execute(u"INSERT INTO kova_a VALUES (7)"_s);
    execute(u"CREATE VIEW kova_v AS SELECT * FROM kova_a"_s);
    QStringList found;
    for (const Connection::Table &table : connection->Tables()) {
        if (table.name != "kova_a"_L1 && table.name != "kova_v"_L1)
            continue; // another program's that uses the database meanwhile
        EXPECT_EQ(table.schema, QString());
        const auto records = open(u"SELECT %1 FROM %2"_s.arg(connection->WrittenName(u"Order"_s),
                                                             connection->WrittenName(table.name)),
                                  connection);
        EXPECT_EQ(records->CellText(1, 0), u"7"_s);
        found += table.name + (table.isView ? u" view"_s : QString());
    }
    EXPECT_EQ(found, (QStringList{u"kova_a"_s, u"kova_v view"_s}));
}

TEST_P(OdbcNames, OfMaterializedViewsAreListed)
{
    if (!is("PostgreSQL"))
        GTEST_SKIP() << "only it has them";
    execute(u"DROP MATERIALIZED VIEW IF EXISTS kova_m"_s);
    execute(u"CREATE MATERIALIZED VIEW kova_m AS SELECT 1 AS a"_s);
    const auto tables = connect()->Tables();
    const auto found = std::ranges::find(tables, u"kova_m"_s, &Connection::Table::name);
    EXPECT_TRUE(found != tables.end() && found->isView && found->schema.isEmpty());
    execute(u"DROP MATERIALIZED VIEW kova_m"_s);
}

// A schema that is not the usual one is part of the name.
TEST_P(OdbcNames, HaveTheirSchemaWhereItIsAnother)
{
    if (!is("PostgreSQL"))
        GTEST_SKIP() << "only its databases have several schemas";
    execute(u"DROP SCHEMA IF EXISTS \"Kova Own\" CASCADE"_s);
    execute(u"CREATE SCHEMA \"Kova Own\""_s);
    execute(u"CREATE TABLE \"Kova Own\".\"user\" AS SELECT 3 AS x"_s);
    const auto connection = connect();
    QString statement;
    for (const Connection::Table &table : connection->Tables()) {
        if (table.schema == u"Kova Own"_s)
            statement = u"SELECT * FROM "_s + connection->WrittenName(table.schema) + u'.' +
                        connection->WrittenName(table.name);
    }
    EXPECT_EQ(statement, u"SELECT * FROM \"Kova Own\".\"user\""_s);
    EXPECT_EQ(open(statement, connection)->CellText(1, 0), u"3"_s);
    execute(u"DROP SCHEMA \"Kova Own\" CASCADE"_s);
}
