#include "ado/providers/odbc/reading/OdbcRefusal.h"

#include "Throwing.h"
#include "sql/SqlScanner.h"

using namespace ADODB;
using namespace KOVAVSFDataGridLib;
using KOVAVSFDataGridLib::SqlDialect;

namespace {

void check(const char *sql, SqlDialect dialect)
{
    refuseUnlessQuery(SqlScanner(QString::fromUtf8(sql), dialect));
}

TEST(OdbcRefusal, ReadsQuotesAndCommentsAsTheEngineDoes)
{
    using enum SqlDialect;
    struct Case
    {
        const char *sql;
        SqlDialect dialect;
        bool twoStatements;
    };
    const Case cases[] = {
        {"select '\\'' ; delete from t -- '", MySql, true},
        {"select '\\'' ; delete from t -- '", Standard, false},
        {"select `a;b` # ; delete", MySql, false},
        {"select 5--1 ; delete from t", MySql, true},
        {"select 5--1 ; delete from t", Standard, false},
        {"select [a]]' ] ; delete from t --'", SqlServer, true},
        {"select [a;b], \"c;d\"", SqlServer, false},
        {"select a[1], ']' ; delete from t", PostgreSql, true},
        {"select $1$ ; delete from t", PostgreSql, true},
        {"select name$ ';' ", PostgreSql, false},
        {"select te'\\' ; delete from t --'", PostgreSql, true},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.sql);
        if (c.twoStatements)
            EXPECT_ADO_ERROR(dbErrMultipleStatements, check(c.sql, c.dialect));
        else
            EXPECT_NO_THROW(check(c.sql, c.dialect));
    }
}

TEST(OdbcRefusal, RefusesWhatRunsInsideAQuery)
{
    for (const char *sql : {"select 1 into outfile '/tmp/x'", "select 1 /*!50000 into outfile '/tmp/x' */",
                            "(select 1 into @a)", "select 1 /*M!100000 into outfile '/tmp/x' */", "call p()",
                            "show tables into x", "select a from t lock in share mode",
                            "select a from (select a from t limit 1 lock  IN share /* */ mode) q"})
        EXPECT_ADO_ERROR(dbErrPermissionDenied, check(sql, SqlDialect::MySql));
    EXPECT_NO_THROW(check("(select t.into, 'into' from t) union (select 1, 2)", SqlDialect::MySql));
    EXPECT_NO_THROW(check("select lock, share, mode from t", SqlDialect::MySql));
    EXPECT_NO_THROW(check("select insert('abc', 1, 1, 'x'), (update_count) from t", SqlDialect::MySql));
}

TEST(OdbcRefusal, SeesStatementsThatNothingParts)
{
    for (const char *sql :
         {"select * from t delete from t", "select 1 exec p", "select 1exec p",
          "select 1\nupdate t set a = 1", "select a from t where b = 1 truncate table t",
          "with x as (select 1 as a) delete x", "select 1 merge t using s on 1 = 1 when matched then delete",
          "select 1 if 1 = 1 drop table t"})
        EXPECT_ADO_ERROR(dbErrPermissionDenied, check(sql, SqlDialect::SqlServer));
    for (const char *sql :
         {"select [delete], t.[update], into_x, \"drop\" from t", "select 'exec p' -- drop\n",
          "select * from a inner merge join b on a.i = b.i option (merge join)",
          "select 1 union select 2 option (merge union)", "select * from a option (hash join, merge join)"})
        EXPECT_NO_THROW(check(sql, SqlDialect::SqlServer)) << sql;
    // Elsewhere they can be names.
    EXPECT_NO_THROW(check("select t.id, delete from t", SqlDialect::Standard));
}

} // namespace
