#pragma once

#include <QtCore/QByteArrayView>

namespace KOVAVSFDataGridLib {

// Whether a spreadsheet would evaluate the text in a cell of a CSV file as a formula: it begins with "=",
// "+", "-", "@", one of their full-width forms, a tab or a line end. Plain numbers are not formulas.
bool isFormula(QByteArrayView utf8);
// The same, without a call for what begins like most texts.
inline bool looksLikeFormula(QByteArrayView utf8)
{
    const auto isAmong = [](char c, char first, char last) { return c >= first && c <= last; };
    const char first = utf8.isEmpty() ? 'a' : utf8.front();
    return !isAmong(first, 'a', 'z') && !isAmong(first, 'A', 'Z') && !isAmong(first, '0', '9') &&
           isFormula(utf8);
}

} // namespace KOVAVSFDataGridLib
