#pragma once

#include "ado/providers/access/file/AccessColumn.h"

#include <QtCore/QString>

#include <vector>

// DISTINCTROW of Access: each record once, of those tables of a join that the list takes fields from.
namespace ADODB::AccessDistinctRow {

// The statement without DISTINCTROW. Where it matters, the rows are grouped by the records instead: with
// several tables, of which some give no field. Throws dbErrFailed where that can't be said.
QString asGrouping(QString sql, const std::vector<AccessTable> &tables);

} // namespace ADODB::AccessDistinctRow
