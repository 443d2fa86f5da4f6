#pragma once

#include <QtCore/QUrl>

namespace KOVAVSFDataGridLib {

// The URL if the whole text is a web or mail address (http, https,
// mailto); invalid for any other text. Nothing else is ever opened:
// a click must not open a file or run a program named in a database.
QUrl linkIn(const QString &text);

} // namespace KOVAVSFDataGridLib
