#pragma once

struct sqlite3;

#include <memory>

namespace ADODB {

class AccessFile;

// Lets SQLite read the tables of an Access file as virtual tables of its own, under their names. A
// table whose name SQLite does not take is left out. What can't be read while a statement runs ends that
// statement as a damaged file. Throws Error.
namespace AccessModule {

// The database keeps the file open until it is closed and its last statement has ended.
void install(sqlite3 *db, const std::shared_ptr<const AccessFile> &file);

} // namespace AccessModule

} // namespace ADODB
