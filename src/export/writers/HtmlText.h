#pragma once

#include <QtCore/QByteArray>

namespace KOVAVSFDataGridLib {

// Appends a text as HTML: markup is escaped, and line ends become <br>.
void appendHtml(QByteArray &html, QByteArrayView utf8);

} // namespace KOVAVSFDataGridLib
