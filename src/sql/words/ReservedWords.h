#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// Whether the engine takes the bare name, in any letter case, for a word of its language. For Standard and
// Other: whether any engine does.
bool isReservedWord(Engine engine, const QString &name);

} // namespace KOVAVSFDataGridLib
