#pragma once

#include "ado/providers/access/file/AccessColumn.h"

#include <QtCore/QString>

#include <vector>

// Access's DISTINCTROW: each record once, of the joined tables that the SELECT list takes fields from.
namespace ADODB::AccessDistinctRow {

// The statement without DISTINCTROW. If several tables are joined and some of them show no field, the rows
// are grouped by record instead. Throws dbErrFailed if that can't be expressed.
QString asGrouping(QString sql, const std::vector<AccessTable> &tables);

} // namespace ADODB::AccessDistinctRow
