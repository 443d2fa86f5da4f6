#pragma once

namespace KOVAVSFDataGridLib {
class SqlScanner;
}

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

// Throws unless the text is one statement that reads: drivers run whatever they are given, several statements
// too, and not all of them can tell before they have. It looks at words only, so it lets wrong statements
// pass but, of those an engine takes, none that changes data by itself; it can't see what a function does.
void refuseUnlessQuery(const SqlScanner &statement);

// Whether it is a query in the narrower sense, which can be explained, and not SHOW or EXPLAIN itself. For
// what was not refused.
bool isExplainable(const SqlScanner &statement);

} // namespace ADODB
