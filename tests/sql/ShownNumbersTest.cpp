#include "sql/ShownNumbers.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

std::string shown(Engine engine, NumberKind kind, const QString &number, bool isComputed = false)
{
    return showsNumber(engine, u"F"_s, kind, number, isComputed).toStdString();
}

} // namespace

TEST(ShownNumbers, AWholeNumberIsComparedAsTheEngineTakesIt)
{
    EXPECT_EQ(shown(Engine::Access, NumberKind::Exact, u"10"_s), "F like 10");
    EXPECT_EQ(shown(Engine::Access, NumberKind::Currency, u"10"_s), "F = 10");
    EXPECT_EQ(shown(Engine::PostgreSQL, NumberKind::Exact, u"10"_s), "F = 10");
    EXPECT_EQ(shown(Engine::PostgreSQL, NumberKind::Single, u"10.5"_s), "F = CAST(10.5 AS REAL)");
    EXPECT_EQ(shown(Engine::SQLite, NumberKind::Double, u"10"_s), "F like 10.0");
    EXPECT_EQ(shown(Engine::SQLite, NumberKind::Double, u"10.5"_s), "F like 10.5");
    EXPECT_EQ(shown(Engine::SQLite, NumberKind::Currency, u"10"_s), "F = 10");
}

TEST(ShownNumbers, AFractionIsOneOfThoseThatAreShownSo)
{
    EXPECT_EQ(shown(Engine::Access, NumberKind::Double, u"0.1"_s),
              "F BETWEEN 0.09999999999999951 AND 0.1000000000000005");
    EXPECT_EQ(shown(Engine::Access, NumberKind::Double, u"10"_s), "F = 10");
    EXPECT_EQ(shown(Engine::MySQL, NumberKind::Double, u"10"_s, true).substr(0, 10), "F BETWEEN ");
}

TEST(ShownNumbers, SqlitesComputedValuesAreFoundWhateverTypeEachHas)
{
    EXPECT_EQ(showsComputedNumber(Engine::SQLite, u"F"_s, u"9"_s), u"(F = 9 OR F like '9')"_s);
    EXPECT_EQ(showsComputedNumber(Engine::MySQL, u"F"_s, u"9"_s), QString());
}
