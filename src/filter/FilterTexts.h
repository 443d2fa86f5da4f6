#pragma once

#include <QtCore/QString>

// The texts of the filter builder and its dialog, for proof-reading in one place.
namespace KOVAVSFDataGridLib::FilterTexts {

using namespace Qt::StringLiterals;

// In the order of FilterOperator.
inline const QString Operators[] = {
    u"等于"_s,     u"不等于"_s,   u"大于"_s,     u"小于"_s,     u"大于或等于"_s, u"小于或等于"_s,
    u"介于"_s,     u"在列表中"_s, u"包含"_s,     u"开头是"_s,   u"结尾是"_s,     u"为空"_s,
    u"不为空"_s,   u"不包含"_s,   u"开头不是"_s, u"结尾不是"_s, u"不在列表中"_s, u"不介于"_s,
    u"重复的值"_s, u"前 N 个"_s,  u"后 N 个"_s};

// A row
inline const QString OpenBracket = u"左括号"_s;
inline const QString CloseBracket = u"右括号"_s;
inline const QString Field = u"字段"_s;
inline const QString Operator = u"比较方式"_s;
inline const QString Value = u"值"_s;
inline const QString LastValue = u"结束值"_s;
inline const QString To = u"到"_s;
inline const QString Join = u"与下一个条件的关系"_s;
inline const QString And = u"并且"_s;
inline const QString Or = u"或者"_s;
inline const QString DeleteRow = u"删除这个条件"_s;
inline const QString PickValue = u"从列表中选择（Alt+↓）"_s;
inline const QString PickValueOfDays = u"从列表中选择（Shift+F4）"_s;
inline const QString PickDate = u"选择日期（Alt+↓）"_s;
inline const QString Not = u"非"_s;
inline const QString NotTip = u"只显示不符合这个条件的记录"_s;
inline const QString WithNull = u"也包括空值"_s;
inline const QString WithNullTip = u"该字段没有值的记录也显示"_s;
inline const QString Yes = u"是"_s;
inline const QString No = u"否"_s;

// Days relative to the day on which the filter runs
inline const QString Today = u"今天"_s;
inline const QString Yesterday = u"昨天"_s;
inline const QString ThisWeek = u"本周"_s;
inline const QString LastWeek = u"上周"_s;
inline const QString ThisMonth = u"本月"_s;
inline const QString LastMonth = u"上月"_s;
inline const QString ThisQuarter = u"本季"_s;
inline const QString ThisYear = u"今年"_s;
inline const QString LastYear = u"去年"_s;
inline const QString LastDays = u"最近 %1 天"_s;

// The condition as a sentence
inline const QString QuotedInSentence = u"“%1”"_s;
inline const QString FieldInSentence = u"【%1】"_s;
inline const QString DaysInSentence = u"%1 至 %2"_s;
inline const QString MeantInSentence = u"%1（%2）"_s;
inline const QString TextInSentence = u"%1"_s;
inline const QString ValueInSentence = u" %1"_s;
inline const QString ListSeparator = u"、"_s;
inline const QString InListInSentence = u"%1是 %2 之一"_s;
inline const QString NotInListInSentence = u"%1不是 %2 之一"_s;
inline const QString BetweenInSentence = u"%1%2 %3 和 %4 之间"_s;
inline const QString TopInSentence = u"%1是最大的 %2 个之一"_s;
inline const QString BottomInSentence = u"%1是最小的 %2 个之一"_s;
inline const QString DuplicatedInSentence = u"%1的值有重复"_s;
inline const QString NotInSentence = u"并非“%1”"_s;
inline const QString WithNullInSentence = u"（也包括空值）"_s;
inline const QString AndInSentence = u"，并且"_s;
inline const QString OrInSentence = u"，或者"_s;
inline const QString BracketsInSentence = u"（%1）"_s;
inline const QString EndOfSentence = u"。"_s;

// What to type
inline const QString NumberHint = u"数字"_s;
inline const QString DateHint = u"例如 2024-01-31、2024-03 或 本月"_s;
inline const QString TimeHint = u"例如 08:30"_s;
inline const QString MomentHint = u"例如 2024-01-31、2024-01-31 08:30 或 本月"_s;
inline const QString BooleanHint = u"是 或 否"_s;
inline const QString ListHint = u"多个值用逗号分隔"_s;
inline const QString CountHint = u"个数，并列的值都包括"_s;

// What is wrong with a row
inline const QString NoField = u"没有可以筛选的字段。"_s;
inline const QString NoRecords = u"这里不能比较各条记录。"_s;
inline const QString NoValue = u"请输入值。"_s;
inline const QString NoNumber = u"“%1”不是数字。"_s;
inline const QString NoDate = u"“%1”不是日期，请按 2024-01-31 的形式输入。"_s;
inline const QString NoTime = u"“%1”不是时间，请按 08:30 的形式输入。"_s;
inline const QString NoMoment = u"“%1”不是日期或时间，请按 2024-01-31 或 2024-01-31 08:30 的形式输入。"_s;
inline const QString NoCount = u"“%1”不是个数，请输入从 1 开始的整数。"_s;
inline const QString NoBoolean = u"“%1”不是“是”或“否”。"_s;
inline const QString EndBeforeStart = u"结束值小于开始值。"_s;
inline const QString UnmatchedBracket = u"括号不配对。"_s;

// The builder
inline const QString FieldMissing = u"这里没有该筛选用到的字段“%1”，或者不能这样比较它。"_s;
inline const QString GiveUp = u"放弃已输入的条件吗？"_s;
inline const QString AddRow = u"添加条件(&D)"_s;
inline const QString Condition = u"条件语句(&T):"_s;
inline const QString ConditionName = u"条件语句"_s;
inline const QString ConditionHint = u"随上面的条件自动生成，熟悉 SQL 时也可以直接修改"_s;
inline const QString ByHand = u"条件语句已手工修改，上面的条件暂不起作用。"_s;
inline const QString BackToRows = u"恢复自动生成(&R)"_s;
inline const QString NoCondition = u"请输入条件。"_s;
inline const QString NoOrderBy = u"条件语句中不能出现“ORDER BY”。"_s;
inline const QString CorrectRows = u"请先改正标出的条件。"_s;
inline const QString FieldsUnreadable = u"无法读取字段：%1"_s;
inline const QString ValuesUnreadable = u"无法读取已有的值：%1"_s;
inline const QString ReadingValues = u"正在读取…（Esc 取消）"_s;
inline const QString MoreValues = u"更多…"_s;
inline const QString MoreValuesLeft = u"更多…（还有 %1 个）"_s;
inline const QString ValuesTooSlow = u"%1 秒内没有读完已有的值，请直接输入。"_s;
inline const QString ValuesOfSample = u"%1 秒内没有读完已有的值，只列出前面一部分记录中的值。"_s;
inline const QString NoValues = u"该字段没有已有的值。"_s;

// The list of values with ticks
inline const QString SearchValues = u"搜索(&S):"_s;
inline const QString SearchHint = u"输入文字查找值"_s;
inline const QString AllValues = u"全选"_s;
inline const QString AllFound = u"全选搜索结果"_s;
inline const QString ValueList = u"值"_s;
inline const QString CountOfRecords = u"记录数"_s;
inline const QString NullValue = u"（空值）"_s;
inline const QString AnyValue = u"（有值）"_s;
inline const QString YearOfDays = u"%1年"_s;
inline const QString MonthOfDays = u"%1月"_s;
inline const QString DayOfDays = u"%1日"_s;
inline const QString ReadingTicks = u"正在读取该字段的值…"_s;
inline const QString StopReading = u"停止(&T)"_s;
inline const QString ReadingStopped = u"已停止读取。可以输入文字搜索。"_s;
inline const QString TicksOf = u"已选 %1 / %2 个值"_s;
inline const QString TooManyValues = u"只列出前 %1 个值，其余的请用搜索查找"_s;
inline const QString TooManyValuesOf = u"共 %2 个值，只列出前 %1 个，其余的请用搜索查找"_s;
inline const QString NothingFound = u"没有含“%1”的值"_s;
inline const QString NothingTicked = u"请至少选择一个值。"_s;
inline const QString TicksTitle = u"按列筛选：%1"_s;
inline const QString ByConditions = u"按条件筛选(&C)…"_s;

// The dialog
inline const QString Title = u"筛选"_s;
inline const QString Explanation = u"只显示符合下列条件的记录"_s;
inline const QString TableCaption = u"当前使用数据表"_s;
inline const QString Filter = u"筛选(&F)"_s;

} // namespace KOVAVSFDataGridLib::FilterTexts
