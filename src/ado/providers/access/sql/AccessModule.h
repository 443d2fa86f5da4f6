#pragma once

struct sqlite3;

#include <memory>

namespace ADODB {

class AccessFile;

// Makes the tables of an Access file available to SQLite as virtual tables with the same names. A table whose
// name SQLite does not accept is omitted. A read error while a statement runs ends it with the error for a
// damaged file. Throws Error.
namespace AccessModule {

// The file stays open until the database is closed and its last statement is finalized.
void install(sqlite3 *db, const std::shared_ptr<const AccessFile> &file);

} // namespace AccessModule

} // namespace ADODB
