#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QDateTime>

namespace ADODB::DateText {

// Strict parsers for the date texts that databases store. What they reject stays a text, so that nothing is
// lost. Each returns an invalid value for any other text.

// yyyy-MM-dd
QDate date(QByteArrayView text);
// HH:mm, HH:mm:ss or HH:mm:ss.f with as many decimals as QTime supports (further ones must be 0)
QTime time(QByteArrayView text);
// A date, or a date and a time separated by a space or a T. No time zone; the result is in UTC.
QDateTime moment(QByteArrayView text);

// Whether it is such a text except that it has
// more decimals than QTime supports, at most nine.
bool isFinerTime(QByteArrayView text);
bool isFinerMoment(QByteArrayView text);

// Whether it is a timestamp followed by a time zone: an offset such as +08 or -03:30, or Z, with an optional
// space before it.
bool isZonedMoment(QByteArrayView text);

} // namespace ADODB::DateText
