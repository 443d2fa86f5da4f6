#pragma once

#include <QtCore/QtGlobal>

class QFileDevice;

namespace KOVAVSFDataGridLib {

// Makes the system start to write these bytes of a file to disk, without waiting for it. If the system
// doesn't support that, they are written when the file is flushed.
void beginSaving(const QFileDevice &file, qint64 from, qint64 size);

} // namespace KOVAVSFDataGridLib
