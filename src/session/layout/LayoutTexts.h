#pragma once

#include <QtCore/QString>

// Why a saved layout is refused, for proof-reading in one place.
namespace KOVAVSFDataGridLib::LayoutTexts {

using namespace Qt::StringLiterals;

inline const QString NothingShown = u"没有打开的结果，无法恢复布局。"_s;
inline const QString TooLong = u"布局文本太长。"_s;
inline const QString NotJson = u"布局文本不是有效的 JSON（第 %1 个字符：%2）。"_s;
inline const QString NotALayout = u"布局文本的格式不对：%1 缺少或无效。"_s;
inline const QString NotSaved = u"当前记录没有保存，布局没有改变。"_s;
inline const QString NotRead = u"无法显示布局中的列，布局没有改变。"_s;
inline const QString AllHidden = u"布局文本隐藏了所有的列。"_s;

} // namespace KOVAVSFDataGridLib::LayoutTexts
