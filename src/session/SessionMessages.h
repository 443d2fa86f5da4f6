#pragma once

#include <QtCore/QString>

// What a session tells its user, for proof-reading in one place.
namespace KOVAVSFDataGridLib::SessionMessages {

using namespace Qt::StringLiterals;

inline const QString OpenErrorPrefix = u"错误描述为："_s;
inline const QString OpenFailed = u"数据库打开失败。"_s;
inline const QString ReadFailed = u"数据库读失败。"_s;
inline const QString PageErrorPrefix = u"无法翻页："_s;
inline const QString NotAPageNumber = u"请在页数输入正整数."_s;
inline const QString NotSavedPrefix = u"记录没有保存："_s;
inline const QString NewValuesRefused = u"无法查看新值："_s;
inline const QString ChangedFields =
    u"您修改的内容尚未保存，其他用户也修改了下列字段。再次保存会替换其他用户的内容，按 Esc 放弃您的修改："_s;
inline const QString ChangedField = u"\n%1：现在是“%2”，您填写的是“%3”"_s;
inline const QString LoadFirst = u"连接字符串已经改变，请先加载数据。"_s;
inline const QString OpeningCancelled = u"已取消读取，仍显示原来的记录"_s;
inline const QString PlaceOfValue = u"%1（第 %2 行）"_s;
inline const QString NothingAhead = u"没有可以前进到的结果。"_s;
inline const QString InsertCancelled = u"再次插入空行操作已被取消"_s;
inline const QString ReadOnly = u"记录只读，不能增加、修改或删除。"_s;
inline const QString RecordsCopied = u"已复制 %1 条记录"_s;
inline const QString RecordsExported = u"已导出 %1 条记录"_s;
inline const QString RecordsPrinted = u"已打印 %1 条记录"_s;
inline const QString AskDelete = u"确实要删除该记录?"_s;
inline const QString RecordMeant = u"\n第 %1 行：%2 = %3"_s;
inline const QString AskDeleteTitle = u"删除记录"_s;
inline const QString DeleteRefused = u"删除操作与数据库的约束冲突，不能删除此记录！"_s;

} // namespace KOVAVSFDataGridLib::SessionMessages
