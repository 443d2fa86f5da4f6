#pragma once

#include <QtCore/QString>

// Dates as Access's SQL writes them between two #, and as its users type them.
namespace ADODB::AccessDateLiteral {

// The date as AccessValue writes dates; empty when it is none. Month before day, as everywhere in Access's
// SQL, unless the year comes first; a time alone is that of the day from which dates are counted.
QString text(QStringView literal);

} // namespace ADODB::AccessDateLiteral
