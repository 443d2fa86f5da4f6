#pragma once

#include <QtCore/QString>

#include <algorithm>
#include <iterator>

// The texts of the control, for proof-reading in one place. What the user reads is Simplified Chinese;
// what only the host's developer meets is English.
namespace KOVAVSFDataGridLib::GridTexts {

using namespace Qt::StringLiterals;

struct Button
{
    QString key;
    QString caption;
    QString toolTip;
    QString shortcut; // in the form that QKeySequence reads
    bool beginsGroup = false;
};

// In the order of the toolbar.
inline const Button Buttons[] = {
    {u"All"_s, u"全部字段"_s, u"显示全部字段"_s, u"Ctrl+1"_s},
    {u"Part"_s, u"部分字段"_s, u"只显示选定的部分字段"_s, u"Ctrl+2"_s},
    {u"SelField"_s, u"选择字段"_s, u"选择要显示的字段"_s, u"Ctrl+L"_s},
    {u"SingleRecord"_s, u"单条记录"_s, u"以列表方式查看当前记录"_s, u"Ctrl+3"_s, true},
    {u"AllRecord"_s, u"全部记录"_s, u"返回全部记录"_s, u"Ctrl+4"_s},
    {u"Filter"_s, u"筛选"_s, u"按条件筛选记录"_s, u"Ctrl+Shift+F"_s, true},
    {u"QuickFilter"_s, u"快速筛选"_s, u"在所有字段中查找"_s, u"Ctrl+F"_s},
    {u"FromResult"_s, u"在结果中筛选"_s, u"按下时在当前结果中继续筛选，弹起时从最初的结果筛选"_s,
     u"Ctrl+R"_s},
    {u"Sort"_s, u"排序"_s, u"选择排序字段"_s, u"Ctrl+Shift+O"_s},
    {u"First"_s, u"首页"_s, u"第一页"_s, u"Ctrl+Home"_s, true},
    {u"Previous"_s, u"上页"_s, u"上一页"_s, u"Ctrl+PgUp"_s},
    {u"Next"_s, u"下页"_s, u"下一页"_s, u"Ctrl+PgDown"_s},
    {u"Last"_s, u"末页"_s, u"最后一页"_s, u"Ctrl+End"_s},
    {u"ToPreview"_s, u"后退"_s, u"返回上一步的结果"_s, u"Alt+Left"_s, true},
    {u"ToOrigin"_s, u"最初"_s, u"返回最初的结果"_s, u"Alt+Home"_s},
    {u"ToFullTable"_s, u"整表"_s, u"去掉筛选条件，显示整个表"_s, u"Ctrl+0"_s},
    {u"CompressView"_s, u"压缩显示"_s, u"调整列宽，使所有列都能看到"_s, u"Ctrl+M"_s, true},
    {u"FullScreen"_s, u"全屏"_s, u"全屏显示"_s, u"F11"_s},
};

// The button of a key that is in the table.
inline const Button &buttonOf(const QString &key)
{
    return *std::find_if(std::begin(Buttons), std::end(Buttons),
                         [&](const Button &button) { return button.key == key; });
}

// An item of the popup menu. One with a key repeats that toolbar button and its shortcut; one without caption
// is a separator.
struct PopupItem
{
    QString caption;
    QString key;
    QString shortcut;
};

// The first one has the index 1.
inline const PopupItem PopupItems[] = {
    {u"全部字段(&A)"_s, u"All"_s, {}},
    {u"部分字段(&P)"_s, u"Part"_s, {}},
    {},
    {u"全屏显示(&S)"_s, u"FullScreen"_s, {}},
    {u"单条记录(&R)"_s, u"SingleRecord"_s, {}},
    {u"全部记录(&R)"_s, u"AllRecord"_s, {}},
    {},
    {u"增加记录(&N)"_s, {}, u"Ctrl++"_s},
    {u"删除记录(&D)"_s, {}, u"Ctrl+-"_s},
    {},
    {u"筛选(&F)"_s, u"Filter"_s, {}},
    {u"排序(&O)"_s, u"Sort"_s, {}},
    {},
    {u"按选定内容筛选(&C)"_s, {}, u"Ctrl+Shift+L"_s},
    {u"显示整表(&T)"_s, u"ToFullTable"_s, {}},
};

// One record.
inline const QString FieldNameHeading = u"字段名称"_s;
inline const QString FieldValueHeading = u"字段内容"_s;
inline const QString ReadOnlyCell =
    u"此内容只读：它不直接来自一个表中可以修改的字段，或者无法唯一确定所在的记录。"_s;
inline const QString ValueRefusedPrefix = u"输入的内容无效："_s;
inline const QString NotSavedPrefix = u"记录没有保存："_s;
inline const QString InsertCancelled = u"再次插入空行操作已被取消"_s;
inline const QString AskDelete = u"确实要删除该记录?"_s;
inline const QString AskDeleteTitle = u"删除记录"_s;
inline const QString DeleteRefused = u"删除操作与数据库的约束冲突，不能删除此记录！"_s;

// The line below the grid: position, count, statement.
inline const QString RecordOf = u"第 %1 条，共 %2 条"_s;
inline const QString NewRecord = u"新记录，共 %1 条"_s;
inline const QString BeforeStatement = u"　"_s;
inline const QString CopyStatement = u"复制语句(&C)"_s;

// In the middle of a grid that has nothing to show.
inline const QString NothingLoaded = u"尚未加载数据"_s;
inline const QString NoRecords = u"没有记录"_s;
inline const QString NoRecordsFound = u"没有符合条件的记录。按“后退”返回上一步的结果。"_s;

// What a screen reader calls the parts that have no caption.
inline const QString ToolbarName = u"数据命令"_s;
inline const QString GridName = u"数据"_s;
inline const QString MenuName = u"数据菜单"_s;
inline const QString SingleRecordName = u"当前记录"_s;

// Page box and label.
inline const QString GoToPage = u"转到"_s;
inline const QString GoToPageTip = u"显示这一页"_s;
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
