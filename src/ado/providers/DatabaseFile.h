#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ADODB {

// A look at a database file before its engine opens it, because an engine may take a missing file for a new
// one and any other file for a damaged one of its own. Throws 3002 when there is no such file or it can't be
// read.
struct DatabaseFile
{
    DatabaseFile(const QString &name, qint64 headerSize);

    QString path;  // absolute
    QString shown; // as a message names it
    qint64 size = 0;
    QByteArray header; // at most the bytes that were asked for
};

// Whether a file is an Access database by its ending.
bool isAccessFileName(const QString &name);

} // namespace ADODB
