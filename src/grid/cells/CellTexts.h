#pragma once

#include "language/Text.h"

// The texts of the grids, for proof-reading in one place.
namespace KOVAVSFDataGridLib::CellTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::CellTexts"};

// What a screen reader says of a heading: its text and its marks.
inline constexpr Text Spoken = tr("%1，%2");
// And of a cell without a value.
inline constexpr Text NoValue = tr("空值");

} // namespace KOVAVSFDataGridLib::CellTexts
