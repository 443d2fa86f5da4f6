#include "session/records/DecimalSum.h"

#include <gtest/gtest.h>

#include <limits>

using KOVAVSFDataGridLib::DecimalSum;

namespace {

struct Case
{
    std::vector<const char *> terms;
    const char *sum;
};

} // namespace

TEST(DecimalSum, IsExactForDecimals)
{
    const std::vector<Case> cases{
        {{}, "0"},
        {{"0.1", "0.2"}, "0.3"},
        {{"12.50", "-2.5"}, "10.00"},
        {{"-0.05"}, "-0.05"},
        {{"12345678901234567890.12", "0.01"}, "12345678901234567890.13"},
        {{"999999999999999999999999999999999999", "-1"}, "999999999999999999999999999999999998"},
        {{"1", "0.000000000000000000000000000001"}, "1.000000000000000000000000000001"},
        {{".5", "5."}, "5.5"},
        {{"1e3", "1"}, "1001"},
    };
    for (const Case &one : cases) {
        DecimalSum sum;
        for (const char *term : one.terms)
            EXPECT_TRUE(sum.addText(term)) << term;
        EXPECT_EQ(sum.text().toStdString(), one.sum);
    }
}

TEST(DecimalSum, TakesNoTextThatIsNoNumber)
{
    DecimalSum sum;
    for (const char *text : {"", "-", ".", "x", "1x", "1,5", "--1", "1.2.3", " "})
        EXPECT_FALSE(sum.addText(text)) << text;
    EXPECT_EQ(sum.text(), QStringLiteral("0"));
}

TEST(DecimalSum, AddsIntegersBeyondTheirOwnRange)
{
    DecimalSum sum;
    for (int i = 0; i < 3; ++i)
        sum.add(std::numeric_limits<qint64>::max());
    EXPECT_EQ(sum.text(), QStringLiteral("27670116110564327421"));
    EXPECT_EQ(sum.average(3), QStringLiteral("9.22337203685478E+18"));
}

TEST(DecimalSum, LosesNoSmallTermsBesideLargeOnes)
{
    DecimalSum sum;
    sum.add(1e17);
    for (int i = 0; i < 1000; ++i)
        sum.add(0.25);
    sum.add(-1e17);
    EXPECT_EQ(sum.text(), QStringLiteral("250"));
    DecimalSum tenths;
    for (int i = 0; i < 10; ++i)
        tenths.add(0.1);
    EXPECT_EQ(tenths.text(), QStringLiteral("1"));
    EXPECT_EQ(tenths.average(10), QStringLiteral("0.1"));
}
