#include "ado/values/Instant.h"

#include <QtCore/QDateTime>
#include <gtest/gtest.h>

#include <vector>

using ADODB::Instant;

namespace {

TEST(Instant, ReadsWhatDatabasesWrite)
{
    struct Text
    {
        const char *text;
        qint64 seconds;
        int nanoseconds = 0;
        std::optional<int> offset = {};
        bool hasDay = true;
    };
    const std::vector<Text> cases{
        {"1970-01-01", 0},
        {"1970-01-02T00:00", 86400},
        {"1969-12-31 23:59:59.5", -1, 500'000'000},
        {"2024-01-01 12:00:00.123456", 1704110400, 123'456'000},
        {"2024-01-01 12:00:00.000000001", 1704110400, 1},
        {"2024-01-01 12:00:00.00000000190+01", 1704110400, 1, 3600},
        {"2024-01-01 12:00:00+02", 1704110400, 0, 7200},
        {"2024-01-01 12:00:00.25-03:30", 1704110400, 250'000'000, -12600},
        {"2024-01-01 12:00:00 +00:00:01", 1704110400, 0, 1},
        {"2024-01-01 12:00+0545", 1704110400, 0, 20700},
        {"2024-01-01 12:00:00Z", 1704110400, 0, 0},
        {"12024-01-01", 317273587200},
        {"0001-12-31 BC", -62135596800 - 86400},
        {"0044-03-15 12:00:00 BC", -63517780800},
        {"0044-03-15 12:00:00+02 BC", -63517780800, 0, 7200},
        {"12:00", 43200, 0, {}, false},
        {"24:00:00", 86400, 0, {}, false},
        {"838:59:59", 3020399, 0, {}, false},
        {"-00:00:01.5", -2, 500'000'000, {}, false},
        {"12:00:00.123456+02", 43200, 123'456'000, 7200, false},
    };
    for (const Text &c : cases) {
        const auto instant = Instant::ofText(c.text);
        ASSERT_TRUE(instant) << c.text;
        EXPECT_EQ(instant->seconds, c.seconds) << c.text;
        EXPECT_EQ(instant->nanoseconds, c.nanoseconds) << c.text;
        EXPECT_EQ(instant->offset, c.offset) << c.text;
        EXPECT_EQ(instant->hasDay, c.hasDay) << c.text;
    }
}

TEST(Instant, AnythingElseHasNone)
{
    for (const char *text : {"",
                             " ",
                             "-",
                             "hello",
                             "2024",
                             "2024-02-30",
                             "2023-02-29",
                             "2024-13-01",
                             "24-01-01",
                             "0000-01-01",
                             "2024-01-01 24:00",
                             "2024-01-01 -1:00",
                             "2024-01-01 12",
                             "2024-01-01 12:60",
                             "2024-01-01 12:00:60",
                             "2024-01-01 12:00:00.",
                             "2024-01-01 12:00+",
                             "2024-01-01 12:00 x",
                             "2024-01-01 12:00+02x",
                             "2024-01-01+02",
                             "2024-01-01X12:00",
                             "12:00 BC",
                             "BC",
                             " BC",
                             "12",
                             "1:00",
                             "1000:00:00",
                             "--12:00",
                             "infinity x",
                             "Infinity"})
        EXPECT_FALSE(Instant::ofText(text)) << text;
    for (const QVariant &value : {QVariant(), QVariant(1), QVariant(2.5), QVariant(QByteArray("2024-01-01"))})
        EXPECT_FALSE(Instant::of(value));
}

TEST(Instant, IsOrderedByTime)
{
    const std::vector<const char *> ascending{"-infinity",
                                              "4713-01-01 BC",
                                              "0044-03-15 BC",
                                              "0001-01-01",
                                              "1970-01-01",
                                              "2024-01-01 12:00:00+14",
                                              "2024-01-01 11:59:59.999999",
                                              "2024-01-01 12:00:00",
                                              "2024-01-01 12:00:00.000000001",
                                              "2024-01-01 12:00:00.1",
                                              "2024-01-01 12:00:00.123456",
                                              "2024-10-27 02:30:00+02",
                                              "2024-10-27 02:15:00+01",
                                              "9999-12-31",
                                              "10000-01-01",
                                              "infinity"};
    for (std::size_t i = 0; i < ascending.size(); ++i) {
        for (std::size_t j = 0; j < ascending.size(); ++j) {
            const int order = Instant::ofText(ascending[i])->compare(*Instant::ofText(ascending[j]));
            EXPECT_EQ(order < 0, i < j) << ascending[i] << ' ' << ascending[j];
            EXPECT_EQ(order > 0, i > j) << ascending[i] << ' ' << ascending[j];
        }
    }
    EXPECT_EQ(Instant::ofText("2024-01-01 12:00+02")->compare(*Instant::ofText("2024-01-01 10:00Z")), 0);
    EXPECT_EQ(Instant::ofText("2024-01-01 12:00+02")->local().compare(*Instant::ofText("2024-01-01 12:00")),
              0);
}

TEST(Instant, OfAValueIsThatOfItsText)
{
    const QDate day(2024, 2, 29);
    const QTime clock(23, 59, 58, 125);
    const auto isSame = [](const QVariant &value, const char *text) {
        const auto left = Instant::of(value);
        const auto right = Instant::ofText(text);
        return left && right && left->compare(*right) == 0 && left->hasDay == right->hasDay;
    };
    EXPECT_TRUE(isSame(day, "2024-02-29"));
    EXPECT_TRUE(isSame(clock, "23:59:58.125"));
    EXPECT_TRUE(isSame(QDateTime(day, clock, Qt::UTC), "2024-02-29 23:59:58.125"));
    EXPECT_TRUE(isSame(QDateTime(QDate(-44, 3, 15), QTime(12, 0), Qt::UTC), "0044-03-15 12:00:00 BC"));
    EXPECT_TRUE(isSame(QStringLiteral("2024-02-29 23:59"), "2024-02-29 23:59:00"));
}

} // namespace
