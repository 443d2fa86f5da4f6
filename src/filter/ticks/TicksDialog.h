#pragma once

#include "filter/ticks/ValueTicks.h"

#include <functional>
#include <optional>

namespace KOVAVSFDataGridLib {

// The input for askTicks.
struct TicksRequest
{
    QString title;
    FieldClass fieldClass;
    ValueTicks::Requests requests; // see ValueTicks::start
    TickedValues ticked = {};      // the initial ticks
    // Whether the user can accept these ticks; by default all can be accepted.
    std::function<bool(const TickedValues &)> canChoose = {};
    // Why a choice can't be used, as a text for the user; empty if it can.
    std::function<QString(const TickedValues &)> whyNot = {};
    bool offersBuilder = false; // offers the filter builder as well
};

struct TicksAnswer
{
    TickedValues ticked = {};
    bool wantsBuilder = false; // if true, nothing is ticked
};

// Lets the user tick values of one field in a dialog. No value if the user cancels, or if `parent` is
// destroyed meanwhile.
std::optional<TicksAnswer> askTicks(QWidget *parent, const TicksRequest &request);

} // namespace KOVAVSFDataGridLib
