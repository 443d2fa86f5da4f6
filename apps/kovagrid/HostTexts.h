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

} // namespace HostTexts
