#pragma once

#include "language/CountedText.h"
#include "language/Text.h"

// The texts of the filter builder and its dialog, collected here for proofreading.
namespace KOVAVSFDataGridLib::FilterTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::FilterTexts"};
inline constexpr CountedTextTable counted{tr.context};

using namespace Qt::StringLiterals;

// In the order of FilterOperator.
inline constexpr Text Operators[] = {
    tr("等于"),     tr("不等于"),   tr("大于"),     tr("小于"),     tr("大于或等于"), tr("小于或等于"),
    tr("介于"),     tr("在列表中"), tr("包含"),     tr("开头是"),   tr("结尾是"),     tr("为空"),
    tr("不为空"),   tr("不包含"),   tr("开头不是"), tr("结尾不是"), tr("不在列表中"), tr("不介于"),
    tr("重复的值"), tr("前 N 个"),  tr("后 N 个")};

// A row
inline constexpr Text OpenBracket = tr("左括号");
inline constexpr Text CloseBracket = tr("右括号");
inline constexpr Text Field = tr("字段");
inline constexpr Text Operator = tr("比较方式");
inline constexpr Text Value = tr("值");
inline constexpr Text LastValue = tr("结束值");
inline constexpr Text To = tr("到");
inline constexpr Text Join = tr("与下一个条件的关系");
inline constexpr Text And = tr("并且");
inline constexpr Text Or = tr("或者");
inline constexpr Text PartOfRow = tr("%1（条件 %2）");
inline constexpr Text DeleteRow = tr("删除这个条件");
inline constexpr Text PickValue = tr("从列表中选择（Alt+↓）");
inline constexpr Text PickValueOfDays = tr("从列表中选择（Shift+F4）");
inline constexpr Text PickDate = tr("选择日期（Alt+↓）");
inline constexpr Text Not = tr("非");
inline constexpr Text NotTip = tr("只显示不符合这个条件的记录");
inline constexpr Text WithNull = tr("也包括空值");
inline constexpr Text WithNullTip = tr("该字段没有值的记录也显示");
inline constexpr Text Yes = tr("是");
inline constexpr Text No = tr("否");

// Days relative to the day when the filter is applied
inline constexpr Text Today = tr("今天");
inline constexpr Text Yesterday = tr("昨天");
inline constexpr Text ThisWeek = tr("本周");
inline constexpr Text LastWeek = tr("上周");
inline constexpr Text ThisMonth = tr("本月");
inline constexpr Text LastMonth = tr("上月");
inline constexpr Text ThisQuarter = tr("本季");
inline constexpr Text ThisYear = tr("今年");
inline constexpr Text LastYear = tr("去年");
inline constexpr Text LastDays = tr("最近 %1 天");

// The condition as a sentence
inline constexpr Text QuotedInSentence = tr("“%1”");
inline constexpr Text FieldInSentence = tr("【%1】");
inline constexpr Text DaysInSentence = tr("%1 至 %2");
inline constexpr Text MeantInSentence = tr("%1（%2）");
inline constexpr Text TextComparedInSentence = tr("%1%2%3");
inline constexpr Text ValueComparedInSentence = tr("%1%2 %3");
inline constexpr Text StateInSentence = tr("%1%2");
inline constexpr Text ListSeparator = tr("、");
inline constexpr Text InListInSentence = tr("%1是 %2 之一");
inline constexpr Text NotInListInSentence = tr("%1不是 %2 之一");
inline constexpr Text BetweenInSentence = tr("%1%2 %3 和 %4 之间");
inline constexpr Text TextInListInSentence = tr("%1是%2之一");
inline constexpr Text TextNotInListInSentence = tr("%1不是%2之一");
inline constexpr Text TextBetweenInSentence = tr("%1%2%3和%4之间");
inline constexpr CountedText TopInSentence = counted("%2是最大的 %1 个之一");
inline constexpr CountedText BottomInSentence = counted("%2是最小的 %1 个之一");
inline constexpr CountedText FirstTextInSentence = counted("%2是按顺序排在最前的 %1 个之一");
inline constexpr CountedText LastTextInSentence = counted("%2是按顺序排在最后的 %1 个之一");
inline constexpr Text DuplicatedInSentence = tr("%1的值有重复");
inline constexpr Text NotInSentence = tr("并非（%1）");
inline constexpr Text WithNullInSentence = tr("（也包括空值）");
inline constexpr Text AndInSentence = tr("，并且");
inline constexpr Text OrInSentence = tr("，或者");
inline constexpr Text BracketsInSentence = tr("（%1）");
inline constexpr Text NoneInSentence = tr("并非（%1）");
inline constexpr Text EndOfSentence = tr("。");

