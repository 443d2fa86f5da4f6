#pragma once

#include "export/RecordWriter.h"

#include <functional>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

// Records from 1, including `last`. Empty if `last` is less than `first`.
struct RecordRange
{
    qint64 first = 1;
    qint64 last = 0;

    qint64 count() const { return last - first + 1; }
};

// Passes the records to the writer, from begin() to end(). Calls `shouldContinue` every few records with the
// number written so far; if it returns false, writing stops and the result is false. Throws ADODB::Error if
// the writer does or if a record was deleted.
bool writeRecords(const ADODB::Recordset &recordset, const RecordRange &range, const ExportColumns &columns,
                  RecordWriter &writer, const std::function<bool(qint64)> &shouldContinue);

} // namespace KOVAVSFDataGridLib
