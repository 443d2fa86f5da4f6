#pragma once

#include "sql/Engine.h"

#include <QtCore/QVariant>

#include <functional>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

class Session;

// Shared by the commands that write the marked records as SQL.

// How the database of the open result reads and writes SQL.
Dialect dialectFor(Session &session);
// A value of a marked record; `field` is from 0. In the single-record list, this includes changes that are
// not yet saved.
QVariant markedValue(Session &session, const ADODB::Recordset &recordset, qint64 record, int field);
// Calls `handle` for each marked record, showing progress; returns false if the user cancelled.
bool forEachMarkedRecord(Session &session, const std::function<void(qint64 record)> &handle);
void putTextOnClipboard(Session &session, const QString &text);

} // namespace KOVAVSFDataGridLib
