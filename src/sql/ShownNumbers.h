#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// Conditions that find the number shown in a cell, for a known engine.
namespace KOVAVSFDataGridLib {

// The kinds of number fields that engines compare differently.
enum class NumberKind { Exact, Currency, Single, Double };

// Computed numbers and fractions are rarely exactly what is shown, so the condition matches all numbers that
// are shown like this.
QString showsNumber(Engine engine, const QString &field, NumberKind kind, const QString &number,
                    bool isComputed);

// The same for a computed field of any type. Empty for an engine on which all values of a computed field have
// the same type.
QString showsComputedNumber(Engine engine, const QString &field, const QString &number);

} // namespace KOVAVSFDataGridLib
