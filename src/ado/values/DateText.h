#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QDateTime>

namespace ADODB::DateText {

// Strict readers of the texts that databases keep dates in; what they refuse stays a text, so that nothing of
// it is lost. Each answers an invalid value when the text is anything else.

// yyyy-MM-dd
QDate date(QByteArrayView text);
// HH:mm, HH:mm:ss or HH:mm:ss.f with as many decimals as a QTime can hold (further ones must be 0)
QTime time(QByteArrayView text);
// A date alone, or a date and a time with a blank or a T between. No zone; the answer is in UTC.
QDateTime moment(QByteArrayView text);

// Whether it is such a text but for its decimals, of which there are more than a QTime can hold, nine at
// most.
bool isFinerTime(QByteArrayView text);
bool isFinerMoment(QByteArrayView text);

// Whether it is a moment with a zone behind it: an offset such as +08, -03:30 or Z, with or without a blank
// before it.
bool isZonedMoment(QByteArrayView text);

} // namespace ADODB::DateText
