#include "sql/Engine.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(Engine, IsKnownByTheNameItsDriverGivesIt)
{
    EXPECT_EQ(EngineNamed(u"PostgreSQL"_s), Engine::PostgreSQL);
    EXPECT_EQ(EngineNamed(u"postgresql 15"_s), Engine::PostgreSQL);
    EXPECT_EQ(EngineNamed(u"MariaDB"_s), Engine::MySQL);
    EXPECT_EQ(EngineNamed(u"MySQL"_s), Engine::MySQL);
    EXPECT_EQ(EngineNamed(u"SQLite"_s), Engine::SQLite);
    EXPECT_EQ(EngineNamed(u"Microsoft SQL Server"_s), Engine::SqlServer);
    EXPECT_EQ(EngineNamed(u"Oracle"_s), Engine::Oracle);
    EXPECT_EQ(EngineNamed(u"ACCESS"_s), Engine::Access);
    EXPECT_EQ(EngineNamed(u"Firebird 4.0"_s), Engine::Standard);
    EXPECT_EQ(EngineNamed({}), Engine::Other);
}

TEST(Engine, IsGuessedFromTheDeclaredTypeOnlyWhileUnknown)
{
    EXPECT_EQ(DialectOf(dbAccess, Engine::Other).likelyEngine(), Engine::Access);
    EXPECT_EQ(DialectOf(dbOracle, Engine::Other).likelyEngine(), Engine::Oracle);
    EXPECT_EQ(DialectOf(dbSQLServer, Engine::Other).likelyEngine(), Engine::SqlServer);
    EXPECT_EQ(DialectOf(AllDBType{}, Engine::Other).likelyEngine(), Engine::Standard);
    EXPECT_EQ(DialectOf(dbOracle, Engine::PostgreSQL).likelyEngine(), Engine::PostgreSQL);
}
