#pragma once

#include <QtCore/QByteArrayView>

namespace KOVAVSFDataGridLib {

// Whether a spreadsheet would evaluate the text in a cell of a CSV file as a formula: it begins with "=",
// "+", "-", "@", one of their full-width forms, a tab or a line end. Plain numbers are not formulas.
bool looksLikeFormula(QByteArrayView utf8);

} // namespace KOVAVSFDataGridLib
