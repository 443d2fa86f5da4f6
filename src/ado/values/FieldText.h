#pragma once

#include "ado/Enums.h"
#include "ado/values/RawValue.h"

#include <QtCore/QByteArray>

namespace ADODB {

// Appends the text of a stored value, as ValueText() gives it, in UTF-8. It makes no QVariant and no QString
// of what is stored as it is shown, which is nearly everything.
void appendText(QByteArray &utf8, const RawValue &raw, DataTypeEnum type);

// The same in pieces, for what writes many values into room of its own. A number or Null takes at most
// `longestNumber` bytes; the answer is the end of what was written, or null where only appendText() can write
// it, as it can't with texts.
constexpr qsizetype longestNumber = 32;
char *writeNumber(char *to, const RawValue &raw, DataTypeEnum type);
// Whether a text is shown as it is stored. False only means that it takes a closer look. With `isAscii` all
// its bytes are known to be.
bool isShownAsStored(QByteArrayView text, DataTypeEnum type, bool isAscii = false);
// Whether texts of this type are shown as they are stored when they are ASCII.
bool isTextType(DataTypeEnum type);

} // namespace ADODB
