#include "ado/rows/SpillFile.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ADODB {

namespace {

// Limits the number of files: each uses a handle, and a process has only about a thousand.
constexpr qint64 fileSize = qint64{256} << 20;

[[noreturn]] void refuse(const QTemporaryFile &file)
{
    throw Error(dbErrFailed, Texts::spillFailed().arg(QDir::tempPath(), file.errorString()));
}

} // namespace

SpillFile::SpillFile() = default;

SpillFile::~SpillFile() = default;

// Writes first and maps then: on a full disk a write fails, but touching a mapped page kills the process.
const char *SpillFile::append(QByteArrayView bytes)
{
    QTemporaryFile &file = fileWithRoom(bytes.size());
    if (!file.seek(m_used) || file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush())
        refuse(file);
    const uchar *mapped = file.map(m_used, bytes.size());
    if (!mapped)
        refuse(file);
    m_used += bytes.size();
    return reinterpret_cast<const char *>(mapped);
}

// A file gets its full size at once, because some systems can't extend a file while it is mapped.
QTemporaryFile &SpillFile::fileWithRoom(qint64 size)
{
    if (!m_files.empty() && m_used + size <= m_files.back()->size())
        return *m_files.back();
    auto file = std::make_unique<QTemporaryFile>(QDir(QDir::tempPath()).filePath(u"kova-rows-XXXXXX"_s));
    if (!file->open())
        refuse(*file);
    file->setAutoRemove(!QFile::remove(file->fileName())); // fails if open files can't be unlinked
    if (!file->resize(std::max(fileSize, size)))
        refuse(*file);
    m_files.push_back(std::move(file));
    m_used = 0;
    return *m_files.back();
}

} // namespace ADODB
