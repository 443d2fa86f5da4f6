#pragma once

#include <QtCore/QString>

// The texts of this room that users see.
namespace KOVAVSFDataGridLib::QueryTexts {

using namespace Qt::StringLiterals;

inline const QString Ascending = u"升序"_s;
inline const QString Descending = u"降序"_s;
inline const QString AllFields = u"全部"_s;
inline const QString ApostropheInFilter = u"对不起，过滤内容中不能含有\"  ' \"符号!"_s;
inline const QString NotDerived = u"该语句不是普通的 SELECT 查询，不能再过滤、排序或选择字段。"_s;
inline const QString EqualNames = u"查询结果中有多个名为“%1”的字段，请先在语句中用 AS 给它们不同的名称。"_s;
inline const QString UnknownTable = u"无法确定字段“%1”属于哪个表，请先在语句中写出各字段的名称，不用“*”。"_s;
inline const QString UnnamedField = u"查询结果中有没有名称的字段，请先在语句中用 AS 给它命名。"_s;
inline const QString TypeNotFiltered = u"对不起，过滤操作不支持选中内容的数据类型！"_s;

// A condition in words. %1 is the value, where there is one.
inline const QString QuotedInWords = u"“%1”"_s;
inline const QString ContainsInWords = u"包含 %1"_s;
inline const QString BeginsInWords = u"开头是 %1"_s;
inline const QString EndsInWords = u"结尾是 %1"_s;
inline const QString EqualsInWords = u"= %1"_s;
inline const QString InListInWords = u"在列表中 %1"_s;
inline const QString EmptyInWords = u"为空"_s;
inline const QString NotEmptyInWords = u"不为空"_s;
inline const QString AnyFieldInWords = u"%1 个字段之一 %2"_s;
inline const QString AndInWords = u" 并且 "_s;
inline const QString OrInWords = u" 或者 "_s;
inline const QString NotInWords = u"不满足 %1"_s;
inline const QString RepeatedInWords = u"的值有重复"_s;
inline const QString LargestInWords = u"是最大的 %1 个之一"_s;
inline const QString SmallestInWords = u"是最小的 %1 个之一"_s;
inline const QString BracketsInWords = u"（%1）"_s;

} // namespace KOVAVSFDataGridLib::QueryTexts
