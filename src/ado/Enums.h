#pragma once

#include "KovaExport.h"

#include <QtCore/QObject>

// ADO's enumerations under ADO's names and with ADO's numbers. They are unscoped on purpose, so that code
// reads as it does in every ADO host: `recordset->Open(sql, connection, adOpenKeyset, adLockOptimistic,
// adCmdText)`.
namespace ADODB {
Q_NAMESPACE_EXPORT(KOVA_EXPORT)

enum ObjectStateEnum : qint32 { adStateClosed = 0, adStateOpen = 1 };
Q_ENUM_NS(ObjectStateEnum)

enum ConnectOptionEnum : qint32 { adConnectUnspecified = -1 };
Q_ENUM_NS(ConnectOptionEnum)

enum CursorLocationEnum : qint32 { adUseServer = 2, adUseClient = 3 };
Q_ENUM_NS(CursorLocationEnum)

enum CursorTypeEnum : qint32 {
    adOpenUnspecified = -1,
    adOpenForwardOnly = 0,
    adOpenKeyset = 1,
    adOpenDynamic = 2,
    adOpenStatic = 3
};
Q_ENUM_NS(CursorTypeEnum)

enum LockTypeEnum : qint32 {
    adLockUnspecified = -1,
    adLockReadOnly = 1,
    adLockPessimistic = 2,
    adLockOptimistic = 3,
    adLockBatchOptimistic = 4
};
Q_ENUM_NS(LockTypeEnum)

enum CommandTypeEnum : qint32 {
    adCmdUnspecified = -1,
    adCmdText = 1,
    adCmdTable = 2,
    adCmdStoredProc = 4,
    adCmdUnknown = 8,
    adCmdFile = 256,
    adCmdTableDirect = 512
};
Q_ENUM_NS(CommandTypeEnum)

enum AffectEnum : qint32 { adAffectCurrent = 1, adAffectGroup = 2, adAffectAll = 3, adAffectAllChapters = 4 };
Q_ENUM_NS(AffectEnum)

// What AbsolutePosition and AbsolutePage answer when they do not stand on a record.
enum PositionEnum : qint32 { adPosUnknown = -1, adPosBOF = -2, adPosEOF = -3 };
Q_ENUM_NS(PositionEnum)

enum BookmarkEnum : qint32 { adBookmarkCurrent = 0, adBookmarkFirst = 1, adBookmarkLast = 2 };
Q_ENUM_NS(BookmarkEnum)

enum EditModeEnum : qint32 { adEditNone = 0, adEditInProgress = 1, adEditAdd = 2, adEditDelete = 4 };
Q_ENUM_NS(EditModeEnum)

enum EventReasonEnum : qint32 {
    adRsnAddNew = 1,
    adRsnDelete = 2,
    adRsnUpdate = 3,
    adRsnUndoUpdate = 4,
    adRsnUndoAddNew = 5,
    adRsnUndoDelete = 6,
    adRsnRequery = 7,
    adRsnResynch = 8,
    adRsnClose = 9,
    adRsnMove = 10,
    adRsnFirstChange = 11,
    adRsnMoveFirst = 12,
    adRsnMoveNext = 13,
    adRsnMovePrevious = 14,
    adRsnMoveLast = 15
};
Q_ENUM_NS(EventReasonEnum)

enum DataTypeEnum : qint32 {
    adEmpty = 0,
    adSmallInt = 2,
    adInteger = 3,
    adSingle = 4,
    adDouble = 5,
    adCurrency = 6,
    adDate = 7,
    adBSTR = 8,
    adIDispatch = 9,
    adError = 10,
    adBoolean = 11,
    adVariant = 12,
    adIUnknown = 13,
    adDecimal = 14,
    adTinyInt = 16,
    adUnsignedTinyInt = 17,
    adUnsignedSmallInt = 18,
    adUnsignedInt = 19,
    adBigInt = 20,
    adUnsignedBigInt = 21,
    adFileTime = 64,
    adGUID = 72,
    adBinary = 128,
    adChar = 129,
    adWChar = 130,
    adNumeric = 131,
    adUserDefined = 132,
    adDBDate = 133,
    adDBTime = 134,
    adDBTimeStamp = 135,
    adChapter = 136,
    adPropVariant = 138,
    adVarNumeric = 139,
    adVarChar = 200,
    adLongVarChar = 201,
    adVarWChar = 202,
    adLongVarWChar = 203,
    adVarBinary = 204,
    adLongVarBinary = 205
};
Q_ENUM_NS(DataTypeEnum)

// Bits of Field::Attributes().
enum FieldAttributeEnum : qint32 {
    adFldUnspecified = -1,
    adFldMayDefer = 0x2,
    adFldUpdatable = 0x4,
    adFldUnknownUpdatable = 0x8,
    adFldFixed = 0x10,
    adFldIsNullable = 0x20,
    adFldMayBeNull = 0x40,
    adFldLong = 0x80,
    adFldRowID = 0x100,
    adFldRowVersion = 0x200,
    adFldKeyColumn = 0x8000
};
Q_ENUM_NS(FieldAttributeEnum)

enum StreamTypeEnum : qint32 { adTypeBinary = 1, adTypeText = 2 };
Q_ENUM_NS(StreamTypeEnum)

enum StreamReadEnum : qint32 { adReadAll = -1, adReadLine = -2 };
Q_ENUM_NS(StreamReadEnum)

enum SaveOptionsEnum : qint32 { adSaveCreateNotExist = 1, adSaveCreateOverWrite = 2 };
Q_ENUM_NS(SaveOptionsEnum)

// ADO's own error numbers. Error::Number() carries them as 0x800A0000 + number; see Error.h.
enum ErrorValueEnum : qint32 {
    adErrInvalidArgument = 3001,
    adErrOpeningFile = 3002,
    adErrReadFile = 3003,
    adErrWriteFile = 3004,
    adErrNoCurrentRecord = 3021,
    adErrIllegalOperation = 3219,
    adErrFeatureNotAvailable = 3251,
    adErrItemNotFound = 3265,
    adErrDataConversion = 3421,
    adErrObjectClosed = 3704,
    adErrObjectOpen = 3705,
    adErrProviderNotFound = 3706,
    adErrInvalidConnection = 3709,
    adErrIntegrityViolation = 3719,
    adErrPermissionDenied = 3720,
    adErrResourceLocked = 3730
};
Q_ENUM_NS(ErrorValueEnum)

// The numbers that ADO passes through from a provider, as Error::Number() carries them.
enum ProviderErrorEnum : qint32 {
    dbErrFailed = -2147467259,            // 80004005: the provider gave no closer number
    dbErrPermissionDenied = -2147217911,  // 80040E09
    dbErrInCommand = -2147217900,         // 80040E14: the statement is wrong
    dbErrDeletedRow = -2147217885,        // 80040E23
    dbErrIntegrity = -2147217873,         // 80040E2F
    dbErrNoTable = -2147217865,           // 80040E37
    dbErrConcurrency = -2147217864,       // 80040E38: the row is not there (or not alone) any more
    dbErrAuthFailed = -2147217843,        // 80040E4D
    dbErrCancelled = -2147217842,         // 80040E4E
    dbErrMultipleStatements = -2147217841 // 80040E4F
};
Q_ENUM_NS(ProviderErrorEnum)

} // namespace ADODB
