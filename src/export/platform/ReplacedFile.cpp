#include "export/platform/ReplacedFile.h"

#include <QtCore/QFile>
#include <QtCore/QThreadPool>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace KOVAVSFDataGridLib {

namespace {

// A handle that keeps a file, but opens neither it nor a device or a pipe of its name.
int handleOf(const QString &file)
{
#ifdef Q_OS_LINUX
    return open(QFile::encodeName(file).constData(), O_PATH | O_CLOEXEC);
#else
    Q_UNUSED(file)
    return -1;
#endif
}

} // namespace

ReplacedFile::ReplacedFile(const QString &file) : m_handle(handleOf(file)) {}

ReplacedFile::~ReplacedFile()
{
#ifdef Q_OS_LINUX
    if (m_handle >= 0)
        QThreadPool::globalInstance()->start([handle = m_handle] { close(handle); });
#endif
}

} // namespace KOVAVSFDataGridLib
