#pragma once

#include "session/Questions.h"

namespace KOVAVSFDataGridLib {

class Session;

// Writes the open result to a file, showing progress. Returns false if the user cancelled, or if it failed,
// after a message.
bool exportResult(Session &session, const ExportAnswer &what);

// The table's name without characters that are not allowed in file names.
QString fileNameOf(Session &session);

// Parses a host's request: a file and `Keyword=value;…` (see IKOVAVSFDataGrid::ExportData). Throws
// ADODB::Error if one of them is invalid.
ExportAnswer exportAnswerFrom(const QString &file, const QString &options);

} // namespace KOVAVSFDataGridLib
