#pragma once

struct sqlite3;

// Date functions: Now, Date, Time, Year … Second, Weekday, DatePart, DateAdd, DateDiff, DateSerial,
// TimeSerial, DateValue, TimeValue, CDate, IsDate, Format.
namespace ADODB::AccessDateFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessDateFunctions
