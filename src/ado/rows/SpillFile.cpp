#include "ado/rows/SpillFile.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ADODB {

namespace {

// Every file costs a handle, of which a process has about a thousand.
constexpr qint64 fileSize = qint64{256} << 20;

[[noreturn]] void refuse(const QTemporaryFile &file)
{
    throw Error(dbErrFailed, Texts::spillFailed().arg(QDir::tempPath(), file.errorString()));
}

} // namespace

SpillFile::SpillFile() = default;

SpillFile::~SpillFile() = default;

// Written first and mapped then: on a full disk a write fails, but touching a mapped page ends the process.
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

// A file gets its size at once, because not every system lets one grow while parts of it are mapped.
QTemporaryFile &SpillFile::fileWithRoom(qint64 size)
{
    if (!m_files.empty() && m_used + size <= m_files.back()->size())
        return *m_files.back();
    auto file = std::make_unique<QTemporaryFile>(QDir(QDir::tempPath()).filePath(u"kova-rows-XXXXXX"_s));
    if (!file->open())
        refuse(*file);
    file->setAutoRemove(!QFile::remove(file->fileName())); // fails where open files keep their names
    if (!file->resize(std::max(fileSize, size)))
        refuse(*file);
    m_files.push_back(std::move(file));
    m_used = 0;
    return *m_files.back();
}

} // namespace ADODB
