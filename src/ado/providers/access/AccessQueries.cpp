#include "ado/providers/access/AccessQueries.h"
namespace ADODB {
void AccessQueries::install(const SqliteSession &, const AccessFile &) {}
} // namespace ADODB
