#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class Session;

// Opens a statement that was sorted by `sort` and makes it the latest of the history. Returns false if it
// can't be read, after a message to the user.
bool showSorted(Session &session, const QString &statement, const QString &sort);

} // namespace KOVAVSFDataGridLib
