#pragma once

#include "filter/FieldClass.h"
#include "sql/Literals.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// A typed value as it stands in a condition.
struct FilterValue
{
    QString literal = {};
    // Only for a moment of which just the day was typed: the moment at which the next day begins.
    QString nextDay = {};
    NumberRange shownAlike = {};     // of a float: what is shown like the number
    bool isTrue = false;             // of a Boolean
    std::optional<double> rank = {}; // for telling which of two values is larger, where that is known
};

// Nothing when the text is no value of that class. Digits and signs may be full-width, as Chinese input
// methods give them. Text is taken as it was typed, with its blanks.
std::optional<FilterValue> readFilterValue(const Dialect &dialect, FieldClass fieldClass,
                                           const QString &typed);

// The day that a text is or begins with; invalid when there is none.
QDate dayOf(const QString &typed);

// Whether a text is a moment, and not the first one of its day.
bool hasTimeOfDay(const QString &typed);

// What to tell somebody who typed no such value.
QString whyNoFilterValue(FieldClass fieldClass, const QString &typed);

// The values of a list, which are separated by commas, narrow or full-width; one in double quotes may hold
// commas itself. Empty values are left out.
QStringList splitFilterList(const QString &typed);

// A value as it can be typed into a list.
QString filterListItem(const QString &value);

} // namespace KOVAVSFDataGridLib
