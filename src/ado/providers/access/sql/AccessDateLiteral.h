#pragma once

#include <QtCore/QString>

// Date literals of Access's SQL (between two #), and dates as its users type them.
namespace ADODB::AccessDateLiteral {

// The date in the format of AccessValue; empty if it is not a date. The month precedes the day, as always in
// Access's SQL, unless the year comes first. A time alone gets the date 1899-12-30.
QString text(QStringView literal);

} // namespace ADODB::AccessDateLiteral
