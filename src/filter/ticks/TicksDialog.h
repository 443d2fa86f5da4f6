#pragma once

#include "filter/ticks/ValueTicks.h"

#include <functional>
#include <optional>

namespace KOVAVSFDataGridLib {

// What a user is asked by askTicks.
struct TicksRequest
{
    QString title;
    FieldClass fieldClass;
    ValueTicks::Requests requests; // see ValueTicks::start
    TickedValues ticked = {};      // what the list begins with
    // Whether the user can choose what is ticked; without it, he can choose everything.
    std::function<bool(const TickedValues &)> canChoose = {};
    // Why it can't be taken once he has chosen it, for him to read; empty when it can.
    std::function<QString(const TickedValues &)> whyNot = {};
    bool offersBuilder = false; // the filter builder instead
};

struct TicksAnswer
{
    TickedValues ticked = {};
    bool wantsBuilder = false; // then nothing is ticked
};

// Lets the user tick values of one field in a dialog. Nothing when he cancels, or when `parent` goes
// meanwhile.
std::optional<TicksAnswer> askTicks(QWidget *parent, const TicksRequest &request);

} // namespace KOVAVSFDataGridLib