// What to type
inline constexpr Text NumberHint = tr("数字");
inline constexpr Text DateHint = tr("例如 2024-01-31、2024-03 或“本月”");
inline constexpr Text TimeHint = tr("例如 08:30");
inline constexpr Text MomentHint = tr("例如 2024-01-31、2024-01-31 08:30 或“本月”");
inline constexpr Text BooleanHint = tr("“是”或“否”");
inline constexpr Text ListHint = tr("多个值用逗号分隔");
inline constexpr Text CountHint = tr("个数，并列的值都包括");

// What is wrong with a row
inline constexpr Text NoField = tr("没有可以筛选的字段。");
inline constexpr Text NoRecords = tr("这里不能比较各条记录。");
inline constexpr Text NoValue = tr("请输入值。");
inline constexpr Text NoNumber = tr("“%1”不是数字。");
inline constexpr Text NoDate = tr("“%1”不是日期，请按 2024-01-31 的形式输入。");
inline constexpr Text NoTime = tr("“%1”不是时间，请按 08:30 的形式输入。");
inline constexpr Text NoMoment = tr("“%1”不是日期或时间，请按 2024-01-31 或 2024-01-31 08:30 的形式输入。");
inline constexpr Text NoCount = tr("“%1”不是个数，请输入从 1 开始的整数。");
inline constexpr Text NoBoolean = tr("“%1”不是“是”或“否”。");
inline constexpr Text EndBeforeStart = tr("结束值小于开始值。");
inline constexpr Text UnmatchedBracket = tr("括号不配对。");

// The builder
inline constexpr Text FieldMissing = tr("这里没有该筛选用到的字段“%1”，或者不能这样比较它。");
inline constexpr Text GiveUp = tr("放弃已输入的条件吗？");
inline constexpr Text AddRow = tr("添加条件(&D)");
inline constexpr Text Condition = tr("条件语句(&T):");
inline constexpr Text ShowSql = tr("显示 SQL(&Q)");
inline constexpr Text ShowSqlTip = tr("显示由条件生成的语句，可以直接修改");
inline constexpr Text ConditionName = tr("条件语句");
inline constexpr Text ConditionHint = tr("随上面的条件自动生成，熟悉 SQL 时也可以直接修改");
inline constexpr Text ByHand = tr("条件语句已手工修改，上面的条件暂不起作用。");
inline constexpr Text BackToRows = tr("恢复自动生成(&R)");
inline constexpr Text KeepCondition = tr("保留：%1");
inline constexpr Text KeepConditionTip = tr("已经生效的条件。去掉勾选，筛选后就不再起作用。");
inline constexpr Text NoCondition = tr("请输入条件。");
inline constexpr Text NoOrderBy = tr("条件语句中不能出现“ORDER BY”。");
inline constexpr Text CorrectRows = tr("请先改正标出的条件。");
inline constexpr Text FieldsUnreadable = tr("无法读取字段：%1");
inline constexpr Text ValuesUnreadable = tr("无法读取已有的值：%1");
inline constexpr Text ReadingValues = tr("正在读取…（Esc 取消）");
inline constexpr Text MoreValues = tr("更多…");
inline constexpr Text MoreValuesLeft = tr("更多…（还有 %1 个）");
inline constexpr Text ValuesTooSlow = tr("%1 秒内没有读完已有的值，请直接输入。");
inline constexpr Text ValuesOfSample = tr("%1 秒内没有读完已有的值，只列出前面一部分记录中的值。");
inline constexpr Text NoValues = tr("该字段还没有任何值。");

// The list of values with ticks
inline constexpr Text SearchValues = tr("搜索(&S):");
inline constexpr Text SearchHint = tr("输入文字查找值");
inline constexpr Text AllValues = tr("全选");
inline constexpr Text AllFound = tr("全选搜索结果");
inline constexpr Text ValueList = tr("值");
inline constexpr Text CountOfRecords = tr("记录数");
inline constexpr Text NullValue = tr("（空值）");
inline constexpr Text AnyValue = tr("（有值）");
inline constexpr Text YearOfDays = tr("%1年");
inline constexpr Text MonthOfDays = tr("%1月");
inline constexpr Text DayOfDays = tr("%1日");
inline constexpr Text WholeDay = tr("%1年%2月%3日");
inline constexpr Text ReadingTicks = tr("正在读取该字段的值…");
inline constexpr Text StopReading = tr("停止(&T)");
inline constexpr Text ReadingStopped = tr("已停止读取。可以输入文字搜索。");
inline constexpr CountedText TicksOf = counted("已选 %2 个值，共 %1 个");
inline constexpr Text TooManyValues = tr("只列出前 %1 个值，其余的请用搜索查找");
inline constexpr Text TooManyValuesOf = tr("共 %2 个值，只列出前 %1 个，其余的请用搜索查找");
inline constexpr Text NothingFound = tr("没有包含“%1”的值");
inline constexpr Text NothingTicked = tr("请至少选择一个值。");
inline constexpr Text TicksTitle = tr("按列筛选：%1");
inline constexpr Text ByConditions = tr("按条件筛选(&C)…");

