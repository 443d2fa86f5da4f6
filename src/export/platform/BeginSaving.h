#pragma once

#include <QtCore/QtGlobal>

class QFileDevice;

namespace KOVAVSFDataGridLib {

// Has the system bring these bytes of a file, which were written to it, to the disk, and does not wait for
// it. Where the system knows no such thing they come there with the others, when the file is synchronised.
void beginSaving(const QFileDevice &file, qint64 from, qint64 size);

} // namespace KOVAVSFDataGridLib
