#pragma once

struct sqlite3;

// Functions of texts: Len, Mid, Left, Right, UCase, LCase, InStr, InStrRev, StrComp, StrConv, StrReverse,
// Space, String, Asc, Chr, CStr, and what `&` becomes.
namespace ADODB::AccessTextFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessTextFunctions
