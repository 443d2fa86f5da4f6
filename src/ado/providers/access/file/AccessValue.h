#pragma once

#include "ado/providers/access/file/AccessFile.h"
#include "ado/values/RawValue.h"

#include <optional>

// From the bytes of a field to the value that statements compute with.
namespace ADODB::AccessValue {

// Access's True is -1.
RawValue fromFlag(bool flag);

// Numbers become numbers; a Currency or Decimal with more digits than a double keeps becomes their text.
// Dates become yyyy-MM-dd HH:mm:ss, with a fraction only when there is one; texts and GUIDs become text and
// all else bytes. `storage` is where the answer keeps its bytes.
RawValue fromField(QByteArrayView field, const AccessColumn &column, const AccessFile &file,
                   QByteArray &storage);

// The text of a date, in days since 1899-12-30, as fromField() writes it; empty when it is outside the years
// 1 to 9999.
QByteArray dateText(double days);
// The way back; nothing for a text that is no date with a time, written so.
std::optional<double> days(QByteArrayView dateText);

} // namespace ADODB::AccessValue
