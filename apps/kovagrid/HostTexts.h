#pragma once

#include <QtCore/QString>

// The messages of the host program itself, for proof-reading in one place.
namespace HostTexts {

using namespace Qt::StringLiterals;

// %1 is a file or a folder, %2 the system's or the database's own words.
inline const QString CantMakeFolder = u"无法建立文件夹：%1"_s;
inline const QString CantMakeSample = u"无法建立示例数据库：%1（%2）"_s;
inline const QString CantPrint = u"无法输出记录。"_s;
inline const QString CantSavePicture = u"无法保存窗口截图：%1"_s;
inline const QString CantListTables = u"无法列出表：%1"_s;
inline const QString NotADatabase = u"文件“%1”不是 SQLite 或 Access 数据库。"_s;

// The form
inline const QString Connection = u"连接(&C):"_s;
inline const QString Recent = u"最近(&R)"_s;
inline const QString NoRecent = u"（没有）"_s;
inline const QString ClearRecent = u"清除(&L)"_s;
inline const QString DbType = u"类型(&D):"_s;
inline const QString Statement = u"语句(&S):"_s;
inline const QString Run = u"执行(&E)"_s;
inline const QString RunTip = u"执行语句（Ctrl+Enter）"_s;
inline const QString More = u"更多(&M)"_s;
inline const QString MoreTip = u"部分字段和排序"_s;
inline const QString Part = u"部分字段(&P):"_s;
inline const QString Sort = u"排序(&O):"_s;

// The window and its panes
inline const QString WindowTitle = u"KOVAVSFDataGrid 数据表格"_s;
inline const QString NewTab = u"查询"_s;
inline const QString Tables = u"表"_s;
inline const QString Views = u"视图"_s;
inline const QString NoTables = u"（没有表）"_s;
inline const QString TablesPane = u"表和视图"_s;
inline const QString PicturePane = u"图片"_s;
inline const QString NoPicture = u"（无图片）"_s;
inline const QString EventsPane = u"事件记录"_s;
inline const QString OpenFile = u"打开数据库文件"_s;
inline const QString DatabaseFiles = u"数据库 (*.db *.db3 *.sqlite *.sqlite3 *.mdb *.accdb);;所有文件 (*)"_s;
inline const QString Shortcuts = u"快捷键"_s;
inline const QString About = u"关于 KOVAVSFDataGrid"_s;

} // namespace HostTexts
