#pragma once

#include "export/ExportFormat.h"
#include "export/WriteRecords.h"

namespace KOVAVSFDataGridLib {

struct ExportOutcome
{
    bool isWritten = false; // false if it was cancelled
    QString losses;         // see lossesOf()
};

// Writes the records to a temporary file beside `file`, and renames it when it is complete. An existing file
// is not changed if the export is cancelled or fails. Throws ADODB::Error. `shouldContinue` is that of
// writeRecords().
ExportOutcome exportToFile(const QString &file, const ExportOptions &options,
                           const ADODB::Recordset &recordset, const RecordRange &range,
                           const ExportColumns &columns, const std::function<bool(qint64)> &shouldContinue);

} // namespace KOVAVSFDataGridLib
