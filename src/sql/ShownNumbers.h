#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// Conditions that find the number which a cell shows, on an engine that is known.
namespace KOVAVSFDataGridLib {

// What a field of numbers holds, as far as engines compare it differently.
enum class NumberKind { Exact, Currency, Single, Double };

// A computed number or a fraction hardly ever is exactly what is shown, so that all numbers count that are
// shown so.
QString showsNumber(Engine engine, const QString &field, NumberKind kind, const QString &number,
                    bool isComputed);

// A computed field of any type that shows this number. Empty for an engine on which a computed field has one
// type for all its values.
QString showsComputedNumber(Engine engine, const QString &field, const QString &number);

} // namespace KOVAVSFDataGridLib
