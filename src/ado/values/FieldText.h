#pragma once

#include "ado/Enums.h"
#include "ado/values/RawValue.h"

#include <QtCore/QByteArray>

namespace ADODB {

// Appends the text of a stored value, as ValueText() gives it, in UTF-8. It makes no QVariant and no QString
// of what is stored as it is shown, which is nearly everything.
void appendText(QByteArray &utf8, const RawValue &raw, DataTypeEnum type);

} // namespace ADODB
