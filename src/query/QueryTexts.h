#pragma once

#include "language/CountedText.h"
#include "language/Text.h"

// The texts of this room that users see.
namespace KOVAVSFDataGridLib::QueryTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::QueryTexts"};
inline constexpr CountedTextTable counted{tr.context};

using namespace Qt::StringLiterals;

inline constexpr Text Ascending = tr("升序");
inline constexpr Text Descending = tr("降序");
inline constexpr Text AllFields = tr("全部");
inline constexpr Text ApostropheInFilter = tr("对不起，过滤内容中不能含有\"  ' \"符号!");
inline constexpr Text NotDerived = tr("该语句不是普通的 SELECT 查询，不能再筛选、排序或选择字段。");
inline constexpr Text EqualNames = tr("查询结果中有多个名为“%1”的字段，请先在语句中用 AS 给它们不同的名称。");
inline constexpr Text UnknownTable =
    tr("无法确定字段“%1”属于哪个表，请先在语句中写出各字段的名称，不用“*”。");
inline constexpr Text UnnamedField = tr("查询结果中有字段未命名，请先在语句中用 AS 为它命名。");
inline constexpr Text RenamedField =
    tr("查询结果中有名为“%1”的字段，数据库在子查询中会把它当作逻辑值。请先在语句中用 AS 给它另一个名称。");
inline constexpr Text SortNotKept = tr("该语句按结果中没有的内容排序，筛选或选择字段后数据库不能保持这个顺序"
                                       "。请先在语句的字段中写出排序的内容。");
inline constexpr Text TypeNotSorted = tr("数据库不能按字段“%1”的数据类型排序，也不能列出它的值。");
inline constexpr Text NoAllFields = tr("从当前语句得不到全部字段，请先返回上一步。");
inline constexpr Text NoPartFields = tr("部分字段的语句与当前语句的字段对应不上，不能只显示这些字段。");
inline constexpr Text TypeNotFiltered = tr("对不起，过滤操作不支持选中内容的数据类型！");

// A condition in words. %1 is the value, if there is one.
inline constexpr Text QuotedInWords = tr("“%1”");
inline constexpr Text ContainsInWords = tr("包含%1");
inline constexpr Text BeginsInWords = tr("开头是%1");
inline constexpr Text EndsInWords = tr("结尾是%1");
inline const QString EqualsInWords = u"= %1"_s;
inline constexpr Text BetweenInWords = tr("%1 介于 %2 和 %3");
inline constexpr Text YearInWords = tr("%1年");
inline constexpr Text InListInWords = tr("是 %1 之一");
inline constexpr Text EmptyInWords = tr("为空");
inline constexpr Text NotEmptyInWords = tr("不为空");
inline constexpr Text AnyFieldInWords = tr("%1 个字段之一 %2");
inline constexpr Text AndInWords = tr("，并且 ");
inline constexpr Text OrInWords = tr("，或者 ");
inline constexpr Text NotInWords = tr("不满足 %1");
inline constexpr Text NoneInWords = tr("不满足（%1）");
inline constexpr Text RepeatedInWords = tr("的值有重复");
inline constexpr CountedText LargestInWords = counted("是最大的 %1 个之一");
inline constexpr CountedText SmallestInWords = counted("是最小的 %1 个之一");
inline constexpr CountedText FirstTextsInWords = counted("是按顺序排在最前的 %1 个之一");
inline constexpr CountedText LastTextsInWords = counted("是按顺序排在最后的 %1 个之一");
inline constexpr Text BracketsInWords = tr("（%1）");

} // namespace KOVAVSFDataGridLib::QueryTexts
