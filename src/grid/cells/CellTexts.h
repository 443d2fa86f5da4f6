#pragma once

#include "language/Text.h"

// The texts of the grids, collected here for proofreading.
namespace KOVAVSFDataGridLib::CellTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::CellTexts"};

// The text of a heading for screen readers: its text and its marks.
inline constexpr Text Spoken = tr("%1，%2");
// The same for Null.
inline constexpr Text NoValue = tr("空值");

} // namespace KOVAVSFDataGridLib::CellTexts
