#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// A number of records, pages or characters as people read it: with a comma between the thousands, in both
// languages. Not for numbers that are copied, typed or read by programs.
QString grouped(qint64 number);

} // namespace KOVAVSFDataGridLib
