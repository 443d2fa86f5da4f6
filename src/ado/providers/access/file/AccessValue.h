#pragma once

#include "ado/providers/access/file/AccessFile.h"
#include "ado/values/RawValue.h"

#include <optional>

// Converts the bytes of a field to the value that statements use.
namespace ADODB::AccessValue {

// Access's True is -1.
RawValue fromFlag(bool flag);

// Numbers become numbers; a Currency or Decimal with more digits than a double can hold becomes text. Dates
// become yyyy-MM-dd HH:mm:ss, with a fraction only if there is one. Texts and GUIDs become text, all else
// bytes. `storage` owns the bytes of the result.
RawValue fromField(QByteArrayView field, const AccessColumn &column, const AccessFile &file,
                   QByteArray &storage);

// The text of a date in the format of fromField(). `days` counts from 1899-12-30. Empty outside the years 1
// to 9999.
QByteArray dateText(double days);
// The reverse. Empty if the text is not a date with a time in this format.
std::optional<double> days(QByteArrayView dateText);

} // namespace ADODB::AccessValue
