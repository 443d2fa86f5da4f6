#pragma once

#include "export/RecordWriter.h"

#include <functional>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

// Records from 1; `last` is part of them. Empty when it is less than `first`.
struct RecordRange
{
    qint64 first = 1;
    qint64 last = 0;

    qint64 count() const { return last - first + 1; }
};

// Hands the records to the writer, from begin() to end(). `shouldContinue` is called every few records with
// the number written so far; once it answers false, no more is written and the answer is false. Throws
// ADODB::Error when the writer does, and when a record is gone.
bool writeRecords(const ADODB::Recordset &recordset, const RecordRange &range, const ExportColumns &columns,
                  RecordWriter &writer, const std::function<bool(qint64)> &shouldContinue);

} // namespace KOVAVSFDataGridLib
