#pragma once

#include "language/Text.h"

// The reasons why a saved layout is rejected, collected here for proofreading.
namespace KOVAVSFDataGridLib::LayoutTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::LayoutTexts"};

inline constexpr Text NothingShown = tr("没有打开的结果，无法恢复布局。");
inline constexpr Text Empty = tr("布局文本是空的。");
inline constexpr Text TooLong = tr("布局文本太长。");
inline constexpr Text NotJson = tr("布局文本不是有效的 JSON（第 %1 个字符：%2）。");
inline constexpr Text NotALayout = tr("布局文本的格式不对：%1 缺少或无效。");
inline constexpr Text NotSaved = tr("当前记录没有保存，布局没有改变。");
inline constexpr Text NotRead = tr("无法显示布局中的列，布局没有改变。");
inline constexpr Text AllHidden = tr("布局文本隐藏了所有的列。");

} // namespace KOVAVSFDataGridLib::LayoutTexts
