#pragma once

struct sqlite3;

// The functions that Access has and SQLite does not have or means otherwise.
namespace ADODB::AccessFunctions {

void install(sqlite3 *db);

} // namespace ADODB::AccessFunctions
