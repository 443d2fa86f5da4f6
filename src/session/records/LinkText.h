#pragma once

#include <QtCore/QUrl>

namespace KOVAVSFDataGridLib {

// What a value's text leads to when it is as a whole the address of a page or of a mailbox (http, https,
// mailto); invalid for every other text. Nothing else is ever opened: a file or a program in a database is
// not to be run by a click.
QUrl linkIn(const QString &text);

} // namespace KOVAVSFDataGridLib
