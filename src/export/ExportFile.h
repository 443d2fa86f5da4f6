#pragma once

#include "export/ExportFormat.h"
#include "export/WriteRecords.h"

namespace KOVAVSFDataGridLib {

struct ExportOutcome
{
    bool isWritten = false; // false when it was cancelled
    QString losses;         // see lossesOf()
};

// Writes the records to a temporary file beside `file` and puts it in that one's place when it is whole. A
// file that is there already stays as it is when the export is cancelled or fails. Throws ADODB::Error.
// `shouldContinue` as in WriteRecords.
ExportOutcome exportToFile(const QString &file, const ExportOptions &options,
                           const ADODB::Recordset &recordset, const RecordRange &range,
                           const ExportColumns &columns, const std::function<bool(qint64)> &shouldContinue);

} // namespace KOVAVSFDataGridLib
