// Engines that would select from more records than a limited statement returns; see LimitFence.h.
#include "query/derivation/Derivation.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(LimitFence, KeepsTheFirstRecordsFromWhatIsAdded)
{
    const QString united = u"select A from T union all select A from U limit 5"_s;
    const QString within = u"select A from (%1) as V"_s.arg(united);
    const QString fenced =
        u"SELECT * FROM ( SELECT * FROM ( %1 ) AS L LIMIT 18446744073709551615 ) AS Q WHERE A = 1"_s;
    const auto filtered = [](Engine engine, const QString &statement) {
        return Derivation(statement, {{u"A"_s, 202}}, dialectOf(dbSQLServer, engine))
            .withCondition(u"A = 1"_s)
            .simplified();
    };
    EXPECT_EQ(filtered(Engine::PostgreSQL, united), u"SELECT * FROM ( %1 ) AS Q WHERE A = 1"_s.arg(united));
    EXPECT_EQ(filtered(Engine::MySQL, united), fenced.arg(united));
    EXPECT_EQ(filtered(Engine::MySQL, within), fenced.arg(within));
    EXPECT_EQ(filtered(Engine::MySQL, fenced.arg(united)), fenced.arg(united) + u" AND A = 1"_s);
    EXPECT_EQ(filtered(Engine::SQLite, u"select A from (select A from T limit 5) V"_s),
              u"SELECT * FROM ( SELECT * FROM ( select A from (select A from T limit 5) V ) LIMIT -1 ) AS Q "
              "WHERE A = 1"_s);
}

TEST(LimitFence, KeepsAConditionOutOfWhatIsGroupedByManyColumns)
{
    const auto isFenced = [](Engine engine, const QString &end) {
        const QString statement = u"select A, count(*) as N from T "_s + end;
        return Derivation(statement, {{u"A"_s, 202}, {u"N"_s, 3}}, dialectOf(dbSQLServer, engine))
            .withCondition(u"A = 1 or N = 2"_s)
            .contains(u"LIMIT 18446744073709551615"_s);
    };
    EXPECT_TRUE(isFenced(Engine::MySQL, u"group by T.A, U.A"_s));
    EXPECT_TRUE(isFenced(Engine::MySQL, u"group by T.A, U.A having count(*) > 1 order by A"_s));
    EXPECT_FALSE(isFenced(Engine::MySQL, u"group by T.A, U.A limit 5"_s)) << "its own limit is one";
    EXPECT_FALSE(isFenced(Engine::MySQL, u"group by coalesce(T.A, U.A) order by A, N"_s));
    EXPECT_FALSE(isFenced(Engine::PostgreSQL, u"group by T.A, U.A"_s));
}
