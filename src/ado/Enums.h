#pragma once

#include "../KovaExport.h"

#include <QtCore/QObject>

// ADO's enumerations under ADO's names and with ADO's numbers. They are unscoped on purpose, so that code
// reads as it does in every ADO host: `recordset->Open(sql, connection, adOpenKeyset, adLockOptimistic,
// adCmdText)`.
namespace ADODB {
Q_NAMESPACE_EXPORT(KOVA_EXPORT)

// Whether a connection, a recordset or a stream is open.
enum ObjectStateEnum : qint32 {
    adStateClosed = 0, // closed
    adStateOpen = 1    // open
};
Q_ENUM_NS(ObjectStateEnum)

// How a connection opens.
enum ConnectOptionEnum : qint32 {
    adConnectUnspecified = -1 // synchronously, the only way here
};
Q_ENUM_NS(ConnectOptionEnum)

// Where a result is kept.
enum CursorLocationEnum : qint32 {
    adUseServer = 2, // on the server; accepted, but opened as adUseClient
    adUseClient = 3  // on the client, as a snapshot
};
Q_ENUM_NS(CursorLocationEnum)

// How a result follows changes. Every result is opened as adOpenStatic.
enum CursorTypeEnum : qint32 {
    adOpenUnspecified = -1, // unspecified: uses the property CursorType
    adOpenForwardOnly = 0,  // forwards only
    adOpenKeyset = 1,       // fixed set of rows, current values
    adOpenDynamic = 2,      // fully dynamic
    adOpenStatic = 3        // a snapshot
};
Q_ENUM_NS(CursorTypeEnum)

// Whether a result can be written.
enum LockTypeEnum : qint32 {
    adLockUnspecified = -1,   // unspecified: uses the property LockType
    adLockReadOnly = 1,       // read-only
    adLockPessimistic = 2,    // each record when its edit begins; written as adLockOptimistic
    adLockOptimistic = 3,     // each record when it is saved
    adLockBatchOptimistic = 4 // several at once; written as adLockOptimistic
};
Q_ENUM_NS(LockTypeEnum)

// What the text passed to Open is.
enum CommandTypeEnum : qint32 {
    adCmdUnspecified = -1, // unspecified: a statement
    adCmdText = 1,         // a statement
    adCmdTable = 2,        // a table's name
    adCmdStoredProc = 4,   // treated as a statement
    adCmdUnknown = 8,      // treated as a statement
    adCmdFile = 256,       // treated as a statement
    adCmdTableDirect = 512 // a table's name
};
Q_ENUM_NS(CommandTypeEnum)

// Which records Delete deletes.
enum AffectEnum : qint32 {
    adAffectCurrent = 1,    // the current one
    adAffectGroup = 2,      // those of the filter; refused
    adAffectAll = 3,        // all; refused
    adAffectAllChapters = 4 // those of all chapters; refused
};
Q_ENUM_NS(AffectEnum)

// The values of AbsolutePosition and AbsolutePage when there is no current record.
enum PositionEnum : qint32 {
    adPosUnknown = -1, // on a deleted or unsaved record
    adPosBOF = -2,     // before the first record
    adPosEOF = -3      // after the last record
};
Q_ENUM_NS(PositionEnum)

// Where Move counts from.
enum BookmarkEnum : qint32 {
    adBookmarkCurrent = 0, // the current record
    adBookmarkFirst = 1,   // the first record
    adBookmarkLast = 2     // the last record
};
Q_ENUM_NS(BookmarkEnum)

// What Recordset::Resync updates.
enum ResyncEnum : qint32 {
    adResyncUnderlyingValues = 1, // only Field::UnderlyingValue; a pending edit is kept
    adResyncAllValues = 2         // the record itself; a pending edit is discarded
};
Q_ENUM_NS(ResyncEnum)

// The state of the current record's edit.
enum EditModeEnum : qint32 {
    adEditNone = 0,       // nothing
    adEditInProgress = 1, // the current record has unsaved changes
    adEditAdd = 2,        // a new record is not yet saved
    adEditDelete = 4      // the current record was deleted
};
Q_ENUM_NS(EditModeEnum)

// The bits of Supports.
enum CursorOptionEnum : qint32 {
    adHoldRecords = 0x100,     // more records can be read before changes are saved
    adMovePrevious = 0x200,    // moves backwards
    adBookmark = 0x2000,       // Bookmark
    adApproxPosition = 0x4000, // AbsolutePosition and AbsolutePage
    adUpdateBatch = 0x10000,   // UpdateBatch; never
    adResync = 0x20000,        // Resync
    adNotify = 0x40000,        // events
    adFind = 0x80000,          // Find
    adSeek = 0x400000,         // Seek; never
    adIndex = 0x800000,        // Index; never
    adAddNew = 0x1000400,      // AddNew
    adDelete = 0x1000800,      // Delete
    adUpdate = 0x1008000       // Update
};
Q_ENUM_NS(CursorOptionEnum)

// The values of Status.
enum RecordStatusEnum : qint32 {
    adRecOK = 0,          // saved; adRecUnmodified is used instead
    adRecNew = 0x1,       // a new record is not yet saved
    adRecModified = 0x2,  // the record has unsaved changes
    adRecDeleted = 0x4,   // the record was deleted
    adRecUnmodified = 0x8 // the record is as it was read or saved
};
Q_ENUM_NS(RecordStatusEnum)

// What Filter accepts besides a condition and bookmarks.
enum FilterGroupEnum : qint32 {
    adFilterNone = 0,              // all records
    adFilterPendingRecords = 1,    // refused, as the following ones
    adFilterAffectedRecords = 2,   // those of the latest change
    adFilterFetchedRecords = 3,    // those in the cache
    adFilterConflictingRecords = 5 // those that could not be saved
};
Q_ENUM_NS(FilterGroupEnum)

// The direction of Find.
enum SearchDirectionEnum : qint32 {
    adSearchBackward = -1, // to the first record
    adSearchForward = 1    // to the last record
};
Q_ENUM_NS(SearchDirectionEnum)

// The format of GetString.
enum StringFormatEnum : qint32 {
    adClipString = 2 // columns and records with delimiters; the only one
};
Q_ENUM_NS(StringFormatEnum)

// How many records GetRows reads.
enum GetRowsOptionEnum : qint32 {
    adGetRowsRest = -1 // all that are left
};
Q_ENUM_NS(GetRowsOptionEnum)

// The format of Save.
enum PersistFormatEnum : qint32 {
    adPersistADTG = 0,            // a binary format; refused
    adPersistXML = 1,             // XML
    adPersistProviderSpecific = 2 // CSV
};
Q_ENUM_NS(PersistFormatEnum)

// The reason for an event.
enum EventReasonEnum : qint32 {
    adRsnAddNew = 1,        // a record was added
    adRsnDelete = 2,        // a record was deleted
    adRsnUpdate = 3,        // a record was saved
    adRsnUndoUpdate = 4,    // an edit was discarded
    adRsnUndoAddNew = 5,    // a new record was discarded
    adRsnUndoDelete = 6,    // a deletion was discarded
    adRsnRequery = 7,       // the result was opened
    adRsnResynch = 8,       // the result was read again
    adRsnClose = 9,         // the result was closed
    adRsnMove = 10,         // the current record moved
    adRsnFirstChange = 11,  // the first change to a record's values
    adRsnMoveFirst = 12,    // MoveFirst
    adRsnMoveNext = 13,     // MoveNext
    adRsnMovePrevious = 14, // MovePrevious
    adRsnMoveLast = 15      // MoveLast
};
Q_ENUM_NS(EventReasonEnum)

// Types of fields. The providers don't use all of them.
enum DataTypeEnum : qint32 {
    adEmpty = 0,             // no value
    adSmallInt = 2,          // 16-bit integer
    adInteger = 3,           // 32-bit integer
    adSingle = 4,            // 32-bit floating point
    adDouble = 5,            // 64-bit floating point
    adCurrency = 6,          // money, four digits after the decimal point
    adDate = 7,              // date and time as a number of days
    adBSTR = 8,              // text
    adIDispatch = 9,         // an object
    adError = 10,            // an error number
    adBoolean = 11,          // True or False
    adVariant = 12,          // a value of any type
    adIUnknown = 13,         // an object without names
    adDecimal = 14,          // exact number
    adTinyInt = 16,          // 8-bit integer
    adUnsignedTinyInt = 17,  // 8-bit integer without sign
    adUnsignedSmallInt = 18, // 16-bit integer without sign
    adUnsignedInt = 19,      // 32-bit integer without sign
    adBigInt = 20,           // 64-bit integer
    adUnsignedBigInt = 21,   // 64-bit integer without sign
    adFileTime = 64,         // 100 ns since 1601
    adGUID = 72,             // GUID
    adBinary = 128,          // bytes of fixed length
    adChar = 129,            // text of fixed length
    adWChar = 130,           // Unicode text of fixed length
    adNumeric = 131,         // exact number of fixed scale
    adUserDefined = 132,     // the database's own type
    adDBDate = 133,          // date
    adDBTime = 134,          // time of day
    adDBTimeStamp = 135,     // date and time
    adChapter = 136,         // records below a record
    adPropVariant = 138,     // a value of any type, for automation
    adVarNumeric = 139,      // exact number of any length
    adVarChar = 200,         // text
    adLongVarChar = 201,     // long text
    adVarWChar = 202,        // Unicode text
    adLongVarWChar = 203,    // long Unicode text
    adVarBinary = 204,       // bytes
    adLongVarBinary = 205    // many bytes
};
Q_ENUM_NS(DataTypeEnum)

// Bits of Field::Attributes().
enum FieldAttributeEnum : qint32 {
    adFldUnspecified = -1,       // not known
    adFldMayDefer = 0x2,         // read from the database only when asked for
    adFldUpdatable = 0x4,        // can be written
    adFldUnknownUpdatable = 0x8, // not known whether it can be written
    adFldFixed = 0x10,           // of fixed length
    adFldIsNullable = 0x20,      // accepts Null
    adFldMayBeNull = 0x40,       // can be Null when read
    adFldLong = 0x80,            // long text or bytes
    adFldRowID = 0x100,          // the row's own number
    adFldRowVersion = 0x200,     // changes with every write to the row
    adFldKeyColumn = 0x8000      // part of the key
};
Q_ENUM_NS(FieldAttributeEnum)

// What a stream contains.
enum StreamTypeEnum : qint32 {
    adTypeBinary = 1, // bytes
    adTypeText = 2    // text, stored as UTF-8
};
Q_ENUM_NS(StreamTypeEnum)

// How much Read reads.
enum StreamReadEnum : qint32 {
    adReadAll = -1, // everything that is left
    adReadLine = -2 // one line; refused
};
Q_ENUM_NS(StreamReadEnum)

// What SaveToFile does if the file exists.
enum SaveOptionsEnum : qint32 {
    adSaveCreateNotExist = 1, // throws 3004
    adSaveCreateOverWrite = 2 // replaces it
};
Q_ENUM_NS(SaveOptionsEnum)

// ADO's own error numbers. Error::Number() returns them as 0x800A0000 + number; see Error.h.
enum ErrorValueEnum : qint32 {
    adErrInvalidArgument = 3001,     // an argument is out of its range
    adErrOpeningFile = 3002,         // a database file can't be opened
    adErrReadFile = 3003,            // a file can't be read
    adErrWriteFile = 3004,           // a file can't be written
    adErrNoCurrentRecord = 3021,     // there is no current record
    adErrIllegalOperation = 3219,    // not allowed in this state
    adErrFeatureNotAvailable = 3251, // not possible with this result or database
    adErrItemNotFound = 3265,        // no field with this name or number
    adErrDataConversion = 3421,      // a value does not fit the field's type
    adErrObjectClosed = 3704,        // the object must be open
    adErrObjectOpen = 3705,          // the object must be closed
    adErrProviderNotFound = 3706,    // no such provider
    adErrInvalidConnection = 3709,   // no usable connection
    adErrStillExecuting = 3711,      // an earlier call has not returned yet
    adErrIntegrityViolation = 3719,  // violates a constraint of the database
    adErrPermissionDenied = 3720,    // not permitted
    adErrResourceLocked = 3730       // locked by another program
};
Q_ENUM_NS(ErrorValueEnum)

// The numbers that ADO passes on from a provider, as Error::Number() returns them.
enum ProviderErrorEnum : qint32 {
    dbErrFailed = -2147467259,            // 80004005: the provider gave no more specific number
    dbErrPermissionDenied = -2147217911,  // 80040E09: not permitted
    dbErrBadBookmark = -2147217906,       // 80040E0E: not a bookmark of this recordset
    dbErrInCommand = -2147217900,         // 80040E14: the statement is wrong
    dbErrDeletedRow = -2147217885,        // 80040E23: the current record was deleted
    dbErrIntegrity = -2147217873,         // 80040E2F: violates a constraint of the database
    dbErrNoTable = -2147217865,           // 80040E37: no such table or view
    dbErrConcurrency = -2147217864,       // 80040E38: the row is no longer the one shown
    dbErrInDoubt = -2147168234,           // 8004D016: connection lost during a save; the outcome is unknown
    dbErrPerhapsSaved = -2147168016,      // 8004D0F0: the outcome of dbErrInDoubt can't be found out
    dbErrAuthFailed = -2147217843,        // 80040E4D: wrong user name or password
    dbErrCancelled = -2147217842,         // 80040E4E: the user or the program stopped it
    dbErrMultipleStatements = -2147217841 // 80040E4F: more than one statement
};
Q_ENUM_NS(ProviderErrorEnum)

} // namespace ADODB
