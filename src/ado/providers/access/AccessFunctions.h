#pragma once

struct sqlite3;

// Functions that Access has and SQLite doesn't: of texts (Len, Mid, Left, Right, UCase, LCase, InStr), dates
// (Now, Date, Year … Second, Weekday, DatePart, DateSerial, DateValue, CDate), numbers (Int, Fix, Sgn, Sqr)
// and conversions (CStr, CInt, CLng, CDbl, CSng, CCur, CBool, Val, Nz, IsNull, Format).
namespace ADODB::AccessFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessFunctions
