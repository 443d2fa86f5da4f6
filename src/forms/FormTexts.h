#pragma once

#include <QtCore/QString>

// The texts of the dialogs, for proof-reading in one place.
namespace KOVAVSFDataGridLib::FormTexts {

using namespace Qt::StringLiterals;

inline const QString Ok = u"确定"_s;
inline const QString Cancel = u"取消"_s;
inline const QString Yes = u"是(&Y)"_s;
inline const QString No = u"否(&N)"_s;
inline const QString Save = u"保存(&S)"_s;
inline const QString Discard = u"放弃(&D)"_s;

// Dialog_SQLST
inline const QString SqlDialogTitle = u"文本"_s;
inline const QString AllowEditing = u"允许编辑(&E)"_s;
inline const QString AllowEditingHint = u"勾选“允许编辑”后可以修改；不勾选时只供查看和复制。"_s;

// frmSelShowFields
inline const QString SelectFieldsTitle = u"选择显示字段"_s;
inline const QString FieldNameColumn = u"字段名称"_s;
inline const QString SearchField = u"查找(&S):"_s;
inline const QString SearchFieldHint = u"输入字段名称的一部分"_s;
inline const QString CheckAll = u"全选(&A)"_s;
inline const QString CheckNone = u"全不选(&N)"_s;
inline const QString CheckInvert = u"反选(&I)"_s;
inline const QString ChecksActOnListed = u"只作用于列出的字段"_s;
inline const QString CheckedCount = u"已选 %1 个，共 %2 个"_s;
inline const QString AtLeastOneField = u"至少选择一列"_s;

// frmSelSortFields
inline const QString SelectSortTitle = u"选择排序字段"_s;
inline const QString SortFieldColumn = u"排序字段"_s;
inline const QString OrderColumn = u"次序"_s;
inline const QString SortField = u"字段(&F):"_s;
inline const QString SortOrder = u"次序(&R):"_s;
inline const QString AddSortField = u"添加(&A)"_s;
inline const QString AlreadyInSort = u"该字段已在排序列表中"_s;
inline const QString DeleteSortField = u"删除(&D)"_s;
inline const QString MoveSortFieldUp = u"上移(&U)"_s;
inline const QString MoveSortFieldDown = u"下移(&W)"_s;
inline const QString NoSortHint = u"选择字段和次序，按“添加”加入排序列表。"_s;
inline const QString SortListHint = u"双击或按空格键切换升序和降序，拖动改变先后。"_s;

// Both selection dialogs
inline const QString TableName = u"数据表"_s;

// FindDialog
inline const QString FindTitle = u"查找"_s;
inline const QString FindHint = u"输入查询内容（以空格分隔）"_s;
inline const QString FindWhat = u"查询内容(&W):"_s;
inline const QString FindInField = u"指定的字段名称（默认：全部）(&N):"_s;
inline const QString FindInFieldName = u"指定的字段名称（默认：全部）"_s;
inline const QString Find = u"查找(&F)"_s;

// ValueDialog
inline const QString ValueTitle = u"查看内容 - %1"_s;
inline const QString TextTab = u"文本"_s;
inline const QString PictureTab = u"图片"_s;
inline const QString HexTab = u"十六进制"_s;
inline const QString ValueText = u"内容"_s;
inline const QString FindInValue = u"在内容中查找（Enter 下一处）"_s;
inline const QString NotInValue = u"没有找到"_s;
inline const QString PieceOf = u"第 %1 段，共 %2 段"_s;
inline const QString PreviousPiece = u"上一段(&P)"_s;
inline const QString NextPiece = u"下一段(&N)"_s;
inline const QString NullValue = u"空值（NULL）"_s;
inline const QString CharactersOfValue = u"%1 个字符"_s;
inline const QString BytesOfValue = u"%1 字节"_s;
inline const QString SizeOfPicture = u"%1 × %2 像素"_s;
inline const QString TooLongToFormat = u"超过 %1 个字符，不显示结构"_s;
inline const QString CopyValue = u"复制(&C)"_s;
inline const QString SaveValue = u"保存到文件(&S)…"_s;
inline const QString CloseValue = u"关闭"_s;
inline const QString SaveValueTitle = u"保存到文件"_s;
inline const QString ValueNotSaved = u"文件没有保存：%1"_s;
inline const QString TooLongToCopy = u"内容太长，不能复制；请保存到文件。"_s;

// FormatDialog
inline const QString FormatTitle = u"显示格式"_s;
inline const QString FormatOfColumn = u"列：%1"_s;
inline const QString Thousands = u"用逗号分隔千位(&T)"_s;
inline const QString Decimals = u"小数位数(&D):"_s;
inline const QString DecimalsAsTheyAre = u"按原样"_s;
inline const QString ShowYesNo = u"显示为“是”和“否”(&Y)"_s;
inline const QString FormatSample = u"示例：%1"_s;
inline const QString FormatHint = u"只改变显示，复制、筛选和导出仍用原来的内容。"_s;

// ExportDialog
inline const QString ExportTitle = u"导出"_s;
inline const QString ExportFileLabel = u"文件(&F):"_s;
inline const QString Browse = u"浏览(&B)…"_s;
inline const QString ExportFormatLabel = u"格式(&T):"_s;
inline const QString ExportEncodingLabel = u"编码(&D):"_s;
inline const QString FormatCsv = u"CSV（逗号分隔）"_s;
inline const QString FormatXlsx = u"XLSX（电子表格）"_s;
inline const QString FormatJsonLines = u"JSON Lines（每行一个对象）"_s;
inline const QString FormatHtml = u"HTML（网页）"_s;
inline const QString EncodingUtf8WithMark = u"UTF-8（带签名）"_s;
inline const QString EncodingUtf8 = u"UTF-8"_s;
inline const QString EncodingGb18030 = u"GB18030"_s;
inline const QString ExportRecordsGroup = u"记录"_s;
inline const QString ExportAllRecords = u"全部 %1 条(&A)"_s;
inline const QString ExportMarkedRecords = u"选定的 %1 条(&S)"_s;
inline const QString ExportColumnsGroup = u"字段"_s;
inline const QString ExportShownColumns = u"显示的 %1 个(&W)"_s;
inline const QString ExportAllColumns = u"全部 %1 个(&L)"_s;
inline const QString ExportHeadings = u"第一行是字段名称(&H)"_s;
inline const QString ExportGuard = u"防止以 = + - @ 开头的文本被当作公式(&G)"_s;
inline const QString ExportGuardHint = u"在这样的文本前加一个撇号，电子表格打开文件时不会执行它。"_s;
inline const QString ExportButton = u"导出(&E)"_s;
inline const QString ExportNoFile = u"请指定文件。"_s;
inline const QString ExportReplace = u"文件“%1”已经存在，要替换它吗？"_s;

// ConnectDialog, which only the host's developer meets
inline const QString ConnectTitle = u"Connection"_s;
inline const QString ConnectOk = u"OK"_s;
inline const QString ConnectCancel = u"Cancel"_s;
inline const QString BuildConnection = u"&Build the connection string"_s;
inline const QString TypeConnection = u"&Type the connection string"_s;
inline const QString InputConnectionString = u"Input ConnectionString:"_s;
inline const QString InputSqlShow = u"Input SQLShow:"_s;
inline const QString ConnectionStringHint = u"For example: Provider=SQLite;Data Source=shop.db"_s;
inline const QString SqlShowHint = u"For example: select * from Orders"_s;
inline const QString AskSqlShowToo = u"Then enter the &SQLShow statement"_s;
inline const QString LinkButton = u"B&uild…"_s;
inline const QString LinkButtonHint = u"Opens the connection builder and takes over what it builds."_s;
inline const QString NoConnectionBuilder =
    u"No connection builder is available here; type the connection string."_s;

} // namespace KOVAVSFDataGridLib::FormTexts
