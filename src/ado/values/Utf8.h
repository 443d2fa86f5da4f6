#pragma once

#include <QtCore/QString>

namespace ADODB {

// The text that these bytes are in UTF-8. QString::fromUtf8 takes U+FEFF at the beginning for a byte order
// mark and drops it.
inline QString textFromUtf8(QByteArrayView utf8)
{
    QString text = QString::fromUtf8(utf8);
    if (utf8.startsWith("\xef\xbb\xbf"))
        text.prepend(QChar::ByteOrderMark);
    return text;
}

} // namespace ADODB
