#pragma once

#include <QtCore/QString>

// The texts of the control, for proof-reading in one place. What the user reads is Simplified Chinese;
// what only the host's developer meets is English.
namespace KOVAVSFDataGridLib::GridTexts {

using namespace Qt::StringLiterals;

struct Button
{
    QString key;
    QString caption;
    QString toolTip;
    bool beginsGroup = false;
};

// In the order of the toolbar.
inline const Button Buttons[] = {
    {u"All"_s, u"全部字段"_s, u"显示全部字段"_s},
    {u"Part"_s, u"部分字段"_s, u"只显示选定的部分字段"_s},
    {u"SelField"_s, u"选择字段"_s, u"选择要显示的字段"_s},
    {u"SingleRecord"_s, u"单条记录"_s, u"以列表方式查看当前记录"_s, true},
    {u"AllRecord"_s, u"全部记录"_s, u"返回全部记录"_s},
    {u"Filter"_s, u"筛选"_s, u"按条件筛选记录"_s, true},
    {u"QuickFilter"_s, u"快速筛选"_s, u"在所有字段中查找"_s},
    {u"FromResult"_s, u"在结果中筛选"_s, u"按下时在当前结果中继续筛选，弹起时从最初的结果筛选"_s},
    {u"Sort"_s, u"排序"_s, u"选择排序字段"_s},
    {u"First"_s, u"首页"_s, u"第一页"_s, true},
    {u"Previous"_s, u"上页"_s, u"上一页"_s},
    {u"Next"_s, u"下页"_s, u"下一页"_s},
    {u"Last"_s, u"末页"_s, u"最后一页"_s},
    {u"ToPreview"_s, u"后退"_s, u"返回上一步的结果"_s, true},
    {u"ToOrigin"_s, u"最初"_s, u"返回最初的结果"_s},
    {u"ToFullTable"_s, u"整表"_s, u"去掉筛选条件，显示整个表"_s},
    {u"CompressView"_s, u"压缩显示"_s, u"调整列宽，使所有列都能看到"_s, true},
    {u"FullScreen"_s, u"全屏"_s, u"全屏显示"_s},
};

// Page box and label.
inline const QString GoToPage = u"转到"_s;
inline const QString PageBoxHint = u"页数"_s;
inline const QString PagePrefix = u"第"_s;
inline const QString PageCountPrefix = u"页共"_s;
inline const QString PageCapPrefix = u"页  只显示"_s;
inline const QString PageCapSuffix = u"条以内的记录"_s;
inline const QString NotAPageNumber = u"请在页数输入正整数."_s;
inline const QString SelectWholeRows = u"整行选择(&R)"_s;

// Loading.
inline const QString OpenErrorPrefix = u"错误描述为："_s;
inline const QString OpenFailed = u"数据库打开失败。"_s;
inline const QString RecordsRead = u"已读取 %1 条记录"_s;
inline const QString CancelOpening = u"取消"_s;
inline const QString CancelOpeningHint = u"停止读取记录（Esc）"_s;
inline const QString PageErrorPrefix = u"无法翻页："_s;

// Misuse of a method, told to the developer.
inline const QString WrongCol = u"Wrong Col Number!"_s;
inline const QString WrongRow = u"Wrong Row Number!"_s;
inline const QString WrongCell = u"The value of row or col is out of range!"_s;
inline const QString AskContinue = u"Continue?"_s;
inline const QString NothingToLink =
    u"Please Check YOUR CONNECTIONSTRING & RECORDSOURCE,THEIR DON'T BE ALLOWED EMPTY. "_s;
inline const QString NothingToLinkTitle = u"LINK DATA SOURCE ERROR"_s;
inline const QString UpdateFailed = u"DATA SOURCE UPDATE FAILED.DO YOU WANT TO CHECK RECORDSOURCE?"_s;
inline const QString UpdateFailedTitle = u"UPDATE FAILED"_s;
inline const QString FindRecordSourceError = u"Find RecordSource err:"_s;
inline const QString FieldListFailed = u"Get selected fields failed!"_s;
inline const QString FieldListFailedTitle = u"KOVADataGrid"_s;
inline const QString CantReadAtRunTime = u"Property can't be read at run time"_s;
inline const QString CantSetAtRunTime = u"Property can't be set at run time"_s;

} // namespace KOVAVSFDataGridLib::GridTexts
