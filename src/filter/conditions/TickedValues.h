#pragma once

#include "filter/conditions/FilterCondition.h"

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

#include <optional>

namespace KOVAVSFDataGridLib {

// Which values of a field a user has ticked in a list: those named, or all but those.
struct TickedValues
{
    bool areLeftOut = true; // whether the values named are those without a tick
    // As they can be typed for the field. A day, but also a month (2024-03) or a year (2024年, 2024) of days.
    QStringList values = {};
    // Whether records without a value are ticked; nothing where there are no such records.
    std::optional<bool> hasNull = {};

    // Whether they select all records, or none.
    bool isEverything() const { return areLeftOut && values.isEmpty() && hasNull != false; }
    bool isNothing() const { return !areLeftOut && values.isEmpty() && hasNull != true; }

    bool operator==(const TickedValues &) const = default;
};

// The records with a ticked value. It is one condition for the reader of a statement: no AND joins its parts.
// Empty when all records are ticked, and at fault when none is.
FilterCondition conditionOf(const Dialect &dialect, const FilterField &field, const TickedValues &ticked,
                            const FilterScope &scope = {});

// The values as one text that can be typed into a list; see splitFilterList.
QString listOf(const TickedValues &ticked);

// As it is kept with a statement. What can't be read gives everything.
QJsonObject toJson(const TickedValues &ticked);
TickedValues tickedValuesOf(const QJsonObject &json);

} // namespace KOVAVSFDataGridLib
