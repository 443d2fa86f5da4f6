#pragma once

struct sqlite3;

// Aggregate functions: First, Last, Var, VarP, StDev, StDevP.
namespace ADODB::AccessAggregates {

void install(sqlite3 *db);

} // namespace ADODB::AccessAggregates
