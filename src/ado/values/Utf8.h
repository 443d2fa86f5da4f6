#pragma once

#include <QtCore/QString>

namespace ADODB {

// Converts UTF-8 to a QString. QString::fromUtf8 would treat U+FEFF at the start as a byte order mark and
// drop it.
inline QString textFromUtf8(QByteArrayView utf8)
{
    QString text = QString::fromUtf8(utf8);
    if (utf8.startsWith("\xef\xbb\xbf"))
        text.prepend(QChar::ByteOrderMark);
    return text;
}

} // namespace ADODB
