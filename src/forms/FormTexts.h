#pragma once

#include "language/CountedText.h"
#include "language/Text.h"

// The texts of the dialogs, collected here for proofreading.
namespace KOVAVSFDataGridLib::FormTexts {

inline constexpr TextTable tr{"KOVAVSFDataGridLib::FormTexts"};
inline constexpr CountedTextTable counted{tr.context};

using namespace Qt::StringLiterals;

inline constexpr Text Ok = tr("确定");
inline constexpr Text Cancel = tr("取消");
inline constexpr Text Yes = tr("是(&Y)");
inline constexpr Text No = tr("否(&N)");
inline constexpr Text Save = tr("保存(&S)");
inline constexpr Text Discard = tr("放弃(&D)");

// FileDialog
inline constexpr Text LookInFolder = tr("文件夹:");
inline constexpr Text NameOfFile = tr("文件名(&N):");
inline constexpr Text TypeOfFile = tr("文件类型:");
inline constexpr Text OpenFile = tr("打开(&O)");
inline constexpr Text BackFolder = tr("后退");
inline constexpr Text ForwardFolder = tr("前进");
inline constexpr Text ParentFolder = tr("上一级文件夹");
inline constexpr Text NewFolder = tr("新建文件夹");
inline constexpr Text NewFolderEntry = tr("新建文件夹(&F)");
inline constexpr Text ListOfFiles = tr("列表");
inline constexpr Text DetailsOfFiles = tr("详细信息");
inline constexpr Text RenameFile = tr("重命名(&R)");
inline constexpr Text DeleteFile = tr("删除(&D)");
inline constexpr Text HiddenFiles = tr("显示隐藏文件(&H)");
inline constexpr Text ListedFiles = tr("文件列表");
inline constexpr Text ListedPlaces = tr("常用位置");
inline constexpr Text FileMissing = tr("找不到文件“%1”。");

// Dialog_SQLST
inline constexpr Text SqlDialogTitle = tr("文本");
inline constexpr Text AllowEditing = tr("允许编辑(&E)");
inline constexpr Text AllowEditingHint = tr("勾选“允许编辑”后可以修改；不勾选时只供查看和复制。");

// frmSelShowFields
inline constexpr Text SelectFieldsTitle = tr("选择显示字段");
inline constexpr Text FieldNameColumn = tr("字段名称");
inline constexpr Text SearchField = tr("查找(&S):");
inline constexpr Text SearchFieldHint = tr("输入字段名称的一部分");
inline constexpr Text CheckAll = tr("全选(&A)");
inline constexpr Text CheckNone = tr("全不选(&N)");
inline constexpr Text CheckInvert = tr("反选(&I)");
inline constexpr Text ChecksActOnListed = tr("只作用于列出的字段");
inline constexpr Text CheckedCount = tr("已选 %1 个，共 %2 个");
inline constexpr Text AtLeastOneField = tr("至少选择一列");

// frmSelSortFields
inline constexpr Text SelectSortTitle = tr("选择排序字段");
inline constexpr Text SortFieldColumn = tr("排序字段");
inline constexpr Text OrderColumn = tr("次序");
inline constexpr Text SortField = tr("字段(&F):");
inline constexpr Text SortOrder = tr("次序(&R):");
inline constexpr Text AddSortField = tr("添加(&A)");
inline constexpr Text AlreadyInSort = tr("该字段已在排序列表中");
inline constexpr Text DeleteSortField = tr("删除(&D)");
inline constexpr Text MoveSortFieldUp = tr("上移(&U)");
inline constexpr Text MoveSortFieldDown = tr("下移(&W)");
inline constexpr Text NoSortHint = tr("选择字段和次序，按“添加”加入排序列表。");
inline constexpr Text SortListHint = tr("双击或按空格键切换升序和降序，拖动改变先后。");

// Both selection dialogs
inline constexpr Text TableName = tr("数据表");

// FindDialog
inline constexpr Text FindTitle = tr("查找");
inline constexpr Text FindHint = tr("输入查询内容（以空格分隔）");
inline constexpr Text FindWhat = tr("查询内容(&W):");
inline constexpr Text FindInField = tr("指定的字段名称（默认：全部）(&N):");
inline constexpr Text FindInFieldName = tr("指定的字段名称（默认：全部）");
inline constexpr Text Find = tr("查找(&F)");

// ValueDialog
inline constexpr Text ValueTitle = tr("查看内容 - %1");
inline constexpr Text TextTab = tr("文本");
inline constexpr Text PictureTab = tr("图片");
inline constexpr Text HexTab = tr("十六进制");
inline constexpr Text ValueText = tr("内容");
inline constexpr Text FindInValue = tr("在内容中查找（Enter 下一处）");
inline constexpr Text NotInValue = tr("没有找到");
inline constexpr Text PieceOf = tr("第 %1 段，共 %2 段");
inline constexpr Text PreviousPiece = tr("上一段(&P)");
inline constexpr Text NextPiece = tr("下一段(&N)");
inline constexpr Text NullValue = tr("空值（NULL）");
inline constexpr CountedText CharactersOfValue = counted("%1 个字符");
inline constexpr CountedText BytesOfValue = counted("%1 字节");
inline constexpr Text SizeOfPicture = tr("%1 × %2 像素");
inline constexpr Text BetweenFacts = tr("，");
inline constexpr Text TooLongToFormat = tr("超过 %1 个字符，不显示结构");
inline constexpr Text CopyValue = tr("复制(&C)");
inline constexpr Text SaveValue = tr("保存到文件(&S)…");
inline constexpr Text CloseValue = tr("关闭");
inline constexpr Text SaveValueTitle = tr("保存到文件");
inline constexpr Text ValueNotSaved = tr("文件没有保存：%1");
inline constexpr Text TooLongToCopy = tr("内容太长，不能复制；请保存到文件。");

// FormatDialog
inline constexpr Text FormatTitle = tr("显示格式");
inline constexpr Text FormatOfColumn = tr("列：%1");
inline constexpr Text Thousands = tr("使用千位分隔符(&T)");
inline constexpr Text Decimals = tr("小数位数(&D):");
inline constexpr Text DecimalsAsTheyAre = tr("按原样");
inline constexpr Text DecimalsOfField = tr("按字段（%1 位）");
inline constexpr Text ShowAsItIs = tr("按原样（True 和 False）(&A)");
inline constexpr Text ShowYesNo = tr("“是”和“否”(&Y)");
inline constexpr Text ShowBox = tr("方框 ☑ ☐(&B)");
inline constexpr Text FormatSample = tr("示例：%1");
inline constexpr Text FormatHint = tr("只改变显示，复制、筛选和导出仍用原来的内容。");

// ExportDialog
inline constexpr Text ExportTitle = tr("导出");
inline constexpr Text ExportFileLabel = tr("文件(&F):");
inline constexpr Text Browse = tr("浏览(&B)…");
inline constexpr Text ExportFormatLabel = tr("格式(&T):");
inline constexpr Text ExportEncodingLabel = tr("编码(&D):");
inline constexpr Text FormatCsv = tr("CSV（逗号分隔）");
inline constexpr Text FormatXlsx = tr("XLSX（电子表格）");
inline constexpr Text FormatJsonLines = tr("JSON Lines（每行一个对象）");
inline constexpr Text FormatHtml = tr("HTML（网页）");
inline constexpr Text EncodingUtf8WithMark = tr("UTF-8（带 BOM）");
inline const QString EncodingUtf8 = u"UTF-8"_s;
inline const QString EncodingGb18030 = u"GB18030"_s;
inline constexpr Text ExportRecordsGroup = tr("记录");
inline constexpr Text ExportAllRecords = tr("全部 %1 条(&A)");
inline constexpr Text ExportMarkedRecords = tr("选定的 %1 条(&S)");
inline constexpr Text ExportColumnsGroup = tr("字段");
inline constexpr Text ExportShownColumns = tr("显示的 %1 个(&W)");
inline constexpr Text ExportAllColumns = tr("全部 %1 个(&L)");
inline constexpr Text ExportHeadings = tr("第一行是字段名称(&H)");
inline constexpr Text ExportGuard = tr("防止以 = + - @ 开头的文本被当作公式(&G)");
inline constexpr Text ExportGuardHint = tr("在这样的文本前加一个撇号，电子表格打开文件时不会执行它。");
inline constexpr Text ExportButton = tr("导出(&E)");
inline constexpr Text ExportNoFile = tr("请指定文件。");
inline constexpr Text ExportReplace = tr("文件“%1”已经存在，要替换它吗？");

// ConnectDialog, which only the host's developer sees
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
inline const QString LinkButtonHint = u"Opens the connection builder and uses the string that it builds."_s;
inline const QString NoConnectionBuilder =
    u"No connection builder is available here; type the connection string."_s;

} // namespace KOVAVSFDataGridLib::FormTexts
