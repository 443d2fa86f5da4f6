#pragma once

#include "ado/Enums.h"

namespace KOVAVSFDataGridLib {

// The kinds of fields for filtering.
enum class FieldClass {
    Text,
    Number,
    Boolean,
    Date,   // a day
    Time,   // a time of day
    Moment, // a day and a time
    Other   // only Null or not Null: pictures and the like
};

FieldClass fieldClassOf(ADODB::DataTypeEnum type);

// Whether values have a day, with or without a time.
bool hasDays(FieldClass fieldClass);

} // namespace KOVAVSFDataGridLib
