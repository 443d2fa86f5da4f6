#pragma once

#include <QtCore/QString>

// The texts of the control, for proof-reading in one place. What the user reads is Simplified Chinese;
// what only the host's developer meets is English.
namespace KOVAVSFDataGridLib::GridTexts {

using namespace Qt::StringLiterals;

// One record.
inline const QString FieldNameHeading = u"字段名称"_s;
inline const QString FieldValueHeading = u"字段内容"_s;
inline const QString ReadOnlyCell =
    u"此内容只读：它不直接来自一个表中可以修改的字段，或者无法唯一确定所在的记录。"_s;
inline const QString LinesHint = u"按 Ctrl+Enter 换行，按 Enter 接受"_s;
inline const QString PreviousRecord = u"上一条记录"_s;
inline const QString NextRecord = u"下一条记录"_s;
inline const QString ValueRefusedPrefix = u"输入的内容无效："_s;

// A record that can't be saved when its result is about to go.
inline const QString UnsavedTitle = u"记录没有保存"_s;

// A record that somebody else has changed.
inline const QString ShowNewValues = u"查看新值(&V)"_s;

// The line below the grid: position, count, statement.
inline const QString RecordOf = u"第 %1 条，共 %2 条"_s;
inline const QString NewRecord = u"新记录，共 %1 条"_s;
inline const QString Unsaved = u"（未保存）"_s;
inline const QString BeforeStatement = u"　"_s;
inline const QString CopyStatement = u"复制语句(&C)"_s;

// What the selected cells come to.
inline const QString SelectedRows = u"选定行数"_s;
inline const QString CountOfCells = u"计数"_s;
inline const QString SumOfCells = u"求和"_s;
inline const QString AverageOfCells = u"平均"_s;
inline const QString SmallestCell = u"最小"_s;
inline const QString LargestCell = u"最大"_s;
inline const QString EarliestCell = u"最早"_s;
inline const QString LatestCell = u"最晚"_s;
inline const QString BetweenSummaries = u"，"_s;
inline const QString SummaryHint = u"单击数值可以复制"_s;
inline const QString SummaryCopied = u"已复制 %1"_s;

// In the middle of a grid that has nothing to show.
inline const QString NothingLoaded = u"尚未加载数据"_s;
inline const QString NoRecords = u"没有记录"_s;
inline const QString AddFirstHint = u"没有记录。按 Ctrl++ 增加第一条记录。"_s;
inline const QString NoRecordsFound = u"没有符合条件的记录。按“后退”返回上一步的结果。"_s;

// What a screen reader calls the parts that have no caption.
inline const QString ToolbarName = u"数据命令"_s;
inline const QString GridName = u"数据"_s;
inline const QString MenuName = u"数据菜单"_s;
inline const QString FilteredBy = u"筛选条件“%1”"_s;
inline const QString BetweenDescriptions = u"；"_s;
inline const QString SingleRecordName = u"当前记录"_s;

// The menus inside the popup menu.
inline const QString CopyAsMenu = u"复制为(&U)…"_s;
inline const QString CopyAsName = u"复制为"_s;

// A column's heading and its menu.
inline const QString SortedAscending = u"第 %1 升序"_s;
inline const QString SortedDescending = u"第 %1 降序"_s;
inline const QString Filtered = u"已筛选"_s;
inline const QString ColumnMenuName = u"列菜单"_s;

// The conditions in force, above the grid.
inline const QString FilterBarName = u"筛选条件"_s;
inline const QString RemoveCondition = u"去掉条件：%1"_s;
inline const QString MoreConditions = u"还有 %1 个"_s;

// The bar that looks for a text in what is shown.
inline const QString FindBarName = u"查找显示的内容"_s;
inline const QString FindTextHint = u"查找内容"_s;
inline const QString FindColumnHint = u"在哪一列查找"_s;
inline const QString AllColumns = u"所有列"_s;
inline const QString WholeCell = u"整格相同(&H)"_s;
inline const QString MatchCase = u"区分大小写(&E)"_s;
inline const QString FindNext = u"下一处（Enter）"_s;
inline const QString FindPrevious = u"上一处（Shift+Enter）"_s;
inline const QString CloseFind = u"关闭（Esc）"_s;
inline const QString NothingFound = u"没有找到"_s;
inline const QString FoundCount = u"共 %1 处"_s;
inline const QString FoundPlace = u"第 %1 处，共 %2 处"_s;
inline const QString FoundFromStart = u"（回到开头）"_s;
inline const QString FoundFromEnd = u"（回到末尾）"_s;
inline const QString FindRunning = u"正在查找… %1%"_s;

// The statements to go back and forward to.
inline const QString HistoryName = u"历史"_s;
inline const QString HistoryNote = u"%1 条  %2"_s;
inline const QString NoHistory = u"（没有历史）"_s;

// Page box and label.
inline const QString GoToPage = u"转到"_s;
inline const QString GoToPageTip = u"显示这一页"_s;
inline const QString PageBoxHint = u"页数"_s;
inline const QString PagePrefix = u"第"_s;
inline const QString PageCountPrefix = u"页共"_s;
inline const QString PageCapPrefix = u"页  只显示"_s;
inline const QString PageCapSuffix = u"条以内的记录"_s;
inline const QString SelectWholeRows = u"整行选择(&R)"_s;

// Loading.
inline const QString RecordsRead = u"已读取 %1 条记录"_s;
inline const QString WaitingForDatabase = u"正在等待数据库…"_s;
inline const QString Cancelling = u"正在取消…"_s;
inline const QString CancelOpening = u"取消"_s;
inline const QString CancelOpeningHint = u"停止读取记录（Esc）"_s;
inline const QString CancelWaitingHint = u"不再等待（Esc）"_s;
inline const QString CancelWritingHint = u"停止（Esc）"_s;

inline const QString NothingToPrint = u"没有打开的结果，无法打印。"_s;
inline const QString NothingToExport = u"没有打开的结果，无法导出。"_s;

// Misuse of a method, shown to the developer.
inline const QString WrongCol = u"Wrong Col Number!"_s;
inline const QString WrongRow = u"Wrong Row Number!"_s;
inline const QString WrongCell = u"The value of row or col is out of range!"_s;
inline const QString AskContinue = u"Continue?"_s;
inline const QString NothingToLink =
    u"Please Check YOUR CONNECTIONSTRING & RECORDSOURCE,THEIR DON'T BE ALLOWED EMPTY. "_s;
inline const QString NothingToLinkTitle = u"LINK DATA SOURCE ERROR"_s;
inline const QString FieldListFailed = u"Get selected fields failed!"_s;
inline const QString FieldListFailedTitle = u"KOVADataGrid"_s;
inline const QString CantReadAtRunTime = u"Property can't be read at run time"_s;
inline const QString CantSetAtRunTime = u"Property can't be set at run time"_s;

} // namespace KOVAVSFDataGridLib::GridTexts
