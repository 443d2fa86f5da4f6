#pragma once

#include <QtCore/QStringList>

namespace ADODB {

class AccessFile;
class SqliteSession;

// The SELECT and UNION queries saved in an Access file, as views.
namespace AccessQueries {

// Omits queries that can't run here: action and crosstab queries, and those with parameters or with functions
// defined in the file. Returns the names of the omitted ones.
QStringList install(const SqliteSession &session, const AccessFile &file);

} // namespace AccessQueries

} // namespace ADODB
