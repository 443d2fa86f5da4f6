#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ADODB {

// Checks a database file before its engine opens it, because an engine
// may create a missing file or report a foreign file as a damaged one
// of its own. Throws 3002 if the file does not exist or can't be read.
struct DatabaseFile
{
    DatabaseFile(const QString &name, qint64 headerSize);

    QString path;  // absolute
    QString shown; // as shown in messages
    qint64 size = 0;
    QByteArray header; // at most the requested number of bytes
};

// Whether the file name has an ending of Access databases.
bool isAccessFileName(const QString &name);

} // namespace ADODB
