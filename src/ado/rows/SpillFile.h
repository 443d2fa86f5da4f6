#pragma once

#include <QtCore/QByteArrayView>

#include <memory>
#include <vector>

class QTemporaryFile;

namespace ADODB {

// Keeps bytes on disk that are too many for memory, in temporary files that vanish with this object and,
// where the system allows it, have no name even before, so that a crash leaves nothing behind either.
class SpillFile
{
public:
    SpillFile();
    ~SpillFile();
    Q_DISABLE_COPY_MOVE(SpillFile)

    // Writes them (at least one) and answers where they can be read from now on, as long as this object
    // lives. Throws Error when the disk does not take them.
    const char *append(QByteArrayView bytes);

private:
    QTemporaryFile &fileWithRoom(qint64 size);

    std::vector<std::unique_ptr<QTemporaryFile>> m_files;
    qint64 m_used = 0; // of the last file, in bytes
};

} // namespace ADODB
