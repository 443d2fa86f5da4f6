#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// The text with each run of line breaks and tabs (and the blanks around them) as one blank, so that the
// keywords of a statement written over several lines are found. Quoted and bracketed text stays as it is. A
// "--" comment is dropped up to its line's end: on one line it would swallow the rest of the statement. A
// block comment stays.
// So is a ";" at the very end, which would come to stand in the middle of a derived statement.
// From the first place on that engines read in different ways ("#", "--" without a blank, a backslash before
// a quote, …), the text stays as it is.
QString joinStatementLines(const QString &statement);

} // namespace KOVAVSFDataGridLib
