#pragma once

#include "export/WriteRecords.h"
#include "session/ResultWatch.h"

#include <vector>

namespace KOVAVSFDataGridLib {

class CountedText;
class Session;

constexpr int twipsOfPixel = 15; // at 96 DPI, in which exports have their widths

// Writing many records of a session's result. Asks and reports nothing. The host may do anything while the
// progress line is shown.

// The columns of the grid (from 1) in the form for an export.
ExportColumns exportColumnsOf(Session &session, const std::vector<int> &columns);
// The marked rows as records; empty if nothing is marked.
RecordRange markedRecords(Session &session);

// Passes the records to the writer, showing progress with the text `done`. Returns false if the user
// cancelled, if the result was closed meanwhile, or if a statement is being opened. Throws like writeRecords.
bool writeUnderProgress(Session &session, const CountedText &done, const RecordRange &range,
                        const std::function<bool(const std::function<bool(qint64)> &shouldContinue)> &write);

} // namespace KOVAVSFDataGridLib
