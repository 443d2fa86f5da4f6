#pragma once

#include "language/Text.h"

// Texts that belong to the language as such.
namespace KOVAVSFDataGridLib::LanguageTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::LanguageTexts"};

// The name of the language that the texts are in; a translation has its own here.
inline constexpr Text Name = tr("zh-CN");

} // namespace KOVAVSFDataGridLib::LanguageTexts