// The values of a list, picked by ticks
inline constexpr Text PickValues = tr("选择“%1”的值");

// How many records meet the condition
inline constexpr Text CountName = tr("符合条件的记录数");
inline constexpr CountedText AboutRecords = counted("约 %1 条");
inline constexpr Text Counting = tr("正在计数…");
inline constexpr Text StopCounting = tr("停止计数");
inline constexpr Text NotCounted = tr("无法计数");
inline constexpr Text TooLongToCount = tr("记录太多，短时间内数不完。");

// The conditions as groups inside groups
inline constexpr Text ShowGroups = tr("按组显示(&G)");
inline constexpr Text ShowGroupsTip = tr("用缩进的组代替括号，组可以拖动");
inline constexpr Text AddBrackets = tr("加上括号(&K)");
inline constexpr Text AddBracketsTip = tr("没有括号时先算“并且”。单击可加上括号，条件的含义不变。");
inline constexpr Text Grip = tr("移动（拖动，或按 ↑ ↓）");
inline constexpr Text MoveRow = tr("移动条件 %1，在第 %2 级");
inline constexpr Text MoveGroup = tr("移动组 %1，在第 %2 级");
inline constexpr Text PartOfGroup = tr("%1（组 %2）");
inline constexpr Text GroupKind = tr("组内条件的关系");
inline constexpr Text GroupAll = tr("且：全部符合");
inline constexpr Text GroupAny = tr("或：符合任何一个");
inline constexpr Text GroupNone = tr("都不：一个也不符合");
inline constexpr Text AddToGroup = tr("＋ 条件");
inline constexpr Text AddToGroupTip = tr("在这一组中添加条件");
inline constexpr Text Dissolve = tr("解散");
inline constexpr Text DissolveTip = tr("解散这一组，保留其中的条件");
inline constexpr Text EncloseRow = tr("把这个条件放入新的组");

// The saved filters of a table
inline constexpr Text SavedFilters = tr("已保存的筛选(&M)");
inline constexpr Text SavedFiltersTip = tr("使用、保存、重命名或删除该表的筛选条件");
inline constexpr Text RecentFilters = tr("最近使用(&L)");
inline constexpr Text SaveFilter = tr("保存当前条件(&S)…");
inline constexpr Text RenameFilter = tr("重命名(&N)");
inline constexpr Text DeleteFilter = tr("删除(&X)");
inline constexpr Text FilterName = tr("筛选的名称");
inline constexpr Text SaveFilterTitle = tr("保存筛选");
inline constexpr Text RenameFilterTitle = tr("重命名筛选");
inline constexpr Text DeleteFilterTitle = tr("删除筛选");
inline constexpr Text AskReplaceFilter = tr("已有名为“%1”的筛选，替换它吗？");
inline constexpr Text AskDeleteFilter = tr("确实要删除筛选“%1”吗？");
inline constexpr Text TooManyFilters = tr("该表已保存的筛选太多，请先删除一些。");
inline constexpr Text NoFiltersText = tr("筛选文本是空的。");
inline constexpr Text FiltersTooLong = tr("筛选文本太长。");
inline constexpr Text FiltersNotJson = tr("筛选文本不是有效的 JSON（第 %1 个字符：%2）。");
inline constexpr Text NotFilters = tr("筛选文本的格式不对：%1 缺少或无效。");
inline constexpr Text NoTableOfFilters = tr("没有打开的结果，无法恢复筛选。");

// The dialog
inline constexpr Text Title = tr("筛选");
inline constexpr Text Explanation = tr("只显示符合下列条件的记录");
inline constexpr Text TableName = tr("%1：%2");
inline constexpr Text TableCaption = tr("当前使用数据表");
inline constexpr Text Filter = tr("筛选(&F)");

} // namespace KOVAVSFDataGridLib::FilterTexts
