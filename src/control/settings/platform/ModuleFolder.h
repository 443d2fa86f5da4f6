#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// The folder of the file that this library was loaded from, or of the program if it is statically linked.
// Only this function of the library calls the operating system directly.
QString moduleFolder();

} // namespace KOVAVSFDataGridLib
