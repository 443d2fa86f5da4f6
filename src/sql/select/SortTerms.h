#pragma once

#include "sql/select/SelectParts.h"

namespace KOVAVSFDataGridLib {

// One term of ORDER BY.
SelectParts::Item sortTermIn(const SqlScanner &statement, TextRange tokens);

} // namespace KOVAVSFDataGridLib
