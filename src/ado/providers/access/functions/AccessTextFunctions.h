#pragma once

struct sqlite3;

// Text functions: Len, Mid, Left, Right, UCase, LCase, InStr, InStrRev, StrComp, StrConv, StrReverse, Space,
// String, Asc, Chr, CStr, and the implementation of `&`.
namespace ADODB::AccessTextFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessTextFunctions
