#pragma once

namespace ADODB {

class AccessFile;
class SqliteSession;

// The select queries that are saved in an Access file, offered as views.
namespace AccessQueries {

// Leaves out what can't run here: action, crosstab and union queries, and those that ask for parameters or
// use functions of the file's own.
void install(const SqliteSession &session, const AccessFile &file);

} // namespace AccessQueries

} // namespace ADODB
