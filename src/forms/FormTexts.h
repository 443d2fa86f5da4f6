#pragma once

#include <QtCore/QStringView>

// The texts of the dialogs, for proof-reading in one place.
namespace KOVAVSFDataGridLib::FormTexts {

inline constexpr QStringView Ok = u"确定";
inline constexpr QStringView Cancel = u"取消";

// Dialog_SQLST
inline constexpr QStringView SqlDialogTitle = u"文本";
inline constexpr QStringView AllowEditing = u"允许编辑(&E)";
inline constexpr QStringView AllowEditingHint = u"勾选“允许编辑”后可以修改；不勾选时只供查看和复制。";

} // namespace KOVAVSFDataGridLib::FormTexts
