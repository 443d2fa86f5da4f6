#pragma once

#include "language/CountedText.h"
#include "language/Text.h"

// The texts of an export for the user, collected here for proofreading.
namespace KOVAVSFDataGridLib::ExportTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::ExportTexts"};
inline constexpr CountedTextTable counted{tr.context};

inline constexpr Text RecordGone = tr("结果已改变，没有写完。");
inline constexpr Text CantWrite = tr("无法写入文件“%1”：%2");
inline constexpr Text UnknownFormat = tr("无法从文件名“%1”得知格式。可用的扩展名：%2。");
inline constexpr Text BetweenEndings = tr("、");
inline constexpr Text NoEncoding = tr("此系统没有编码 %1。");
inline constexpr Text CantEncode = tr("编码 %1 不能表示其中的字符。");
inline constexpr Text TooManyColumns = tr("XLSX 最多有 %1 列，而结果有 %2 列。");
inline constexpr Text XlsxFailed = tr("无法生成 XLSX：%1");
inline constexpr CountedText CutTexts =
    counted("有 %1 个内容超过 XLSX 单元格的上限（32767 个字符），只写入了前面的部分。");
inline constexpr Text UnknownOption = tr("无法识别导出选项“%1=%2”。");
inline constexpr Text Sheet = tr("数据");
inline constexpr Text NextSheet = tr("数据 %1");

} // namespace KOVAVSFDataGridLib::ExportTexts
