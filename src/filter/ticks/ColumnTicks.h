#pragma once

#include "filter/mod_Filter.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// What a user makes of the values of a column.
struct ColumnChoice
{
    QString condition = {};    // of what is ticked; empty when that is everything
    QString built = {};        // for another question; see askColumnTicks
    bool wantsBuilder = false; // he wants the filter builder instead
};

// Lets the user choose records by ticking values of one field. `request.field` is the field's caption and
// `written` how statements write it. `request.built` is what an earlier choice answered. Nothing when he
// cancels, or when `parent` goes meanwhile.
std::optional<ColumnChoice> askColumnTicks(QWidget *parent, const FilterRequest &request,
                                           const QString &written);

} // namespace KOVAVSFDataGridLib
