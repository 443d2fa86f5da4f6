#pragma once

#include "language/CountedText.h"
#include "language/Text.h"

// The texts of the control, collected here for proofreading. Texts for users are in Simplified Chinese; texts
// that only the host's developer sees are in English.
namespace KOVAVSFDataGridLib::GridTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::GridTexts"};
inline constexpr CountedTextTable counted{tr.context};

using namespace Qt::StringLiterals;

// A single record.
inline constexpr Text FieldNameHeading = tr("字段名称");
inline constexpr Text FieldValueHeading = tr("字段内容");
inline constexpr Text ReadOnlyCell =
    tr("此内容只读：它不是直接取自某个表中可以修改的字段，或者无法唯一确定所在的记录。");
inline constexpr Text TooLongCell = tr("此内容超过 %1 个字符，不能在这里修改，请按 F3 查看。");
inline constexpr Text MoreValuesByTyping = tr("（还有更多，输入几个字后再打开列表查找）");
inline constexpr Text LinesHint = tr("按 Ctrl+Enter 换行，按 Enter 确认");
inline constexpr Text PreviousRecord = tr("上一条记录");
inline constexpr Text NextRecord = tr("下一条记录");
inline constexpr Text RequiredField = tr("%1：不能为空");
inline constexpr Text Pictures = tr("图片");
inline constexpr Text PicturesTip =
    tr("同时显示图片字段（Ctrl+Shift+I）；双击图片或按 Enter 可用文件替换，按 Ctrl+0 清空");
inline constexpr Text ChoosePicture = tr("用文件替换图片");
inline constexpr Text PictureFiles =
    tr("图片 (*.png *.jpg *.jpeg *.bmp *.gif *.tif *.tiff *.webp *.svg *.ico);;所有文件 (*)");
inline constexpr Text PictureUnreadable = tr("无法读取文件“%1”：%2");
inline constexpr Text NoPicture = tr("文件“%1”不是图片，或者太大。");
inline constexpr Text ValueRefusedPrefix = tr("输入的内容无效：");

// A record that can't be saved although its result is about to be closed.
inline constexpr Text UnsavedTitle = tr("记录没有保存");

// A record that was changed by somebody else.
inline constexpr Text ShowNewValues = tr("查看新值(&V)");

// The line below the grid: position, count, statement.
inline constexpr Text RecordOf = tr("第 %1 条，共 %2 条");
inline constexpr Text NewRecord = tr("新记录，共 %1 条");
inline constexpr Text RecordOfBriefly = tr("%1/%2");
inline constexpr Text NewRecordBriefly = tr("新记录");
inline constexpr Text Unsaved = tr("（未保存）");
inline constexpr Text SaveRecord = tr("保存(&S)");
inline constexpr Text SaveRecordTip = tr("保存这条记录（Ctrl+S）");
inline constexpr Text BeforeStatement = tr("　");
inline constexpr Text CopyStatement = tr("复制语句(&C)");

// The summary of the selected cells.
inline constexpr Text SelectedRows = tr("选定行数");
inline constexpr Text CountOfCells = tr("计数");
inline constexpr Text SumOfCells = tr("求和");
inline constexpr Text AverageOfCells = tr("平均");
inline constexpr Text SmallestCell = tr("最小");
inline constexpr Text LargestCell = tr("最大");
inline constexpr Text EarliestCell = tr("最早");
inline constexpr Text LatestCell = tr("最晚");
inline constexpr Text BetweenSummaries = tr("，");
inline constexpr Text ColumnOfSummary = tr("%1：");
inline constexpr Text SummaryHint = tr("单击数值可以复制");
inline constexpr Text SummaryCopied = tr("已复制 %1");

// In the middle of an empty grid.
inline constexpr Text NothingLoaded = tr("尚未加载数据");
inline constexpr Text NoRecords = tr("没有记录");
inline constexpr Text AddFirst = tr("增加第一条记录");
inline constexpr Text AddFirstHint = tr("没有记录。按 Ctrl++ 增加第一条记录。");
inline constexpr Text NoRecordsFound = tr("没有符合条件的记录。按“后退”返回上一步的结果。");

