#pragma once

#include "export/WriteRecords.h"
#include "session/ResultWatch.h"

#include <vector>

namespace KOVAVSFDataGridLib {

class Session;

constexpr int twipsOfPixel = 15; // at 96 DPI, in which exports have their widths

// Writing many records of what a session shows. It asks nothing and tells nothing; the host may do anything
// while the progress line is up.

// The columns of the grid, from 1, as an export writes them.
ExportColumns exportColumnsOf(Session &session, const std::vector<int> &columns);
// The marked rows as records; none when nothing is marked.
RecordRange markedRecords(Session &session);

// Hands the records to the writer under a progress line that says `done`. False when the user cancelled, when
// the result was taken away meanwhile, and when a statement is being opened. Throws as WriteRecords does.
bool writeUnderProgress(Session &session, const QString &done, const RecordRange &range,
                        const std::function<bool(const std::function<bool(qint64)> &shouldContinue)> &write);

} // namespace KOVAVSFDataGridLib
