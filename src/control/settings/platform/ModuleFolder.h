#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// The folder of the file that this library was loaded from, or of the program when it is linked in. The
// one place of the library that asks the operating system itself.
QString moduleFolder();

} // namespace KOVAVSFDataGridLib
