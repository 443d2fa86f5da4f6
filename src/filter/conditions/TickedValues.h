#pragma once

#include "filter/conditions/FilterCondition.h"

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

// The values of a field that a user has ticked in a list: the given ones, or all except those.
struct TickedValues
{
    bool areLeftOut = true; // whether the given values are those without a tick
    // In the form for typing. For dates, also a month (2024-03) or a year (2024年, 2024).
    QStringList values = {};
    // Whether records without a value are ticked; no value if there are none.
    std::optional<bool> hasNull = {};

    // Whether they select all records, or none.
    bool isEverything() const { return areLeftOut && values.isEmpty() && hasNull != false; }
    bool isNothing() const { return !areLeftOut && values.isEmpty() && hasNull != true; }

    bool operator==(const TickedValues &) const = default;
};

// Selects the records with a ticked value. It is a single condition: its parts are not joined by AND. Empty
// if all are ticked, and an error if none is.
FilterCondition conditionOf(const Dialect &dialect, const FilterField &field, const TickedValues &ticked,
                            const FilterScope &scope = {});

// The values as a text that can be typed as a list; see splitFilterList.
QString listOf(const TickedValues &ticked);

// The form for storing with a statement. Invalid data means everything.
QJsonObject toJson(const TickedValues &ticked);
TickedValues tickedValuesOf(const QJsonObject &json);

} // namespace KOVAVSFDataGridLib
