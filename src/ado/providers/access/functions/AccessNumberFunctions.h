#pragma once

struct sqlite3;

// Number functions: Int, Fix, Sgn, Sqr, Log, Round, CInt, CLng, CDbl,
// CSng, CCur, CBool, Val, IsNumeric, the implementations of `+` and `-`,
// and the functions that choose a value: Nz, IsNull, Switch, Choose.
namespace ADODB::AccessNumberFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessNumberFunctions
