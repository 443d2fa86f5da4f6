#include "sql/Literals.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect sqliteFile{dbAccess, false};
constexpr Dialect oracleServer{dbOracle, true};
constexpr Dialect sqlServer{dbSQLServer, true};
constexpr Dialect mariaDb{dbSQLServer, true, true};
constexpr Dialect accessServer{dbAccess, true};

void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text), expected);
}

} // namespace

TEST(Literals, ApostrophesInTextAreDoubled)
{
    expectText(textWithoutClauses(sqliteFile, u"O'Brien's"_s), "'O''Brien''s'");
    expectText(textWithoutClauses(sqliteFile, u"'"_s), "''''");
    expectText(textWithoutClauses(sqliteFile, u"北京"_s), "'北京'");
}

TEST(Literals, OnlySqlServerMarksUnicodeTexts)
{
    expectText(textWithoutClauses(sqlServer, u"北京"_s), "N'北京'");
    expectText(textWithoutClauses(sqlServer, u"Beijing"_s), "'Beijing'");
    expectText(textWithoutClauses(oracleServer, u"北京"_s), "'北京'");
    expectText(textWithoutClauses({dbSQLServer, false}, u"北京"_s), "'北京'");
    expectText(textWithoutClauses({dbSQLServer, true, false, Engine::MySQL}, u"北京"_s), "'北京'");
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
        expectText(textWithoutClauses(sqliteFile, c.text), c.sqlite);
        expectText(textWithoutClauses(oracleServer, c.text), c.server);
    }
}

TEST(Literals, ABackslashIsMatchedAsItself)
{
    expectText(textWithoutClauses(oracleServer, uR"(C:\temp\)"_s), R"('C:\temp\')");
    expectText(textWithoutClauses(mariaDb, uR"(C:\temp\)"_s), R"('C:\\temp\\')");
    expectText(textWithoutClauses(mariaDb, uR"(\'北)"_s), R"('\\''北')");
}

TEST(Literals, DatesAreIsoTextOrOdbcEscapes)
{
    const QDate day(2024, 1, 5);
    const QDateTime moment(day, QTime(8, 30), Qt::UTC);
    expectText(dateLiteral(sqliteFile, day), "'2024-01-05'");
    expectText(timeLiteral(sqliteFile, QTime(8, 30, 1)), "'08:30:01'");
    expectText(momentLiteral(sqliteFile, moment), "'2024-01-05 08:30:00'");
    expectText(momentLiteral(sqliteFile, moment.addMSecs(250)), "'2024-01-05 08:30:00.250'");
    expectText(dateLiteral(accessServer, day), "{d '2024-01-05'}");
    expectText(timeLiteral(oracleServer, QTime(8, 30, 1)), "{t '08:30:01'}");
    expectText(momentLiteral(sqlServer, moment), "{ts '2024-01-05 08:30:00'}");
}

TEST(Literals, AScriptHasTheEnginesOwnFormWithoutOdbcEscapes)
{
    constexpr Dialect postgres{dbAccess, true, false, Engine::PostgreSQL};
    constexpr Dialect server{dbAccess, true, false, Engine::SqlServer};
    constexpr Dialect oracle{dbAccess, true, false, Engine::Oracle};
    expectText(scriptDate(postgres, u"2024-01-05"_s), "'2024-01-05'");
    expectText(scriptDate(oracle, u"2024-01-05"_s), "DATE '2024-01-05'");
    expectText(scriptMoment(oracle, u"2024-01-05 08:30:00"_s), "TIMESTAMP '2024-01-05 08:30:00'");
    expectText(scriptMoment(oracleServer, u"2024-01-05 08:30:00"_s), "TIMESTAMP '2024-01-05 08:30:00'");
    expectText(scriptBoolean(postgres, true), "TRUE");
    expectText(scriptBoolean(server, false), "0");
    expectText(scriptBytes(postgres, "\x01\xAB"_ba), R"('\x01AB'::bytea)");
    expectText(scriptBytes(server, "\x01\xAB"_ba), "0x01AB");
    expectText(scriptBytes(oracle, "\x01\xAB"_ba), "HEXTORAW('01AB')");
    expectText(scriptBytes(sqliteFile, "\x01\xAB"_ba), "X'01AB'");
    expectText(scriptText(postgres, uR"(C:\t)"_s), R"(E'C:\\t')");
    expectText(scriptText(oracle, uR"(C:\t)"_s), R"('C:\t')");
}
