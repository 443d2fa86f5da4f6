#include "Printing.h"

#include "ado/values/DateText.h"

#include <gtest/gtest.h>

#include <vector>

namespace DateText = ADODB::DateText;

namespace {

TEST(DateText, ReadsDates)
{
    EXPECT_EQ(DateText::date("2024-02-29"), QDate(2024, 2, 29));
    EXPECT_EQ(DateText::date("0001-01-01"), QDate(1, 1, 1));
    for (const char *text : {"", "2023-02-29", "2024-2-9", "24-02-29", "2024/02/29", "2024-13-01",
                             "0000-01-01", "-001-01-01", "2024-02-29 ", "yesterday!"})
        EXPECT_FALSE(DateText::date(text).isValid()) << text;
}

TEST(DateText, ReadsTimes)
{
    EXPECT_EQ(DateText::time("09:05"), QTime(9, 5));
    EXPECT_EQ(DateText::time("23:59:58"), QTime(23, 59, 58));
    EXPECT_EQ(DateText::time("23:59:58.5"), QTime(23, 59, 58, 500));
    EXPECT_EQ(DateText::time("23:59:58.123000"), QTime(23, 59, 58, 123));
    // A fraction that would be cut off, a zone, a leap second and plain nonsense stay texts.
    for (const char *text : {"", "9:05", "24:00", "12:60", "12:00:60", "12:00:00.", "12:00:00.1234",
                             "12:00:00Z", "12:00:00.5+08:00", "12-00", "noon!"})
        EXPECT_FALSE(DateText::time(text).isValid()) << text;
}

TEST(DateText, KnowsWhatIsFinerThanATimeHolds)
{
    for (const char *text : {"12:00:00.1234", "23:59:59.000001", "12:00:00.123456789"})
        EXPECT_TRUE(DateText::isFinerTime(text)) << text;
    for (const char *text : {"", "12:00", "12:00:00.123", "12:00:60.123456", "12:00:00.1234567890",
                             "12:00:00.12345x", "12:00:00,123456", "12:00:00.123+08"})
        EXPECT_FALSE(DateText::isFinerTime(text)) << text;
    for (const char *text : {"2021-03-28 02:30:00.123456", "2021-03-28T02:30:00.1234"})
        EXPECT_TRUE(DateText::isFinerMoment(text)) << text;
    for (const char *text : {"2021-03-28", "2021-03-28 02:30:00.123", "2021-02-29 02:30:00.123456",
                             "2021-03-28_02:30:00.123456", "2021-03-28 02:30:00.123456Z"})
        EXPECT_FALSE(DateText::isFinerMoment(text)) << text;
}

TEST(DateText, KnowsMomentsWithAZone)
{
    for (const char *text : {"2021-03-28 02:30:00+08", "2021-03-28 02:30-0330", "2021-03-28T02:30:00Z",
                             "2021-03-28 02:30:00.123456-03:30", "1900-01-01 08:05:43+08:05:43",
                             "2021-03-28 02:30:00.1234567 +08:00"})
        EXPECT_TRUE(DateText::isZonedMoment(text)) << text;
    for (const char *text :
         {"", "Z", "2021-03-28", "2021-03-28+08", "2021-03-28 02:30:00", "2021-03-28 02:30Z1",
          "2021-02-29 02:30+08", "2021-03-28 02:30+8", "2021-03-28 02:30+08:0", "2021-03-28 02:30+0x",
          "2021-03-28 02:30+08:00:0", "2021-03-28 02:30  +08"})
        EXPECT_FALSE(DateText::isZonedMoment(text)) << text;
}

TEST(DateText, ReadsMoments)
{
    EXPECT_EQ(DateText::moment("2021-03-28"), QDateTime(QDate(2021, 3, 28), QTime(0, 0), Qt::UTC));
    // This hour does not exist in half of Europe; here it is nobody's local time.
    const QDateTime skipped = DateText::moment("2021-03-28 02:30:00");
    EXPECT_EQ(skipped.time(), QTime(2, 30));
    EXPECT_EQ(DateText::moment("2021-03-28T02:30:00"), skipped);
    for (const char *text : {"", "2021-03-28 ", "2021-03-28_02:30", "2021-03-28 02:30:00Z",
                             "2021-03-28 02:30:00+08:00", "02:30:00"})
        EXPECT_FALSE(DateText::moment(text).isValid()) << text;
}

} // namespace
