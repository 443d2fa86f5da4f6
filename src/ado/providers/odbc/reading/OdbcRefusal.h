#pragma once

namespace KOVAVSFDataGridLib {
class SqlScanner;
}

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

// Throws unless the text is a single statement that reads. Drivers run anything they are given, even several
// statements, and some can't classify it before. Only words are checked: invalid statements may pass, but no
// statement that an engine accepts and that changes data itself. Effects of functions are not seen.
void refuseUnlessQuery(const SqlScanner &statement);

// Whether it is a query proper, which can be explained, and not SHOW or EXPLAIN itself. Only for statements
// that refuseUnlessQuery() accepted.
bool isExplainable(const SqlScanner &statement);

} // namespace ADODB
