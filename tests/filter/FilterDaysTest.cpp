// The days that a text means, on dates where that is error-prone.
#include "filter/conditions/FilterDays.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

// "first/end"; "-" if the text doesn't mean days.
std::string days(const QString &typed, const char *today)
{
    const auto found = readDays(typed, QDate::fromString(QLatin1StringView(today), Qt::ISODate));
    return found
               ? (found->first.toString(Qt::ISODate) + u'/' + found->end.toString(Qt::ISODate)).toStdString()
               : "-";
}

struct Case
{
    const char16_t *typed;
    const char *today;
    const char *days;
};

} // namespace

TEST(FilterDays, AreReadFromWords)
{
    constexpr Case cases[] = {
        {u"今天", "2024-02-29", "2024-02-29/2024-03-01"},
        {u"今天", "2023-12-31", "2023-12-31/2024-01-01"},
        {u" 今日 ", "2024-05-05", "2024-05-05/2024-05-06"},
        {u"昨天", "2024-03-01", "2024-02-29/2024-03-01"},
        {u"昨天", "2023-03-01", "2023-02-28/2023-03-01"},
        {u"昨天", "2024-01-01", "2023-12-31/2024-01-01"},
        {u"本周", "2024-01-01", "2024-01-01/2024-01-08"}, // a Monday
        {u"本周", "2023-01-01", "2022-12-26/2023-01-02"}, // a Sunday
        {u"上周", "2024-03-04", "2024-02-26/2024-03-04"},
        {u"上周", "2024-03-03", "2024-02-19/2024-02-26"},
        {u"本月", "2024-02-01", "2024-02-01/2024-03-01"},
        {u"本月", "2023-12-31", "2023-12-01/2024-01-01"},
        {u"上月", "2024-03-31", "2024-02-01/2024-03-01"},
        {u"上个月", "2024-01-31", "2023-12-01/2024-01-01"},
        {u"本季", "2024-01-01", "2024-01-01/2024-04-01"},
        {u"本季", "2024-03-31", "2024-01-01/2024-04-01"},
        {u"本季度", "2024-12-31", "2024-10-01/2025-01-01"},
        {u"今年", "2024-02-29", "2024-01-01/2025-01-01"},
        {u"去年", "2024-02-29", "2023-01-01/2024-01-01"},
        {u"最近 1 天", "2024-02-29", "2024-02-29/2024-03-01"},
        {u"最近7天", "2024-03-03", "2024-02-26/2024-03-04"},
        {u"最近 ３０ 天", "2023-03-01", "2023-01-31/2023-03-02"},
        {u"近366天", "2024-12-31", "2024-01-01/2025-01-01"},
        {u"2024", "2024-02-29", "2024-01-01/2025-01-01"},
        {u"today", "2024-02-29", "2024-02-29/2024-03-01"},
        {u"Last Week", "2024-03-04", "2024-02-26/2024-03-04"},
        {u"this quarter", "2024-03-31", "2024-01-01/2024-04-01"},
        {u"last 7 days", "2024-03-03", "2024-02-26/2024-03-04"},
        {u"Last 1 day", "2024-02-29", "2024-02-29/2024-03-01"},
        {u"last 0 days", "2024-02-29", "-"},
        {u"last days", "2024-02-29", "-"},
        {u"最近 0 天", "2024-02-29", "-"},
        {u"最近天", "2024-02-29", "-"},
        {u"明年见", "2024-02-29", "-"},
        {u"", "2024-02-29", "-"},
    };
    for (const Case &each : cases)
        EXPECT_EQ(days(QString::fromUtf16(each.typed), each.today), each.days)
            << qUtf8Printable(QString::fromUtf16(each.typed)) << " on " << each.today;
}

TEST(FilterDays, AreReadFromMonthsAndYears)
{
    constexpr Case cases[] = {
        {u"2024-03", "2020-01-01", "2024-03-01/2024-04-01"},
        {u"2024/2", "2020-01-01", "2024-02-01/2024-03-01"},
        {u"2024.12", "2020-01-01", "2024-12-01/2025-01-01"},
        {u"2024年3月", "2020-01-01", "2024-03-01/2024-04-01"},
        {u"３月", "2024-02-29", "2024-03-01/2024-04-01"},
        {u"12月", "2024-02-29", "2024-12-01/2025-01-01"},
        {u"2023年", "2024-02-29", "2023-01-01/2024-01-01"},
        {u"2024-02-29", "2020-01-01", "2024-02-29/2024-03-01"},
        {u"20231231", "2020-01-01", "2023-12-31/2024-01-01"},
        {u"13月", "2024-02-29", "-"},
        {u"0月", "2024-02-29", "-"},
        {u"2024-13", "2024-02-29", "-"},
        {u"2023-02-29", "2024-02-29", "-"},
        {u"3", "2024-02-29", "-"},
    };
    for (const Case &each : cases)
        EXPECT_EQ(days(QString::fromUtf16(each.typed), each.today), each.days)
            << qUtf8Printable(QString::fromUtf16(each.typed));
}

// On each day of nine years: what must hold of days relative to it.
TEST(FilterDays, TodayIsInThePresentAndNotInThePast)
{
    for (QDate today(2019, 12, 30); today.year() < 2029; today = today.addDays(1)) {
        const auto holds = [today](const QString &word) {
            const auto found = readDays(word, today);
            return found && found->first <= today && today < found->end;
        };
        for (const QString &word : {u"今天"_s, u"本周"_s, u"本月"_s, u"本季"_s, u"今年"_s, u"最近 7 天"_s})
            EXPECT_TRUE(holds(word)) << qUtf8Printable(word + today.toString());
        const std::pair<QString, QString> followers[] = {
            {u"昨天"_s, u"今天"_s}, {u"上周"_s, u"本周"_s}, {u"上月"_s, u"本月"_s}, {u"去年"_s, u"今年"_s}};
        for (const auto &[past, present] : followers)
            EXPECT_EQ(readDays(past, today)->end, readDays(present, today)->first)
                << qUtf8Printable(past + today.toString());
    }
}
