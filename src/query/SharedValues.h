#pragma once

#include "query/StatementSource.h"
#include "query/modQNVSFHFDataMain.h"

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// State that all controls of a process and their dialogs share. The last value written applies to all; a
// control must not assume that a value is its own. Everything runs on the GUI thread, so there are no locks.
struct SharedValues
{
    static constexpr qint32 recordCap = 999999; // also the number of records per page

    QString connectionString;
    QString sqlShow;
    QString sqlShowCopy;
    qint16 tableType = FromTable; // StatementSource
    AllDBType dbType = dbAccess;
    qint16 dbType16 = dbAccess;
    qint32 recordCount = 0; // of the last load, at most recordCap
    qint32 hasRecords = 0;  // 1 when recordCount is at least 1
    bool isOpening = false; // while a statement is being opened; no other can be opened meanwhile
    bool isWaiting = false; // while anything else waits for a server; no command may run meanwhile
    // The open result when it was last checked: its record count and the current record, 0 before the first.
    qint32 recordCountSnapshot = 0;
    qint32 recordPosition = 0;
    ParsedStatements parsed;
    QString lastFilter;            // the condition of the last filter
    QString previousShowStatement; // what was shown before the last load

    static SharedValues &instance();
};

} // namespace KOVAVSFDataGridLib
