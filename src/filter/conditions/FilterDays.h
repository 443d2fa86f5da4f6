#pragma once

#include <QtCore/QDate>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

// A stretch of whole days: from the first one to the one before `end`.
struct DayRange
{
    QDate first;
    QDate end;

    bool operator==(const DayRange &) const = default;
};

// The days that a text names: a day (2024-01-31), a month (2024-03, or 3月 of this year), a year (2024年), or
// days relative to `today` (今天, 上周, 本季, 最近 7 天; a week begins on Monday). Digits and signs may be
// full-width. Nothing when the text names no days.
std::optional<DayRange> readDays(const QString &typed, QDate today);

// Whether the days depend on the day on which the text is read.
bool areRelativeDays(const QString &typed);

// The words for relative days that a user can choose from.
QStringList relativeDayWords();

} // namespace KOVAVSFDataGridLib
