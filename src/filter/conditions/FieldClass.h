#pragma once

#include "ado/Enums.h"

namespace KOVAVSFDataGridLib {

// What a field's values are to somebody who filters by them.
enum class FieldClass {
    Text,
    Number,
    Boolean,
    Date,   // a day
    Time,   // a time of day
    Moment, // a day and a time
    Other   // only there or not there: pictures and the like
};

FieldClass fieldClassOf(ADODB::DataTypeEnum type);

} // namespace KOVAVSFDataGridLib
