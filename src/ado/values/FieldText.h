#pragma once

#include "ado/Enums.h"
#include "ado/values/RawValue.h"

#include <QtCore/QByteArray>

namespace ADODB {

// Appends the text of a stored value, as returned by ValueText(), in UTF-8. Avoids creating a QVariant and a
// QString if the text is shown as it is stored, which is almost always the case.
void appendText(QByteArray &utf8, const RawValue &raw, DataTypeEnum type);

// The same for callers that write many values into their own buffer. A number or Null needs at most
// `longestNumber` bytes. Returns the end of what was written, or null if only appendText() can write the
// value, as with texts.
constexpr qsizetype longestNumber = 32;
char *writeNumber(char *to, const RawValue &raw, DataTypeEnum type);
// Whether a text is shown as it is stored. False only means that it takes a closer look. With `isAscii` all
// its bytes are known to be.
bool isShownAsStored(QByteArrayView text, DataTypeEnum type, bool isAscii = false);
// Whether texts of this type are shown as they are stored when they are ASCII.
bool isTextType(DataTypeEnum type);

} // namespace ADODB
