#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {
class SqlScanner;
}

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

// Throws dbErrPermissionDenied if engines could disagree about where a comment or a string of the statement
// ends: one engine would run what another one skips as a comment. See SqlScanner::strayCharacter(). `source`
// is the engine's name for the error.
void refuseStrayCharacter(const SqlScanner &statement, const QString &source);

} // namespace ADODB
