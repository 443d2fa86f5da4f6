#pragma once

#include "language/Text.h"

// Texts about the language itself.
namespace KOVAVSFDataGridLib::LanguageTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::LanguageTexts"};

// The name of the current language. Each translation replaces it with its own.
inline constexpr Text Name = tr("zh-CN");

// Reasons why a text is not valid JSON
inline constexpr Text JsonNoBrace = tr("缺少“}”");
inline constexpr Text JsonNoBracket = tr("缺少“]”");
inline constexpr Text JsonNoColon = tr("缺少冒号");
inline constexpr Text JsonNoComma = tr("缺少逗号");
inline constexpr Text JsonNoQuote = tr("缺少右引号");
inline constexpr Text JsonNoName = tr("缺少带引号的名称");
inline constexpr Text JsonValue = tr("这里的值不正确");
inline constexpr Text JsonCut = tr("内容不完整");
inline constexpr Text JsonCharacter = tr("字符不正确");
inline constexpr Text JsonDeep = tr("层次太多");
inline constexpr Text JsonLong = tr("太长");
inline constexpr Text JsonMore = tr("结尾之后还有其他内容");

} // namespace KOVAVSFDataGridLib::LanguageTexts
