#pragma once

#include "filter/ValueTicks.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// Asks in a dialog which values of a field are meant, beginning with those that are named already; see
// ValueTicks for the requests. Nothing when the user cancels, or when `parent` goes meanwhile.
std::optional<TickedValues> askTicks(QWidget *parent, const FilterField &field, ValueTicks::Requests requests,
                                     const TickedValues &named);

} // namespace KOVAVSFDataGridLib
