#pragma once

#include "filter/conditions/FilterState.h"

#include <QtCore/QJsonObject>

namespace KOVAVSFDataGridLib {

// What a condition was built from: the rows of the builder, or a text that was typed instead of them.
struct BuiltFilter
{
    FilterState rows = {};
    QString condition = {}; // then there are no rows

    bool operator==(const BuiltFilter &) const = default;
};

// The form for files. Reading invalid data returns no value.
QJsonObject toJson(const BuiltFilter &filter);
std::optional<BuiltFilter> builtFilterOf(const QJsonValue &json);

} // namespace KOVAVSFDataGridLib
