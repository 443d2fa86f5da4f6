#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// Replaces each run of line breaks and tabs (and the spaces around them) with one
// space, so that keywords are found in a statement written over several lines. Quoted
// and bracketed text is not changed. A "--" comment is removed up to the end of its
// line, because on a single line it would include the rest of the statement. A block
// comment is kept. A ";" at the very end is removed, because it would be in the middle
// of a derived statement. From the first position that engines read in different ways
// ("#", "--" without a space, a backslash before a quote, …), the text is not changed.
QString joinStatementLines(const QString &statement);

} // namespace KOVAVSFDataGridLib
