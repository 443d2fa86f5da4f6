#pragma once

#include "filter/conditions/FilterState.h"

#include <QtCore/QJsonObject>
#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// What a condition was built from: the rows of the builder, or a text that was typed instead of them, and
// conditions that were in force and are kept.
struct BuiltFilter
{
    FilterState rows = {};
    QString condition = {}; // if not empty, there are no rows
    QStringList kept = {};  // each as statements have it

    bool operator==(const BuiltFilter &) const = default;
};

// The form for files. Reading invalid data returns no value.
QJsonObject toJson(const BuiltFilter &filter);
std::optional<BuiltFilter> builtFilterOf(const QJsonValue &json);

} // namespace KOVAVSFDataGridLib
