#pragma once

#include <QtCore/QStringView>

// The texts of the control, for proof-reading in one place. What the user reads is Simplified Chinese;
// what only the host's developer meets is English.
namespace KOVAVSFDataGridLib::GridTexts {

struct Button
{
    QStringView key;
    QStringView caption;
    QStringView toolTip;
    bool beginsGroup = false;
};

// In the order of the toolbar.
inline constexpr Button Buttons[] = {
    {u"All", u"全部字段", u"显示全部字段"},
    {u"Part", u"部分字段", u"只显示选定的部分字段"},
    {u"SelField", u"选择字段", u"选择要显示的字段"},
    {u"SingleRecord", u"单条记录", u"以列表方式查看当前记录", true},
    {u"AllRecord", u"全部记录", u"返回全部记录"},
    {u"Filter", u"筛选", u"按条件筛选记录", true},
    {u"QuickFilter", u"快速筛选", u"在所有字段中查找"},
    {u"FromResult", u"在结果中筛选", u"按下时在当前结果中继续筛选，弹起时从最初的结果筛选"},
    {u"Sort", u"排序", u"选择排序字段"},
    {u"First", u"首页", u"第一页", true},
    {u"Previous", u"上页", u"上一页"},
    {u"Next", u"下页", u"下一页"},
    {u"Last", u"末页", u"最后一页"},
    {u"ToPreview", u"后退", u"返回上一步的结果", true},
    {u"ToOrigin", u"最初", u"返回最初的结果"},
    {u"ToFullTable", u"整表", u"去掉筛选条件，显示整个表"},
    {u"CompressView", u"压缩显示", u"调整列宽，使所有列都能看到", true},
    {u"FullScreen", u"全屏", u"全屏显示"},
};

// Page box and label.
inline constexpr QStringView GoToPage = u"转到";
inline constexpr QStringView PageBoxHint = u"页数";
inline constexpr QStringView PagePrefix = u"第";
inline constexpr QStringView PageCountPrefix = u"页共";
inline constexpr QStringView PageCapPrefix = u"页  只显示";
inline constexpr QStringView PageCapSuffix = u"条以内的记录";
inline constexpr QStringView NotAPageNumber = u"请在页数输入正整数.";
inline constexpr QStringView SelectWholeRows = u"整行选择(&R)";

// Loading.
inline constexpr QStringView OpenErrorPrefix = u"错误描述为：";
inline constexpr QStringView OpenFailed = u"数据库打开失败。";

// Misuse of a method, told to the developer.
inline constexpr QStringView WrongCol = u"Wrong Col Number!";
inline constexpr QStringView WrongRow = u"Wrong Row Number!";
inline constexpr QStringView WrongCell = u"The value of row or col is out of range!";
inline constexpr QStringView AskContinue = u"Continue?";
inline constexpr QStringView NothingToLink =
    u"Please Check YOUR CONNECTIONSTRING & RECORDSOURCE,THEIR DON'T BE ALLOWED EMPTY. ";
inline constexpr QStringView NothingToLinkTitle = u"LINK DATA SOURCE ERROR";
inline constexpr QStringView UpdateFailed = u"DATA SOURCE UPDATE FAILED.DO YOU WANT TO CHECK RECORDSOURCE?";
inline constexpr QStringView UpdateFailedTitle = u"UPDATE FAILED";
inline constexpr QStringView FindRecordSourceError = u"Find RecordSource err:";
inline constexpr QStringView FieldListFailed = u"Get selected fields failed!";
inline constexpr QStringView FieldListFailedTitle = u"KOVADataGrid";
inline constexpr QStringView CantReadAtRunTime = u"Property can't be read at run time";
inline constexpr QStringView CantSetAtRunTime = u"Property can't be set at run time";

} // namespace KOVAVSFDataGridLib::GridTexts
