#pragma once

#include "filter/mod_Filter.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// What the user has chosen from the values of a column.
struct ColumnChoice
{
    QString condition = {};    // for the ticked values; empty if everything is ticked
    QString built = {};        // for a later call; see askColumnTicks
    bool wantsBuilder = false; // the user wants the filter builder instead
};

// Lets the user choose records by ticking values of one field. `request.field` is the field's caption and
// `written` its form in SQL. `request.built` is the result of an earlier choice. No value if the user
// cancels, or if `parent` is destroyed meanwhile.
std::optional<ColumnChoice> askColumnTicks(QWidget *parent, const FilterRequest &request,
                                           const QString &written);

} // namespace KOVAVSFDataGridLib
