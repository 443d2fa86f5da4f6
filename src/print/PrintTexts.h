#pragma once

#include "language/Text.h"

// The texts for printing, collected here for proofreading.
namespace KOVAVSFDataGridLib::PrintTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::PrintTexts"};

inline constexpr Text PageOf = tr("第 %1 页，共 %2 页");
inline constexpr Text CantPrint = tr("打印机不接受打印任务。");
inline constexpr Text CantWrite = tr("无法写入文件“%1”：%2");
inline constexpr Text UnknownOption = tr("无法识别打印选项“%1=%2”。");

// PrintPreview
inline constexpr Text Title = tr("打印预览");
inline constexpr Text TitleLabel = tr("标题(&T):");
inline constexpr Text RecordsLabel = tr("记录(&R):");
inline constexpr Text AllRecords = tr("全部 %1 条");
inline constexpr Text MarkedRecords = tr("选定的 %1 条");
inline constexpr Text OrientationLabel = tr("方向(&O):");
inline constexpr Text Portrait = tr("纵向");
inline constexpr Text Landscape = tr("横向");
inline constexpr Text PreviousPage = tr("上页(&U)");
inline constexpr Text NextPage = tr("下页(&N)");
inline constexpr Text ShownPage = tr("第 %1 页，共 %2 页");
inline constexpr Text ShownPageOfFirst = tr("第 %1 页，共 %2 页（预览前 %3 页）");
inline constexpr Text ZoomLabel = tr("缩放(&Z):");
inline constexpr Text WholePage = tr("整页");
inline constexpr Text PageWidth = tr("页宽");
inline constexpr Text Print = tr("打印(&P)…");
inline constexpr Text SavePdf = tr("保存为 PDF(&S)…");
inline constexpr Text Close = tr("关闭");
inline constexpr Text PdfFiles = tr("PDF 文件 (*.pdf)");

} // namespace KOVAVSFDataGridLib::PrintTexts
