#pragma once

#include <QtCore/QString>

// The texts of the full-screen viewer, for proof-reading in one place. What it has in common with the control
// stands in GridTexts.h.
namespace KOVAVSFDataGridLib::ViewerTexts {

using namespace Qt::StringLiterals;

inline const QString Title = u"全屏显示"_s;
inline const QString Data = u"查询结果"_s;
inline const QString PageSuffix = u"页"_s;
inline const QString GoToPageHint = u"转到输入的页"_s;
inline const QString Close = u"返回(&X)"_s;
inline const QString CloseHint = u"退出全屏（Esc 或 F11）"_s;
inline const QString Back = u"返回(&X)"_s;

} // namespace KOVAVSFDataGridLib::ViewerTexts
