#include "ado/providers/access/AccessFunctions.h"

#include "ado/providers/access/AccessAggregates.h"
#include "ado/providers/access/AccessDateFunctions.h"
#include "ado/providers/access/AccessNumberFunctions.h"
#include "ado/providers/access/AccessTextFunctions.h"

namespace ADODB::AccessFunctions {

void install(sqlite3 *db)
{
    AccessTextFunctions::install(db);
    AccessDateFunctions::install(db);
    AccessNumberFunctions::install(db);
    AccessAggregates::install(db);
}

} // namespace ADODB::AccessFunctions
