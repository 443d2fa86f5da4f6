// Texts that make a statement look like one query while an engine would run more. Whatever the mode of the
// server and of its driver, they change nothing.
#include "OdbcEngines.h"
#include "TestDatabase.h"
#include "Throwing.h"

#include "servers/OdbcSession.h"

#include <QtCore/QStringList>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

// Additions to a connection string that change how the server or driver reads statements.
const QStringList &modesOf(const QString &engine)
{
    static const QStringList none{QString()};
    static const QStringList postgreSql{
        u"UseServerSidePrepare=1"_s, u"UseServerSidePrepare=0"_s,
        u"UseServerSidePrepare=0;ConnSettings={set standard_conforming_strings=off}"_s,
        u"UseServerSidePrepare=1;ConnSettings={set standard_conforming_strings=off}"_s,
        u"UseServerSidePrepare=0;UseDeclareFetch=0"_s};
    // Bit 26 of the options allows several statements.
    static const QStringList mariaDb{
        QString(),
        u"OPTION=67108864"_s,
        u"OPTION=67108864;INITSTMT={SET sql_mode='NO_BACKSLASH_ESCAPES'}"_s,
        u"OPTION=67108864;INITSTMT={SET sql_mode='ANSI_QUOTES'}"_s,
        u"OPTION=67108864;INITSTMT={SET sql_mode='ORACLE'}"_s,
        u"OPTION=67108864;INITSTMT={SET sql_mode='MSSQL'}"_s,
        u"OPTION=67108864;INITSTMT={SET sql_mode='MSSQL,NO_BACKSLASH_ESCAPES'}"_s};
    return engine == "PostgreSQL"_L1 ? postgreSql : engine == "MariaDB"_L1 ? mariaDb : none;
}

// Each hides a second statement, for some engine, from a reader with other rules.
const QStringList &attacks()
{
    static const QString change = u"commit; delete from kova_a; commit"_s;
    static const QStringList texts{
        u"select 1 as a; "_s + change,
        u"select 1 as a --\r; "_s + change,
        u"select 1 as a -- \r; "_s + change,
        u"select 1 as a --\f; "_s + change,
        u"select 1 as a --\v; "_s + change,
        u"select 1 as a --\u2028; "_s + change,
        u"select 1 as a --\u2029; "_s + change,
        u"select 1 as a --\u0085; "_s + change,
        u"select 1 as a --\u00a0; "_s + change,
        u"select 1 as a #\r; "_s + change,
        u"select 1 as a #; "_s + change,
        u"select 5--1; "_s + change,
        u"select '\\'; "_s + change + u"; -- '"_s,
        u"select '\\'' ; "_s + change + u"; -- "_s,
        u"select \"\\\"; "_s + change + u"; -- \""_s,
        u"select e'\\'; "_s + change + u"; --'"_s,
        u"select E'a'\n'\\' y ', 1; "_s + change + u"; --'"_s,
        u"select e'a' -- x\n'\\' y ', 1; "_s + change + u"; --'"_s,
        u"select U&'\\0027; "_s + change + u"; --'"_s,
        u"select $a$ $a; $a$; "_s + change,
        u"select 1 as $a$; "_s + change + u"; --$a$"_s,
        u"select 1 as a$a$; "_s + change + u"; --$a$"_s,
        u"select 1 /* /* */; "_s + change + u"; -- */"_s,
        u"select 1 /* -- */; "_s + change,
        u"select 1 /*!99999 ' */; "_s + change + u"; -- '"_s,
        u"select 1 /*!; "_s + change + u"; */"_s,
        u"select 1 /*M!; "_s + change + u"; */"_s,
        u"select 1 as [a']; "_s + change + u"; -- '"_s,
        u"select 1 as `a'`; "_s + change + u"; -- '"_s,
        u"select 1 as \"a'\"; "_s + change + u"; -- '"_s,
        u"select q'['] '; "_s + change + u"; -- '"_s,
        u"select 'a"_s + QChar(u'\0') + u"'; "_s + change,
        u"select 1"_s + QChar(u'\0') + u"; "_s + change,
        u"select 1 as a\x1a; "_s + change,
        u"select {fn concat('a', '}; "_s + change + u"; --')}"_s,
        u"select 1 from kova_a; "_s + change + u" -- "_s,
        u"select 1 into kova_b from kova_a"_s,
        u"with gone as (delete from kova_a returning id) select * from gone"_s,
        u"with gone as (delete from kova_a) select 1"_s,
        u"explain analyze delete from kova_a"_s,
        u"explain (analyze) delete from kova_a"_s,
        u"explain (\"analyze\") delete from kova_a"_s,
        u"explain (verbose, \"analyze\" true) create table kova_b as select 1"_s,
        u"explain (U&\"an\\0061lyze\") create table kova_b as select 1"_s,
        u"analyze format=json delete from kova_a"_s,
        u"call kova_p()"_s,
        u"{call kova_p()}"_s,
        u"do $$ begin delete from kova_a; end $$"_s,
        u"prepare p from 'delete from kova_a'"_s,
        u"execute immediate 'delete from kova_a'"_s,
        u"copy kova_a to program 'true'"_s,
        u"select nextval('kova_s')"_s,
        u"set autocommit = 1"_s,
        u"delete from kova_a"_s,
        u"begin; delete from kova_a; commit"_s,
        u"lock tables kova_a write"_s,
        u"truncate kova_a"_s,
    };
    return texts;
}

