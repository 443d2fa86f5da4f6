#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

// The formats of Access's Format function that are used most; unknown parts are copied.
namespace ADODB::AccessFormat {

// yyyy yy, mmmm mmm mm m, dddd ddd dd d, hh h, nn n, ss s, and the names Short Date, Medium Date, Long Date,
// Short Time and Long Time. m behind h means minutes.
QString date(const QDateTime &moment, const QString &pattern);

// Digits as 0, # and a comma ask for, %, and the names Fixed, Standard, Currency and Percent.
QString number(double value, const QString &pattern);

} // namespace ADODB::AccessFormat
