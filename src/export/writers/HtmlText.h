#pragma once

#include <QtCore/QByteArray>

namespace KOVAVSFDataGridLib {

// Appends a text as it is written in HTML: markup escaped, line ends as <br>.
void appendHtml(QByteArray &html, QByteArrayView utf8);

} // namespace KOVAVSFDataGridLib
