#pragma once

#include <QtCore/QDate>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

// A range of whole days, from the first one to the one before `end`.
struct DayRange
{
    QDate first;
    QDate end;

    bool operator==(const DayRange &) const = default;
};

// A typed text without blanks around it, and with full-width characters as usual ones.
QString narrow(const QString &typed);

// Parses a text that means days: a day (2024-01-31), a month (2024-03, or 3月 of this year), a year (2024年),
// or days relative to `today` (今天, 上周, 本季, 最近 7 天; weeks begin on Monday). Digits and signs may be
// full-width. No value for any other text.
std::optional<DayRange> readDays(const QString &typed, QDate today);

// The words for relative days that the user can choose from.
QStringList relativeDayWords();

} // namespace KOVAVSFDataGridLib
