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
inline const QString ReadFailed = u"数据库读失败。"_s;

struct MenuItem
{
    int index;
    QString caption;
    QString key = {}; // the toolbar button whose state the item shares
};

// An index that is left out is a separator.
inline const MenuItem MenuItems[] = {
    {1, u"显示全部字段(&A)"_s, u"All"_s},
    {2, u"显示部分字段(&P)"_s, u"Part"_s},
    {4, u"按所选内容筛选(&F)"_s, u"Filter"_s},
    {5, u"显示整个表(&T)"_s, u"ToFullTable"_s},
    {7, u"返回(&X)"_s},
};

} // namespace KOVAVSFDataGridLib::ViewerTexts
