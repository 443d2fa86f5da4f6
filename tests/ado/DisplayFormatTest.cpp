// How numbers and Booleans are shown to a user who wants them otherwise.
#include "ado/values/DisplayFormat.h"

#include <gtest/gtest.h>

#include <array>

using ADODB::DisplayFormat;
using namespace Qt::StringLiterals;

TEST(DisplayFormat, ShowsTextsAsItSays)
{
    struct Case
    {
        QString format;
        QString text;
        QString shown;
    };
    for (const Case &test : std::initializer_list<Case>{
             {u""_s, u"1234.5"_s, u"1234.5"_s},
             {u"#,##"_s, u"1234567.891"_s, u"1,234,567.891"_s},
             {u"#,##"_s, u"-123"_s, u"-123"_s},
             {u"#,##"_s, u"-1234"_s, u"-1,234"_s},
             {u"#,##0"_s, u"999999.5"_s, u"1,000,000"_s},
             {u"#,##0.00"_s, u"1234"_s, u"1,234.00"_s},
             {u"0"_s, u"0.5"_s, u"1"_s},
             {u"0"_s, u"0.4999999999999999999999"_s, u"0"_s},
             {u"0"_s, u"-0.4"_s, u"0"_s},
             {u"0.00"_s, u"-0.005"_s, u"-0.01"_s},
             {u"0.00"_s, u"1.005"_s, u"1.01"_s},
             {u"0.0"_s, u"99.95"_s, u"100.0"_s},
             {u"0.00"_s, u"79228162514264337593543950335.125"_s, u"79228162514264337593543950335.13"_s},
             {u"0.00"_s, u"1.5E-3"_s, u"0.00"_s},
             {u"0.00"_s, u"1.5e+3"_s, u"1500.00"_s},
             {u"0.00"_s, u"1E+300"_s, u"1E+300"_s},
             {u"#,##"_s, u"1E+20"_s, u"1E+20"_s},
             {u"0.00"_s, u"茶"_s, u"茶"_s},
             {u"0.00"_s, u""_s, u""_s},
             {u"0.00"_s, u"12.3.4"_s, u"12.3.4"_s},
             {u"是/否"_s, u"True"_s, u"是"_s},
             {u"是/否"_s, u"False"_s, u"否"_s},
             {u"是/否"_s, u"-1"_s, u"是"_s},
             {u"是/否"_s, u""_s, u""_s},
             {u"是/否"_s, u"maybe"_s, u"maybe"_s},
             {u"☑/☐"_s, u"True"_s, u"☑"_s},
             {u"☑/☐"_s, u"0"_s, u"☐"_s},
             {u"☑/☐"_s, u""_s, u""_s},
             {u"☑/☐"_s, u"maybe"_s, u"maybe"_s},
         }) {
        const auto format = DisplayFormat::fromText(test.format);
        ASSERT_TRUE(format) << test.format.toStdString();
        EXPECT_EQ(format->applied(test.text).toStdString(), test.shown.toStdString())
            << test.format.toStdString() << ' ' << test.text.toStdString();
        EXPECT_EQ(format->toText(), test.format);
    }
}

TEST(DisplayFormat, TheFieldsDecimalsAreTheLeastAndHideNoDigit)
{
    for (const auto &[text, shown, thousands] : std::initializer_list<std::array<QString, 3>>{
             {u"0.2"_s, u"0.20"_s, u"0.20"_s},
             {u"-1234"_s, u"-1234.00"_s, u"-1,234.00"_s},
             {u"1.125"_s, u"1.125"_s, u"1.125"_s},
             {u"1E-07"_s, u"1E-07"_s, u"1E-07"_s},
             {u"面议"_s, u"面议"_s, u"面议"_s},
             {u""_s, u""_s, u""_s},
             {u"-"_s, u"-"_s, u"-"_s},
             {u"1."_s, u"1."_s, u"1."_s},
             {u"1.2.3"_s, u"1.2.3"_s, u"1.2.3"_s},
         }) {
        EXPECT_EQ(DisplayFormat{.leastDecimals = 2}.applied(text), shown) << text.toStdString();
        QByteArray utf8 = text.toUtf8();
        DisplayFormat{.leastDecimals = 2}.pad(utf8);
        EXPECT_EQ(utf8, shown.toUtf8()) << text.toStdString();
        const DisplayFormat grouped{.hasThousands = true, .leastDecimals = 2};
        EXPECT_EQ(grouped.applied(text), thousands) << text.toStdString();
    }
    const DisplayFormat chosen{.decimals = 1, .leastDecimals = 2};
    EXPECT_EQ(chosen.applied(u"0.25"_s), u"0.3"_s) << "what the user has chosen comes first";
    EXPECT_EQ(chosen.toText(), u"0.0"_s);
}

TEST(DisplayFormat, IsReadFromNoOtherText)
{
    for (const QString &text : {u"%d"_s, u"0."_s, u".00"_s, u"#,##0.0000000000000000"_s, u"00"_s, u"0.0 "_s,
                                u"是/否/是"_s, u"0\n"_s, u"#"_s})
        EXPECT_FALSE(DisplayFormat::fromText(text)) << text.toStdString();
}
