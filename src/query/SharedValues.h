#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// What the statements of the controls were last parsed into; see modQNVSFHFDataMain.h.
struct ParsedStatements
{
    QString strSQLTable;      // the FROM text of the statement last given to ParseSQLFieldList
    QStringList colSQLFields; // its field names, in statement order
    QStringList colSelFields; // the field names of the statement last given to ParseSelFieldList
};

// What the statement of a host selects from, as the host says it.
enum StatementSource : qint32 { FromTable = 0, FromView = 1, FromOwnStatement = 2 };

// What all controls of a process and their dialogs share. Whoever wrote a value last has set it for all;
// a control must not take one of them for its own. Everything runs on the GUI thread, so there are no locks.
struct SharedValues
{
    static constexpr qint32 recordCap = 999999; // also the number of records on a page

    QString connectionString;
    QString sqlShow;
    QString sqlShowCopy;
    qint16 tableType = FromTable; // StatementSource
    qint32 dbType = 1;            // AllDBType
    qint16 dbType16 = 1;
    qint32 recordCount = 0; // of the last load, at most recordCap
    qint32 hasRecords = 0;  // 1 when recordCount is at least 1
    bool isOpening = false; // while a statement is opened, when no other may be
    bool isWaiting = false; // while anything else waits for a server, when no command may run
    QString scratch;        // what the text dialogs take and give
    // The open result as last looked at: its number of records and the current one, 0 before the first.
    qint32 recordCountSnapshot = 0;
    qint32 recordPosition = 0;
    ParsedStatements parsed;
    QString lastFilter;            // the condition that the last filter left
    QString previousShowStatement; // what was shown before the last reload

    static SharedValues &instance();
};

} // namespace KOVAVSFDataGridLib
