#pragma once

#include "ado/Recordset.h"
#include "ado/ValueText.h"
#include "ado/rows/RowReader.h"
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

// Yes and No for a Boolean, as in the filter; the decimals of the field for a number, as in the grid. `field`
// is from 0.
inline ADODB::DisplayFormat shownFormat(const ADODB::Recordset &recordset, qint64 record, int field)
{
    using ADODB::DisplayFormat;
    if (recordset.Fields().Item(field).Type() == ADODB::adBoolean)
        return {.truth = DisplayFormat::Truth::YesNo};
    return {.leastDecimals = ADODB::RowReader::lostDecimals(recordset, record, field)};
}

// Of the current record.
inline ADODB::DisplayFormat shownFormat(const ADODB::Recordset &recordset, int field)
{
    return shownFormat(recordset, recordset.AbsolutePosition(), field);
}

inline QString shownText(const ADODB::Recordset &recordset, int field)
{
    return shownFormat(recordset, field).applied(ADODB::ValueText(recordset.Fields().Item(field).Value()));
}

} // namespace KOVAVSFDataGridLib
