#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// Whether the bare name, in any case, is a reserved word of the engine. For Standard and Other: of any
// engine.
bool isReservedWord(Engine engine, const QString &name);

// Whether Access reads the bare name as something that SQLite does not know, such as the constant No.
bool isWordOfAccess(const QString &name);

} // namespace KOVAVSFDataGridLib
