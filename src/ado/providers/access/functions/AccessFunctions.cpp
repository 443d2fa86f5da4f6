#include "ado/providers/access/functions/AccessFunctions.h"

#include "ado/providers/access/functions/AccessAggregates.h"
#include "ado/providers/access/functions/AccessDateFunctions.h"
#include "ado/providers/access/functions/AccessNumberFunctions.h"
#include "ado/providers/access/functions/AccessTextFunctions.h"

namespace ADODB::AccessFunctions {

void install(sqlite3 *db)
{
    AccessTextFunctions::install(db);
    AccessDateFunctions::install(db);
    AccessNumberFunctions::install(db);
    AccessAggregates::install(db);
}

} // namespace ADODB::AccessFunctions
