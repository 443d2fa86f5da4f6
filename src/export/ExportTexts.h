#pragma once

#include <QtCore/QString>

// What an export tells its user, for proof-reading in one place.
namespace KOVAVSFDataGridLib::ExportTexts {

using namespace Qt::StringLiterals;

inline const QString RecordGone = u"结果已改变，没有写完。"_s;
inline const QString CantWrite = u"无法写入文件“%1”：%2"_s;
inline const QString UnknownFormat = u"无法从文件名“%1”得知格式。可用的扩展名：%2。"_s;
inline const QString NoEncoding = u"此系统没有编码 %1。"_s;
inline const QString CantEncode = u"编码 %1 不能表示其中的字符。"_s;
inline const QString TooManyColumns = u"XLSX 最多有 %1 列，而结果有 %2 列。"_s;
inline const QString XlsxFailed = u"无法生成 XLSX：%1"_s;
inline const QString CutTexts = u"有 %1 个内容超过 XLSX 单元格的上限（32767 个字符），只写入了前面的部分。"_s;
inline const QString UnknownOption = u"不认识导出选项“%1=%2”。"_s;
inline const QString Sheet = u"数据"_s;
inline const QString NextSheet = u"数据 %1"_s;

} // namespace KOVAVSFDataGridLib::ExportTexts
