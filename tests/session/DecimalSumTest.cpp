#include "session/records/DecimalSum.h"

#include <gtest/gtest.h>

#include <limits>

using KOVAVSFDataGridLib::DecimalSum;

namespace {

struct SumCase
{
    std::vector<const char *> terms;
    const char *sum;
};

} // namespace

TEST(DecimalSum, IsExactForDecimals)
{
    const std::vector<SumCase> cases{
        {{}, "0"},
        {{"0.1", "0.2"}, "0.3"},
        {{"12.50", "-2.5"}, "10.00"},
        {{"-0.05"}, "-0.05"},
        {{"12345678901234567890.12", "0.01"}, "12345678901234567890.13"},
        {{"999999999999999999999999999999999999", "-1"}, "999999999999999999999999999999999998"},
        {{"1", "0.000000000000000000000000000001"}, "1.000000000000000000000000000001"},
        {{".5", "5."}, "5.5"},
        {{"999999999999999999", "1"}, "1000000000000000000"}, // over the middle of the digits and back
        {{"1000000000000000000", "-1"}, "999999999999999999"},
        {{"-999999999999999999", "-1"}, "-1000000000000000000"},
        {{"-1000000000000000000", "1"}, "-999999999999999999"},
        {{"1000000000000000005", "-2000000000000000000"}, "-999999999999999995"},
        {{"-1000000000000000000.5", "1000000000000000000.6"}, "0.1"},
        {{"1e3", "1"}, "1001"},
    };
    for (const SumCase &one : cases) {
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
    EXPECT_EQ(sum.average(3), QStringLiteral("9223372036854775807"));
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

TEST(DecimalSum, AddsTheDecimalsThatDoublesStandFor)
{
    struct Doubles
    {
        std::vector<double> terms;
        int scale;
        const char *sum;
    };
    for (const Doubles &one : std::vector<Doubles>{
             {{9999999999999.99, 9999999999999.99, 9999999999999.99}, 2, "29999999999999.97"},
             {{9999999999999.99, 0.01, 0.01}, 2, "10000000000000.01"},
             {{99999999999.1234, 99999999999.1234, 99999999999.0001}, 4, "299999999997.2469"},
             {{99999999999999.97, -0.01}, 2, "99999999999999.96"},
             {{999999999999999.9, 999999999999999.9}, 2, "1999999999999999.8"},
             {{9007199254740992, 0.5, 1}, 2, "9007199254740993.50"},
             {{-12.5, 2.5}, 2, "-10.00"},
             {{0.1 + 0.2, 1.1 + 2.2}, 2, "3.60"}, // the last bit is arithmetic's
             {{0.1 + 0.2, 0.125}, 2, "0.425"},    // more decimals than the field has
             {{1.0 / 3, 0.5}, 2, "0.833333333333333"},
             {{1e-7, -0.5}, 2, "-0.4999999"},
             {{0.1 + 0.2, 2}, 0, "2.3"},
             {{1e20, 1}, 0, "100000000000000000001"},
             {{0.0, -0.0}, 2, "0.00"},
         }) {
        DecimalSum sum;
        for (const double term : one.terms)
            sum.addDecimal(term, one.scale);
        EXPECT_EQ(sum.text().toStdString(), one.sum);
        EXPECT_TRUE(sum.isExact());
    }
}

TEST(DecimalSum, KnowsThatItIsNotExact)
{
    for (const double tooLarge : {1e300, -1e40, 1e-300}) {
        DecimalSum sum;
        sum.addDecimal(1, 2);
        sum.addDecimal(tooLarge, 2);
        EXPECT_FALSE(sum.isExact()) << tooLarge;
        EXPECT_EQ(sum.text(), QString::number(1 + tooLarge, 'G', 15));
    }
    DecimalSum sum;
    sum.add(0.5);
    EXPECT_FALSE(sum.isExact());
    const QByteArray nines(36, '9');
    for (const char *sign : {"", "-"}) {
        DecimalSum wide;
        EXPECT_TRUE(wide.addText(sign + nines));
        EXPECT_TRUE(wide.isExact());
        EXPECT_TRUE(wide.addText(QByteArray(sign) + '1'));
        EXPECT_FALSE(wide.isExact()) << sign;
    }
}

TEST(DecimalSum, TheAverageOfDecimalsKeepsTheirDigits)
{
    struct Average
    {
        std::vector<const char *> terms;
        const char *average;
    };
    for (const Average &one : std::vector<Average>{
             {{"10.00", "10.01"}, "10.005"},
             {{"1", "0", "0"}, "0.333333333333333"},
             {{"2", "0", "0"}, "0.666666666666667"},
             {{"-2", "0", "0"}, "-0.666666666666667"},
             {{"12345678901234567.89", "12345678901234567.91"}, "12345678901234567.9"},
             {{"12345678901234567.89", "12345678901234567.90"}, "12345678901234567.9"},
             {{"100", "200"}, "150"},
             {{"0.00", "-0.00"}, "0"},
         }) {
        DecimalSum sum;
        for (const char *term : one.terms)
            EXPECT_TRUE(sum.addText(term));
        EXPECT_EQ(sum.average(static_cast<qint64>(one.terms.size())).toStdString(), one.average);
    }
}

TEST(DecimalSum, HasASign)
{
    DecimalSum sum;
    EXPECT_EQ(sum.sign(), 0);
    sum.addText("12345678901234567.89");
    EXPECT_EQ(sum.sign(), 1);
    sum.addText("-12345678901234567.90");
    EXPECT_EQ(sum.sign(), -1);
}
