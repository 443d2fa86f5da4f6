#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtCore/QtGlobal>

namespace AdoTest {

// While it exists, the system's temporary files are created in a separate folder.
class TemporaryFolder
{
public:
    TemporaryFolder() { use(m_folder.path()); }
    ~TemporaryFolder() { qputenv("TMPDIR", m_before); }
    Q_DISABLE_COPY_MOVE(TemporaryFolder)

    // From now on no temporary file can be made.
    void makeUnusable() { use(QStringLiteral("/proc")); }
    // The files that can be seen in it.
    QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    static void use(const QString &path) { qputenv("TMPDIR", path.toLocal8Bit()); }

    const QByteArray m_before = qgetenv("TMPDIR");
    QTemporaryDir m_folder;
};

} // namespace AdoTest
