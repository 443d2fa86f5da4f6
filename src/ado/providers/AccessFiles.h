#pragma once

#include "ado/providers/Provider.h"

// What the two providers of Access files have in common.
namespace ADODB {

// Whether a connection string is meant for Access: `Microsoft.Jet.OLEDB.…`, `Microsoft.ACE.OLEDB.…`, or no
// provider and a `Data Source=` that ends in .mdb or .accdb.
bool isForAccess(const ConnectionString &connection);

QString accessProviderName();
QString accessPasswordKeyword();
FileChoice accessFileChoice();

} // namespace ADODB
