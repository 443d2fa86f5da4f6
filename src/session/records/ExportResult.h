#pragma once

#include "session/Questions.h"

namespace KOVAVSFDataGridLib {

class Session;

// Writes the open result to a file under the progress line. False when the user cancelled and when it fails,
// which he has been shown.
bool exportResult(Session &session, const ExportAnswer &what);

// The table's name without what no file's name can have.
QString fileNameOf(Session &session);

// What a host asks for by a file and `Keyword=value;…` (see IKOVAVSFDataGrid::ExportData). Throws
// ADODB::Error when one of them can't be understood.
ExportAnswer exportAnswerFrom(const QString &file, const QString &options);

} // namespace KOVAVSFDataGridLib
