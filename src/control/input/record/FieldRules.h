#pragma once

#include "ado/Field.h"
#include "ado/ValueText.h"
#include "ado/values/DisplayFormat.h"

// What may be written into a field, and how a single record shows its value.
namespace KOVAVSFDataGridLib {

inline bool isWritable(const ADODB::Field &field)
{
    return (field.Attributes() & (ADODB::adFldUpdatable | ADODB::adFldUnknownUpdatable)) != 0;
}

// Whether it can be written, and takes no Null.
inline bool isRequired(const ADODB::Field &field)
{
    return isWritable(field) && (field.Attributes() & ADODB::adFldIsNullable) == 0;
}

// Yes and No, as the filter has them, for a Boolean.
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
