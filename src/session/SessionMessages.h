#pragma once

#include "language/CountedText.h"
#include "language/Text.h"

// The messages of a session to its user, collected here for proofreading.
namespace KOVAVSFDataGridLib::SessionMessages {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::SessionMessages"};
inline constexpr CountedTextTable counted{tr.context};

inline constexpr Text NoLink = tr("当前单元格不是链接（http、https 或 mailto）。");
inline constexpr Text OpenErrorPrefix = tr("错误描述为：");
inline constexpr Text OpenFailed = tr("数据库打开失败。");
inline constexpr Text ReadFailed = tr("数据库读失败。");
inline constexpr Text PageErrorPrefix = tr("无法翻页：");
inline constexpr Text OutOfMemory = tr("内存不足，操作没有完成。");
inline constexpr Text NotAPageNumber = tr("请在页数输入正整数.");
inline constexpr Text NotSavedPrefix = tr("记录没有保存：");
inline constexpr Text SavedAfterLoss = tr("保存时连接中断；重新连接后核对，更改已经保存");
inline constexpr Text NotSavedAfterLoss =
    tr("保存时与数据库的连接中断。重新连接后核对，数据库中还没有这些更改，可以再次保存。");
inline constexpr Text DeletedAfterLoss = tr("删除时连接中断；重新连接后核对，记录已经删除");
inline constexpr Text NotDeletedAfterLoss =
    tr("删除时与数据库的连接中断。重新连接后核对，记录还在数据库中，可以再次删除。");
inline constexpr Text AskSaveAgain = tr("%1\n\n仍要再次保存吗？");
inline constexpr Text AskSaveAgainTitle = tr("再次保存");
inline constexpr Text NewValuesRefused = tr("无法查看新值：");
inline constexpr Text ChangedFields =
    tr("您修改的内容尚未保存，其他用户也修改了下列字段。再次保存会替换其他用户的内容，按 Esc 放弃您的修改：");
inline constexpr Text ChangedField = tr("\n%1：现在是“%2”，您填写的是“%3”");
inline constexpr Text LoadFirst = tr("连接字符串已经改变，请先加载数据。");
inline constexpr Text OpeningCancelled = tr("已取消读取，仍显示原来的记录");
inline constexpr Text PlaceOfValue = tr("%1（第 %2 行）");
inline constexpr Text AlreadySorted = tr("记录已经按此列排序。");
inline constexpr Text NotSorted = tr("记录没有按此列排序。");
inline constexpr Text SortedByOther =
    tr("记录按结果中没有的内容排序，与其他列一起排序就会失去它。请选“升序”或“降序”，只按此列排序。");
inline constexpr Text LastColumn = tr("至少要显示一列。");
inline constexpr Text NoColumnBeside = tr("这一侧没有其他列。");
inline constexpr Text NoFormat = tr("只有数字列和“是/否”列可以设置格式。");
inline constexpr Text NothingAhead = tr("没有可以前进到的结果。");
inline constexpr Text InsertCancelled = tr("再次插入空行操作已被取消");
inline constexpr Text CopyRefused = tr("无法复制记录：");
inline constexpr Text ReadOnlySince = tr("记录已设为只读，不能再保存。修改的内容仍在，按 Esc 放弃。");
inline constexpr Text ReadOnly = tr("记录只读，不能增加、修改或删除。");
inline constexpr Text NothingToAdd = tr("查询结果中没有可以修改的字段，不能增加记录。");
inline constexpr CountedText RecordsCopied = counted("已复制 %1 条记录");
inline constexpr CountedText RecordsExported = counted("已导出 %1 条记录");
inline constexpr CountedText RecordsPrinted = counted("已打印 %1 条记录");
inline constexpr Text AskDelete = tr("确实要删除该记录?");
inline constexpr Text RecordMeant = tr("\n第 %1 行：%2 = %3");
inline constexpr Text AskDeleteTitle = tr("删除记录");
inline constexpr Text DeleteRefused = tr("删除操作与数据库的约束冲突，不能删除此记录！");

} // namespace KOVAVSFDataGridLib::SessionMessages
