#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

// The most common patterns of Access's Format function. Unknown characters are copied.
namespace ADODB::AccessFormat {

// yyyy yy, mmmm mmm mm m, dddd ddd dd d, hh h, nn n, ss s, and the names Short Date, Medium Date, Long Date,
// Short Time and Long Time. An m after an h means minutes.
QString date(const QDateTime &moment, const QString &pattern);

// 0, # and , in the pattern, %, and the names Fixed, Standard, Currency and Percent.
QString number(double value, const QString &pattern);

} // namespace ADODB::AccessFormat
