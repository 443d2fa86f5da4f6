#include "ado/providers/DatabaseFile.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

DatabaseFile::DatabaseFile(const QString &name, qint64 headerSize)
{
    const QFileInfo info(name);
    path = info.absoluteFilePath();
    shown = QDir::toNativeSeparators(path);
    if (!info.exists())
        throw Error(adErrOpeningFile, Texts::fileMissing().arg(shown));
    if (info.isDir())
        throw Error(adErrOpeningFile, Texts::fileIsFolder().arg(shown));
    if (!info.isFile()) // opening a pipe would block until something writes to it
        throw Error(adErrOpeningFile, Texts::fileIsSpecial().arg(shown));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) // only a few bytes are needed
        throw Error(adErrOpeningFile, Texts::fileUnreadable().arg(shown, file.errorString()));
    size = file.size();
    if (size > 0) // reading something that only looks like a file can block forever
        header = file.read(headerSize);
}

bool isAccessFileName(const QString &name)
{
    return name.endsWith(".mdb"_L1, Qt::CaseInsensitive) || name.endsWith(".accdb"_L1, Qt::CaseInsensitive);
}

} // namespace ADODB
