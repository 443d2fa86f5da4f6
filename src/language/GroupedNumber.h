#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// A number of records, pages or characters for the user, with commas between the thousands in both languages.
// Not for numbers that are copied, typed or read by programs.
QString grouped(qint64 number);

} // namespace KOVAVSFDataGridLib
