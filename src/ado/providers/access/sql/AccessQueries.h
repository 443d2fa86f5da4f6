#pragma once

#include <QtCore/QStringList>

namespace ADODB {

class AccessFile;
class SqliteSession;

// The select and union queries that are saved in an Access file, offered as views.
namespace AccessQueries {

// Leaves out what can't run here: action and crosstab queries, and those that ask for parameters or use
// functions of the file's own. Answers their names.
QStringList install(const SqliteSession &session, const AccessFile &file);

} // namespace AccessQueries

} // namespace ADODB
