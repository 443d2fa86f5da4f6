#pragma once

struct sqlite3;

// Access functions that SQLite lacks or defines differently.
namespace ADODB::AccessFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessFunctions
