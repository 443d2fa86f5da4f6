#pragma once

#include "sql/Engine.h"

#include <QtCore/QVariant>

#include <functional>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

class Session;

// What the commands share that write the marked records as SQL.

// How the database of the open result reads and writes SQL.
Dialect dialectFor(Session &session);
// A value of a marked record, its field from 0. In the list of a single record what was written into it and
// is not saved yet is copied as well.
QVariant markedValue(Session &session, const ADODB::Recordset &recordset, qint64 record, int field);
// Calls `handle` for each marked record under a progress line; false when the user cancelled.
bool forEachMarkedRecord(Session &session, const std::function<void(qint64 record)> &handle);
void putTextOnClipboard(Session &session, const QString &text);

} // namespace KOVAVSFDataGridLib
