#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QVariant>

#include <optional>

namespace ADODB {

// A date, a time or both for comparisons, to the nanosecond. Databases have times that QDateTime does not:
// more than three decimals, a time zone, years before 1 and after 9999, infinity, hours above 23. These are
// texts.
struct Instant
{
    // A date means its first moment, a time alone is on 1970-01-01. Any other value has no instant.
    static std::optional<Instant> of(const QVariant &value);
    static std::optional<Instant> ofText(QByteArrayView text);

    // Less than 0, 0 or greater than 0. An instant without a time zone is in UTC.
    int compare(const Instant &other) const;
    // The same clock and calendar without its time zone.
    Instant local() const { return {hasDay, seconds, nanoseconds, {}}; }

    bool hasDay = false;
    qint64 seconds = 0; // since 1970-01-01 00:00 on the clock of the time zone
    int nanoseconds = 0;
    std::optional<int> offset; // of the time zone, in seconds east of UTC
};

} // namespace ADODB
