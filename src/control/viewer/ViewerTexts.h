#pragma once

#include "language/Text.h"

// The texts of the full-screen viewer, collected here for proofreading. Texts that it shares with the control
// are in GridTexts.h.
namespace KOVAVSFDataGridLib::ViewerTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::ViewerTexts"};

inline constexpr Text Title = tr("全屏显示");
inline constexpr Text Data = tr("查询结果");
inline constexpr Text PageOfPages = tr("第%1页共%2页");
inline constexpr Text GoToPageHint = tr("转到输入的页");
inline constexpr Text Close = tr("返回(&X)");
inline constexpr Text CloseHint = tr("退出全屏（Esc 或 F11）");
inline constexpr Text Back = tr("返回(&X)");

} // namespace KOVAVSFDataGridLib::ViewerTexts
