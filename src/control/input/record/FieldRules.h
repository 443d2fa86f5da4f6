#pragma once

#include "ado/Field.h"
#include "ado/ValueText.h"
#include "ado/values/DisplayFormat.h"

// Which fields can be written, and how the single-record list shows values.
namespace KOVAVSFDataGridLib {

inline bool isWritable(const ADODB::Field &field)
{
    return (field.Attributes() & (ADODB::adFldUpdatable | ADODB::adFldUnknownUpdatable)) != 0;
}

// Whether it can be written, but not with Null.
inline bool isRequired(const ADODB::Field &field)
{
    return isWritable(field) && (field.Attributes() & ADODB::adFldIsNullable) == 0;
}

// Yes and No for a Boolean, as in the filter.
inline ADODB::DisplayFormat shownFormat(const ADODB::Field &field)
{
    using ADODB::DisplayFormat;
    return field.Type() == ADODB::adBoolean ? DisplayFormat{.truth = DisplayFormat::Truth::YesNo}
                                            : DisplayFormat();
}

inline QString shownText(const ADODB::Field &field)
{
    return shownFormat(field).applied(ADODB::ValueText(field.Value()));
}

} // namespace KOVAVSFDataGridLib
