#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class Session;

// Opens a statement that was sorted by `sort` and records it as the latest of the history. False when it
// can't be read, which the user has been shown.
bool showSorted(Session &session, const QString &statement, const QString &sort);

} // namespace KOVAVSFDataGridLib
