#pragma once

struct sqlite3;

// Functions of dates: Now, Date, Time, Year … Second, Weekday, DatePart, DateAdd, DateDiff, DateSerial,
// TimeSerial, DateValue, TimeValue, CDate, IsDate, Format.
namespace ADODB::AccessDateFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessDateFunctions
