#pragma once

#include <QtCore/QString>

// The texts of this room that users see.
namespace KOVAVSFDataGridLib::QueryTexts {

inline QString Ascending()
{
    return QStringLiteral("升序");
}
inline QString Descending()
{
    return QStringLiteral("降序");
}
inline QString AllFields()
{
    return QStringLiteral("全部");
}
inline QString ApostropheInFilter()
{
    return QStringLiteral("对不起，过滤内容中不能含有\"  ' \"符号!");
}
inline QString TypeNotFiltered()
{
    return QStringLiteral("对不起，过滤操作不支持选中内容的数据类型！");
}

} // namespace KOVAVSFDataGridLib::QueryTexts