// Names for screen readers of parts without a caption.
inline constexpr Text ToolbarName = tr("数据命令");
inline constexpr Text GridName = tr("数据");
inline constexpr Text MenuName = tr("数据菜单");
inline constexpr Text FilteredBy = tr("筛选条件：%1");
inline constexpr Text BetweenDescriptions = tr("；");
inline constexpr Text SingleRecordName = tr("当前记录");

// The submenus of the popup menu.
inline constexpr Text CopyAsMenu = tr("复制为(&U)");
inline constexpr Text CopyAsName = tr("复制为");

// A column's heading and its menu.
inline constexpr Text SortedAscending = tr("第 %1 排序字段，升序");
inline constexpr Text SortedDescending = tr("第 %1 排序字段，降序");
inline constexpr Text Filtered = tr("已筛选");
inline constexpr Text BetweenMarks = tr("，");
inline constexpr Text ColumnMenuName = tr("列菜单");
inline constexpr Text ColumnEntries = tr("列“%1”");

// The active conditions, above the grid.
inline constexpr Text FilterBarName = tr("筛选条件");
inline constexpr Text RemoveCondition = tr("移除条件：%1");
inline constexpr Text MoreConditions = tr("还有 %1 个");

// The bar that searches the shown records.
inline constexpr Text FindBarName = tr("在表格中查找");
inline constexpr Text FindTextHint = tr("查找内容");
inline constexpr Text FindColumnHint = tr("在哪一列查找");
inline constexpr Text AllColumns = tr("所有列");
inline constexpr Text WholeCell = tr("单元格匹配(&L)");
inline constexpr Text MatchCase = tr("区分大小写(&A)");
inline constexpr Text FindNext = tr("下一处（Enter）");
inline constexpr Text FindPrevious = tr("上一处（Shift+Enter）");
inline constexpr Text CloseFind = tr("关闭（Esc）");
inline constexpr Text NothingFound = tr("没有找到");
inline constexpr Text FoundCount = tr("共 %1 处");
inline constexpr Text FoundPlace = tr("第 %1 处，共 %2 处");
inline constexpr Text FoundFromStart = tr("（已从开头继续）");
inline constexpr Text FoundFromEnd = tr("（已从末尾继续）");
inline constexpr Text FindRunning = tr("正在查找… %1%");

// The statements to go back and forward to.
inline constexpr Text HistoryName = tr("历史");
inline constexpr CountedText HistoryNote = counted("%1 条  %2");
inline constexpr Text NoHistory = tr("（没有历史记录）");

// Page box and label.
inline constexpr Text GoToPage = tr("转到");
inline constexpr Text GoToPageTip = tr("显示这一页");
inline constexpr Text PageBoxHint = tr("页数");
inline constexpr Text PagePrefix = tr("第");
inline constexpr Text PageCountPrefix = tr("页共");
inline constexpr Text PageCapPrefix = tr("页  只显示");
inline constexpr Text PageCapSuffix = tr("条以内的记录");
inline constexpr Text SelectWholeRows = tr("整行选择(&R)");

// Loading.
inline constexpr CountedText RecordsRead = counted("已读取 %1 条记录");
inline constexpr CountedText RecordsReadOfAbout = counted("已读取 %1 条记录，预计共约 %2 条");
inline constexpr Text WaitingForDatabase = tr("正在等待数据库…");
inline constexpr Text Cancelling = tr("正在取消…");
inline constexpr Text CancelOpening = tr("取消");
inline constexpr Text CancelOpeningHint = tr("停止读取记录（Esc）");
inline constexpr Text CancelWaitingHint = tr("不再等待（Esc）");
inline constexpr Text CancelWritingHint = tr("停止（Esc）");

inline constexpr Text NothingToPrint = tr("没有打开的结果，无法打印。");
inline constexpr Text NothingToExport = tr("没有打开的结果，无法导出。");

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
