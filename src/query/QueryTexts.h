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
inline QString NotDerived()
{
    return QStringLiteral("该语句不是普通的 SELECT 查询，不能再过滤、排序或选择字段。");
}
inline QString EqualNames()
{
    return QStringLiteral("查询结果中有多个名为“%1”的字段，请先在语句中用 AS 给它们不同的名称。");
}
inline QString UnnamedField()
{
    return QStringLiteral("查询结果中有没有名称的字段，请先在语句中用 AS 给它命名。");
}
inline QString TypeNotFiltered()
{
    return QStringLiteral("对不起，过滤操作不支持选中内容的数据类型！");
}

// A condition in words. %1 is the value, where there is one.
inline QString QuotedInWords()
{
    return QStringLiteral("“%1”");
}
inline QString ContainsInWords()
{
    return QStringLiteral("包含 %1");
}
inline QString BeginsInWords()
{
    return QStringLiteral("开头是 %1");
}
inline QString EndsInWords()
{
    return QStringLiteral("结尾是 %1");
}
inline QString EqualsInWords()
{
    return QStringLiteral("= %1");
}
inline QString InListInWords()
{
    return QStringLiteral("在列表中 %1");
}
inline QString EmptyInWords()
{
    return QStringLiteral("为空");
}
inline QString NotEmptyInWords()
{
    return QStringLiteral("不为空");
}
inline QString AnyFieldInWords()
{
    return QStringLiteral("%1 个字段之一 %2");
}
inline QString AndInWords()
{
    return QStringLiteral(" 并且 ");
}
inline QString OrInWords()
{
    return QStringLiteral(" 或者 ");
}
inline QString NotInWords()
{
    return QStringLiteral("不满足 %1");
}
inline QString BracketsInWords()
{
    return QStringLiteral("（%1）");
}

} // namespace KOVAVSFDataGridLib::QueryTexts
