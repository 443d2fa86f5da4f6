#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {
class SqlScanner;
}

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

// Throws dbErrPermissionDenied when engines could disagree about where a comment or a text of the statement
// ends: one of them would then run what another takes for a comment. See SqlScanner::strayCharacter().
// `source` names the engine in the error.
void refuseStrayCharacter(const SqlScanner &statement, const QString &source);

} // namespace ADODB
