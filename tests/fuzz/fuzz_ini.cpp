// INI files: whatever one contains, an entry is read completely or not at all, whatever follows it.
#include "FuzzInput.h"

#include "control/settings/Configuration.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>

using namespace KOVAVSFDataGridLib;
using KovaTest::Require;

namespace {

constexpr qsizetype longest = 254;

// One file for all inputs, in memory if the system supports that.
QString writtenFile(const QByteArray &content)
{
    static const QTemporaryDir folder(
        QFile::exists(QStringLiteral("/dev/shm")) ? QStringLiteral("/dev/shm/fuzz_ini-XXXXXX") : QString());
    const QString path = folder.filePath(QStringLiteral("a.cfg"));
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    return path;
}

QString valueIn(const QByteArray &content)
{
    return readProfileValue(QStringLiteral("Use3Tier"), QStringLiteral("Server"), writtenFile(content));
}

// A text that can be a value without changes: one line without quotes around it, and without byte order
// marks, which are dropped at the start of a text.
QString asValue(const QString &text)
{
    QString value = text;
    value.removeIf([](QChar c) {
        return c == u'\n' || c == u'\r' || c == u'\0' || c == u'"' || c == u'\'' || c == QChar::ByteOrderMark;
    });
    // In UTF-8 and back, because a character can be cut in half.
    return QString::fromUtf8(value.trimmed().left(longest).trimmed().toUtf8());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString value = valueIn(content);
    Require(value.size() <= longest && value == value.trimmed());

    const QString planted = asValue(QString::fromUtf8(content.left(content.indexOf('\n'))));
    const QByteArray entry = "[use3tier]\nSERVER = " + planted.toUtf8() + '\n';
    Require(valueIn(entry + content) == planted);
    Require(valueIn("[Other]\nServer=x\n" + entry + content) == planted);
    return 0;
}
