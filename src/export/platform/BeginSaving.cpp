#include "export/platform/BeginSaving.h"

#include <QtCore/QFileDevice>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#endif

namespace KOVAVSFDataGridLib {

void beginSaving(const QFileDevice &file, qint64 from, qint64 size)
{
#ifdef Q_OS_LINUX
    // An error here is reported again when the file is flushed.
    static_cast<void>(sync_file_range(file.handle(), from, size, SYNC_FILE_RANGE_WRITE));
#else
    Q_UNUSED(file)
    Q_UNUSED(from)
    Q_UNUSED(size)
#endif
}

} // namespace KOVAVSFDataGridLib
