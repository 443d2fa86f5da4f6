#pragma once

#include <QtCore/QString>

// The texts of the connection builder, for proof-reading in one place.
namespace KOVAVSFDataGridLib::ConnectionTexts {

using namespace Qt::StringLiterals;

inline const QString Title = u"建立连接"_s;
inline const QString ConnectTo = u"连接到(&C):"_s;
inline const QString SqliteFile = u"SQLite 数据库文件"_s;
inline const QString AccessFile = u"Access 数据库文件"_s;
inline const QString DataSource = u"ODBC 数据源 %1"_s;
inline const QString Driver = u"ODBC 驱动程序 %1"_s;
inline const QString NotInstalled = u"%1（未安装）"_s;
inline const QString NothingInstalled = u"此计算机上没有安装 ODBC 数据源和驱动程序。"_s;
inline const QString File = u"文件(&F):"_s;
inline const QString Browse = u"浏览(&B)…"_s;
inline const QString BrowseTitle = u"选择数据库文件"_s;
inline const QString SqliteFilter = u"SQLite 数据库 (*.db *.sqlite *.sqlite3);;所有文件 (*)"_s;
inline const QString AccessFilter = u"Access 数据库 (*.mdb *.accdb);;所有文件 (*)"_s;
inline const QString Server = u"服务器(&S):"_s;
inline const QString Port = u"端口(&P):"_s;
inline const QString PortHint = u"留空时使用默认端口"_s;
inline const QString Database = u"数据库(&D):"_s;
inline const QString User = u"用户名(&U):"_s;
inline const QString Password = u"密码(&W):"_s;
inline const QString Result = u"连接字符串(&R):"_s;
inline const QString ResultHint = u"这里不显示密码"_s;
inline const QString Test = u"测试连接(&T)"_s;
inline const QString Testing = u"正在连接…"_s;
inline const QString Connected = u"连接成功。"_s;
inline const QString NotConnected = u"连接失败：%1"_s;
inline const QString Ok = u"确定"_s;
inline const QString Cancel = u"取消"_s;

} // namespace KOVAVSFDataGridLib::ConnectionTexts