class Injection : public AdoTest::OnOdbc
{
protected:
    void SetUp() override
    {
        OnOdbc::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, name VARCHAR(40))"_s);
        execute(u"INSERT INTO kova_a VALUES (1, 'a'), (2, 'b')"_s);
    }
    QString content()
    {
        if (!m_session)
            m_session.emplace(connectionString());
        return m_session->ask(u"SELECT count(*) FROM kova_a"_s) + u'/' +
               m_session->ask(u"SELECT min(name) FROM kova_a"_s) + u'/' +
               m_session->ask(u"SELECT max(name) FROM kova_a"_s);
    }
    void TearDown() override
    {
        m_session.reset();
        OnOdbc::TearDown();
    }
    std::shared_ptr<Connection> connectWith(const QString &mode) const
    {
        auto connection = std::make_shared<Connection>();
        // The first value is used.
        connection->Open(mode.isEmpty() ? connectionString() : mode + u';' + connectionString());
        return connection;
    }

private:
    std::optional<KovaTest::OdbcSession> m_session;
};

KOVA_ON_ODBC_ENGINES(Injection);

TEST_P(Injection, ChangesNothing)
{
    const QString before = content();
    ASSERT_EQ(before, u"2/a/b"_s);
    int refused = 0;
    for (const QString &mode : modesOf(QString::fromLatin1(GetParam().name))) {
        for (const QString &attack : attacks()) {
            SCOPED_TRACE((mode + u" | "_s + attack).toStdString());
            const auto connection = connectWith(mode);
            try {
                open(attack, connection);
            } catch (const Error &error) {
                EXPECT_FALSE(error.Description().isEmpty());
                ++refused;
            }
            ASSERT_EQ(content(), before);
        }
    }
    EXPECT_GT(refused, attacks().size() / 2);
}

TEST_P(Injection, RefusesAStatementAfterACarriageReturnEverywhere)
{
    for (const QString &mode : modesOf(QString::fromLatin1(GetParam().name))) {
        const auto connection = connectWith(mode);
        for (const char *attack :
             {"select 1 as a --\r; commit; delete from kova_a", "select 1 as a -- x\r; delete from kova_a",
              "select 1 as a --\r\n--\r; delete from kova_a"}) {
            SCOPED_TRACE((mode + u" | "_s + QString::fromLatin1(attack)).toStdString());
            EXPECT_THROW(open(QString::fromLatin1(attack), connection), Error);
        }
    }
    EXPECT_EQ(content(), u"2/a/b"_s);
}

// Common statements still work, with backslashes, brackets and comments in them.
TEST_P(Injection, AcceptsHarmlessTexts)
{
    for (const QString &mode : modesOf(QString::fromLatin1(GetParam().name))) {
        const auto connection = connectWith(mode);
        for (const QString &sql :
             {u"select id, ';' as \"x\" from kova_a -- both; really"_s,
              u"select id /* a;b */\r\nfrom kova_a;\r\n"_s, u"select id, 'C:\\dir' as path from kova_a"_s,
              u"select id,\r\n'[x]' as a from kova_a -- c\r\n"_s}) {
            if (is("SQLite") && sql.contains(u"a;b"))
                continue; // its driver ends the comment at a semicolon
            SCOPED_TRACE((mode + u" | "_s + sql).toStdString());
            EXPECT_NO_THROW(EXPECT_EQ(open(sql, connection)->RecordCount(), 2));
        }
    }
}

} // namespace
