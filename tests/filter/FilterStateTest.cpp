#include "filter/conditions/FilterState.h"

#include "filter/conditions/FilterSql.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

QJsonValue json(const char *text)
{
    return QJsonDocument::fromJson(text).array();
}

} // namespace

TEST(FilterState, SurvivesTheWayIntoAFile)
{
    const FilterState state{{.field = u"金额"_s, .op = FilterOperator::Greater, .value = u"１００"_s},
                            {.field = u"日期"_s,
                             .op = FilterOperator::NotBetween,
                             .value = u"上月"_s,
                             .lastValue = u"今天"_s,
                             .isNegated = true,
                             .includesNull = false,
                             .opens = 2,
                             .closes = 1,
                             .orNext = true}};
    const QByteArray text = QJsonDocument(toJson(state)).toJson();
    EXPECT_EQ(filterStateOf(QJsonDocument::fromJson(text).array()), state);
}

TEST(FilterState, IsKeptShort)
{
    EXPECT_EQ(QJsonDocument(toJson({{.field = u"A"_s, .op = FilterOperator::IsEmpty}}))
                  .toJson(QJsonDocument::Compact)
                  .toStdString(),
              R"([{"field":"A","operator":"isEmpty"}])");
}

TEST(FilterState, WhatIsNoRowsGivesNothing)
{
    for (const char *text :
         {"[]", "[1]", R"([{"field":"A"}])", R"([{"operator":"equals"}])",
          R"([{"field":"A","operator":"x"}])", R"([{"field":"A","operator":"equals"}, {}])"})
        EXPECT_FALSE(filterStateOf(json(text))) << text;
    EXPECT_FALSE(filterStateOf(QJsonObject()));
}

TEST(FilterState, BracketsThatNobodyCanTypeAreCutToThoseThatOneCan)
{
    const auto state = filterStateOf(json(R"([{"field":"A","operator":"equals","open":99,"close":-1}])"));
    ASSERT_TRUE(state);
    EXPECT_EQ(state->first().opens, FilterSql::mostBrackets);
    EXPECT_EQ(state->first().closes, 0);
}
