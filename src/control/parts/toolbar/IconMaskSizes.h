#pragma once

namespace KOVAVSFDataGridLib {

// The sizes in pixels, ascending, in which tools/icon_pictures renders the toolbar's drawings: the sizes of
// buttons at scales of 100% to 300%.
inline constexpr int iconMaskSizes[] = {16, 20, 24, 32, 40, 48, 64};

} // namespace KOVAVSFDataGridLib
