#pragma once

#include <QtCore/QByteArrayView>

#include <memory>
#include <vector>

class QTemporaryFile;

namespace ADODB {

// Stores data on disk that does not fit into memory. The temporary files are deleted with this object. Where
// the system allows it, they are unlinked at once, so that nothing is left even after a crash.
class SpillFile
{
public:
    SpillFile();
    ~SpillFile();
    Q_DISABLE_COPY_MOVE(SpillFile)

    // Writes the bytes (at least one) and returns their address, which is valid while this object exists.
    // Throws Error if the disk is full.
    const char *append(QByteArrayView bytes);

private:
    QTemporaryFile &fileWithRoom(qint64 size);

    std::vector<std::unique_ptr<QTemporaryFile>> m_files;
    qint64 m_used = 0; // bytes used in the last file
};

} // namespace ADODB
