#pragma once

#include <QtCore/QString>

// The texts of the filter builder and its dialog, for proof-reading in one place.
namespace KOVAVSFDataGridLib::FilterTexts {

using namespace Qt::StringLiterals;

// In the order of FilterOperator.
inline const QString Operators[] = {u"等于"_s,       u"不等于"_s, u"大于"_s,     u"小于"_s, u"大于或等于"_s,
                                    u"小于或等于"_s, u"介于"_s,   u"在列表中"_s, u"包含"_s, u"开头是"_s,
                                    u"结尾是"_s,     u"为空"_s,   u"不为空"_s};

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
inline const QString Yes = u"是"_s;
inline const QString No = u"否"_s;

// What to type
inline const QString NumberHint = u"数字"_s;
inline const QString DateHint = u"例如 2024-01-31"_s;
inline const QString TimeHint = u"例如 08:30"_s;
inline const QString MomentHint = u"例如 2024-01-31 或 2024-01-31 08:30"_s;
inline const QString BooleanHint = u"是 或 否"_s;
inline const QString ListHint = u"多个值用逗号分隔"_s;

// What is wrong with a row
inline const QString NoField = u"没有可以筛选的字段。"_s;
inline const QString NoValue = u"请输入值。"_s;
inline const QString NoNumber = u"“%1”不是数字。"_s;
inline const QString NoDate = u"“%1”不是日期，请按 2024-01-31 的形式输入。"_s;
inline const QString NoTime = u"“%1”不是时间，请按 08:30 的形式输入。"_s;
inline const QString NoMoment = u"“%1”不是日期或时间，请按 2024-01-31 或 2024-01-31 08:30 的形式输入。"_s;
inline const QString NoBoolean = u"“%1”不是“是”或“否”。"_s;
inline const QString EndBeforeStart = u"结束值小于开始值。"_s;
inline const QString UnmatchedBracket = u"括号不配对。"_s;

// The builder
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

// The dialog
inline const QString Title = u"筛选"_s;
inline const QString Explanation = u"只显示符合下列条件的记录"_s;
inline const QString TableCaption = u"当前使用数据表"_s;
inline const QString Filter = u"筛选(&F)"_s;

} // namespace KOVAVSFDataGridLib::FilterTexts
