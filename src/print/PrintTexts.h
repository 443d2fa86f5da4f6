#pragma once

#include <QtCore/QString>

// The texts of printing, for proof-reading in one place.
namespace KOVAVSFDataGridLib::PrintTexts {

using namespace Qt::StringLiterals;

inline const QString PageOf = u"第 %1 页，共 %2 页"_s;
inline const QString CantPrint = u"打印机不接受打印任务。"_s;
inline const QString CantWrite = u"无法写入文件“%1”：%2"_s;
inline const QString UnknownOption = u"不认识打印选项“%1=%2”。"_s;

// PrintPreview
inline const QString Title = u"打印预览"_s;
inline const QString TitleLabel = u"标题(&T):"_s;
inline const QString RecordsLabel = u"记录(&R):"_s;
inline const QString AllRecords = u"全部 %1 条"_s;
inline const QString MarkedRecords = u"选定的 %1 条"_s;
inline const QString OrientationLabel = u"方向(&O):"_s;
inline const QString Portrait = u"纵向"_s;
inline const QString Landscape = u"横向"_s;
inline const QString PreviousPage = u"上页(&U)"_s;
inline const QString NextPage = u"下页(&N)"_s;
inline const QString ShownPage = u"第 %1 页，共 %2 页"_s;
inline const QString ShownPageOfFirst = u"第 %1 页，共 %2 页（预览前 %3 页）"_s;
inline const QString ZoomLabel = u"缩放(&Z):"_s;
inline const QString WholePage = u"整页"_s;
inline const QString PageWidth = u"页宽"_s;
inline const QString Print = u"打印(&P)…"_s;
inline const QString SavePdf = u"保存为 PDF(&S)…"_s;
inline const QString Close = u"关闭"_s;
inline const QString PdfFiles = u"PDF 文件 (*.pdf)"_s;

} // namespace KOVAVSFDataGridLib::PrintTexts
