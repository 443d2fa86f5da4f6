#pragma once

struct sqlite3;

// Functions of numbers: Int, Fix, Sgn, Sqr, Log, Round, CInt, CLng, CDbl, CSng, CCur, CBool, Val, IsNumeric,
// what
// `+` and `-` become, and those that choose among values: Nz, IsNull, Switch, Choose.
namespace ADODB::AccessNumberFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessNumberFunctions
