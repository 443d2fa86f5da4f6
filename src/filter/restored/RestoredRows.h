#pragma once

#include "filter/conditions/FilterCondition.h"
#include "filter/conditions/FilterState.h"
#include "filter/conditions/TickedValues.h"
#include "query/conditions/ConditionInForce.h"

#include <vector>

// Conditions in force as rows of the builder.
namespace KOVAVSFDataGridLib {

// The rows that a condition was built from, or one that selects the same records as the ticked values or the
// text that it was made from; nothing where there are none. Rows that compare records are there only where
// the records of `scope` are those that they were built for.
std::optional<FilterState> rowsOf(const ConditionInForce &condition, const Dialect &dialect,
                                  const std::vector<FilterField> &fields, const FilterScope &scope);

// Rows joined by AND to others, in brackets where these must not be torn apart; nothing where there are no
// more brackets.
std::optional<FilterState> joinedRows(const FilterState &first, const FilterState &second);

// Whether every bracket of the rows has its counterpart.
bool hasMatchedBrackets(const FilterState &rows);

} // namespace KOVAVSFDataGridLib
