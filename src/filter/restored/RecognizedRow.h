#pragma once

#include "filter/conditions/FilterCondition.h"
#include "filter/conditions/FilterState.h"

#include <vector>

namespace KOVAVSFDataGridLib {

// The row that selects the same records as a condition that nobody built from rows: that of a cell's value,
// of words in a single field, of a host. Nothing if there is no such row. `fromText` is what the records are
// selected from.
std::optional<FilterRowState> rowRecognizedIn(const QString &condition, const Dialect &dialect,
                                              const std::vector<FilterField> &fields,
                                              const QString &fromText);

} // namespace KOVAVSFDataGridLib
