#pragma once

#include <QtCore/QString>

// The texts of the dialogs, for proof-reading in one place.
namespace KOVAVSFDataGridLib::FormTexts {

using namespace Qt::StringLiterals;

inline const QString Ok = u"确定"_s;
inline const QString Cancel = u"取消"_s;

// Dialog_SQLST
inline const QString SqlDialogTitle = u"文本"_s;
inline const QString AllowEditing = u"允许编辑(&E)"_s;
inline const QString AllowEditingHint = u"勾选“允许编辑”后可以修改；不勾选时只供查看和复制。"_s;

} // namespace KOVAVSFDataGridLib::FormTexts
