#include "sql/Literals.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect SqliteFile{dbAccess, false};
constexpr Dialect OracleServer{dbOracle, true};
constexpr Dialect SqlServer{dbSQLServer, true};
constexpr Dialect MariaDb{dbSQLServer, true, true};
constexpr Dialect AccessServer{dbAccess, true};

void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text), expected);
}

} // namespace

TEST(Literals, ApostrophesInTextAreDoubled)
{
    expectText(TextWithoutClauses(SqliteFile, u"O'Brien's"_s), "'O''Brien''s'");
    expectText(TextWithoutClauses(SqliteFile, u"'"_s), "''''");
    expectText(TextWithoutClauses(SqliteFile, u"北京"_s), "'北京'");
}

TEST(Literals, OnlySqlServerNeedsToBeToldOfUnicode)
{
    expectText(TextWithoutClauses(SqlServer, u"北京"_s), "N'北京'");
    expectText(TextWithoutClauses(SqlServer, u"Beijing"_s), "'Beijing'");
    expectText(TextWithoutClauses(OracleServer, u"北京"_s), "'北京'");
    expectText(TextWithoutClauses({dbSQLServer, false}, u"北京"_s), "'北京'");
    expectText(TextWithoutClauses({dbSQLServer, true, false, Engine::MySQL}, u"北京"_s), "'北京'");
}

TEST(Literals, WordsThatBeginAClauseAreTakenApartSoThatNoStatementIsCutThere)
{
    struct Case
    {
        QString text;
        const char *sqlite;
        const char *server;
    };
    const Case cases[] = {
        {u"a order by b"_s, "('a o' || 'rder by b')", "{fn CONCAT('a o', 'rder by b')}"},
        {u" Order By b"_s, "(' O' || 'rder By b')", "{fn CONCAT(' O', 'rder By b')}"},
        {u"FROM 北京"_s, "('F' || 'ROM 北京')", "{fn CONCAT('F', 'ROM 北京')}"},
        {u"WHERE ORDER BY "_s, "(('W' || 'HERE O') || 'RDER BY ')",
         "{fn CONCAT({fn CONCAT('W', 'HERE O')}, 'RDER BY ')}"},
        {u"letter from where"_s, "'letter from where'", "'letter from where'"},
        {u"order by"_s, "'order by'", "'order by'"},
    };
    for (const Case &c : cases) {
        expectText(TextWithoutClauses(SqliteFile, c.text), c.sqlite);
        expectText(TextWithoutClauses(OracleServer, c.text), c.server);
    }
}

TEST(Literals, ABackslashIsMatchedAsItself)
{
    expectText(TextWithoutClauses(OracleServer, uR"(C:\temp\)"_s), R"('C:\temp\')");
    expectText(TextWithoutClauses(MariaDb, uR"(C:\temp\)"_s), R"('C:\\temp\\')");
    expectText(TextWithoutClauses(MariaDb, uR"(\'北)"_s), R"('\\''北')");
}

TEST(Literals, DatesAreIsoTextOrOdbcEscapes)
{
    const QDate day(2024, 1, 5);
    const QDateTime moment(day, QTime(8, 30), Qt::UTC);
    expectText(DateLiteral(SqliteFile, day), "'2024-01-05'");
    expectText(TimeLiteral(SqliteFile, QTime(8, 30, 1)), "'08:30:01'");
    expectText(MomentLiteral(SqliteFile, moment), "'2024-01-05 08:30:00'");
    expectText(MomentLiteral(SqliteFile, moment.addMSecs(250)), "'2024-01-05 08:30:00.250'");
    expectText(DateLiteral(AccessServer, day), "{d '2024-01-05'}");
    expectText(TimeLiteral(OracleServer, QTime(8, 30, 1)), "{t '08:30:01'}");
    expectText(MomentLiteral(SqlServer, moment), "{ts '2024-01-05 08:30:00'}");
}
