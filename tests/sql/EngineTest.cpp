#include "sql/Engine.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(Engine, IsKnownByTheNameItsDriverGivesIt)
{
    EXPECT_EQ(engineNamed(u"PostgreSQL"_s), Engine::PostgreSQL);
    EXPECT_EQ(engineNamed(u"postgresql 15"_s), Engine::PostgreSQL);
    EXPECT_EQ(engineNamed(u"MariaDB"_s), Engine::MySQL);
    EXPECT_EQ(engineNamed(u"MySQL"_s), Engine::MySQL);
    EXPECT_EQ(engineNamed(u"SQLite"_s), Engine::SQLite);
    EXPECT_EQ(engineNamed(u"Microsoft SQL Server"_s), Engine::SqlServer);
    EXPECT_EQ(engineNamed(u"Oracle"_s), Engine::Oracle);
    EXPECT_EQ(engineNamed(u"ACCESS"_s), Engine::Access);
    EXPECT_EQ(engineNamed(u"Firebird 4.0"_s), Engine::Standard);
    EXPECT_EQ(engineNamed({}), Engine::Other);
}

TEST(Engine, ReadsBackslashesAsTheModeOfTheSessionHasIt)
{
    EXPECT_TRUE(dialectOf(dbSQLServer, Engine::MySQL).escapesByBackslash);
    EXPECT_FALSE(dialectOf(dbSQLServer, Engine::MySQL).ansiQuotes);
    const EngineMode plain{Engine::MySQL, {.backslashEscapes = false, .ansiQuotes = true}};
    EXPECT_FALSE(dialectOf(dbSQLServer, plain).escapesByBackslash);
    EXPECT_TRUE(dialectOf(dbSQLServer, plain).ansiQuotes);
    EXPECT_FALSE(dialectOf(dbOracle, Engine::PostgreSQL).escapesByBackslash);
}

TEST(Engine, IsGuessedFromTheDeclaredTypeOnlyWhileUnknown)
{
    EXPECT_EQ(dialectOf(dbAccess, Engine::Other).likelyEngine(), Engine::Access);
    EXPECT_EQ(dialectOf(dbOracle, Engine::Other).likelyEngine(), Engine::Oracle);
    EXPECT_EQ(dialectOf(dbSQLServer, Engine::Other).likelyEngine(), Engine::SqlServer);
    EXPECT_EQ(dialectOf(AllDBType{}, Engine::Other).likelyEngine(), Engine::Standard);
    EXPECT_EQ(dialectOf(dbOracle, Engine::PostgreSQL).likelyEngine(), Engine::PostgreSQL);
}
