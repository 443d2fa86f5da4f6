#pragma once

#include <QtCore/QByteArrayView>

namespace KOVAVSFDataGridLib {

// Whether a spreadsheet that opens the text as a cell of a CSV file would take it for a formula: it begins
// with "=", "+", "-", "@", one of their wide forms, a tab or a line end. Plain numbers are not formulas.
bool looksLikeFormula(QByteArrayView utf8);

} // namespace KOVAVSFDataGridLib
