#pragma once

#include "../KovaExport.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ADODB {

// The one text form of a field's value: Null "", text unchanged, integers in decimal, floating point with at
// most 15 significant digits, "True"/"False", yyyy-MM-dd, HH:mm:ss, both with a space between (and a fraction
// of a second only if there is one), GUID in braces, binary "<n 字节>" (in English "<1 byte>", "<n bytes>").
KOVA_EXPORT QString ValueText(const QVariant &value);

} // namespace ADODB
