#pragma once

#include "query/StatementSource.h"
#include "query/modQNVSFHFDataMain.h"

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// What all controls of a process and their dialogs share. Whoever wrote a value last has set it for all;
// a control must not take one of them for its own. Everything runs on the GUI thread, so there are no locks.
struct SharedValues
{
    static constexpr qint32 recordCap = 999999; // also the number of records on a page

    QString connectionString;
    QString sqlShow;
    QString sqlShowCopy;
    qint16 tableType = FromTable; // StatementSource
    AllDBType dbType = dbAccess;
    qint16 dbType16 = dbAccess;
    qint32 recordCount = 0; // of the last load, at most recordCap
    qint32 hasRecords = 0;  // 1 when recordCount is at least 1
    bool isOpening = false; // while a statement is opened, when no other may be
    bool isWaiting = false; // while anything else waits for a server, when no command may run
    // The open result as last looked at: its number of records and the current one, 0 before the first.
    qint32 recordCountSnapshot = 0;
    qint32 recordPosition = 0;
    ParsedStatements parsed;
    QString lastFilter;            // the condition that the last filter left
    QString previousShowStatement; // what was shown before the last reload

    static SharedValues &instance();
};

} // namespace KOVAVSFDataGridLib
