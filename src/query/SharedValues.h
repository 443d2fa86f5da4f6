#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// What all controls of a process and their dialogs share. Whoever wrote a value last has set it for all;
// a control must not take one of them for its own.
struct SharedValues
{
    static constexpr qint32 RecordCap = 999999; // also the number of records on a page

    QString connectionString;
    QString sqlShow;
    QString sqlShowCopy;
    qint16 tableType = 0;
    qint32 dbType = 1; // AllDBType
    qint16 dbType16 = 1;
    qint32 recordCount = 0; // of the last load, at most RecordCap
    qint32 hasRecords = 0;  // 1 when recordCount is at least 1
    QString scratch;        // what the text dialogs take and give
    // The open result as last looked at: its number of records and the current one, 0 before the first.
    qint32 recordCountSnapshot = 0;
    qint32 recordPosition = 0;
    QString lastFilter;            // the condition that the last filter left
    QString previousShowStatement; // what was shown before the last reload

    static SharedValues &instance();
};

} // namespace KOVAVSFDataGridLib
