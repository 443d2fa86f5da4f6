#pragma once

#include <QtCore/QString>

// Every text that the data access shows to a person, in one place for proof-reading. %1, %2 … are file names,
// field names, numbers or the database's own words; never a connection string or a password.
namespace ADODB::Texts {

#define KOVA_TEXT(name, text)                                                                                \
    inline QString name()                                                                                    \
    {                                                                                                        \
        return QStringLiteral(text);                                                                         \
    }

// Connections
KOVA_TEXT(connectionOpen, "连接已经打开，请先关闭。")
KOVA_TEXT(connectionClosed, "连接没有打开或已经关闭。")
KOVA_TEXT(connectionNoEquals, "连接字符串的第 %1 段缺少关键字或等号。")
KOVA_TEXT(connectionOpenQuote, "连接字符串的第 %1 段缺少右引号或右括号。")
KOVA_TEXT(connectionAfterQuote, "连接字符串的第 %1 段在右引号之后还有内容。")
KOVA_TEXT(unknownProvider, "不认识连接字符串中的数据库提供程序“%1”，可用的有：%2。")
KOVA_TEXT(noProvider,
          "连接字符串没有说明要打开的数据库（需要 Provider 或 Data Source），可用的提供程序有：%1。")

// Database files
KOVA_TEXT(noDataSource, "连接字符串中没有数据库文件名（Data Source）。")
KOVA_TEXT(fileMissing, "找不到数据库文件：%1")
KOVA_TEXT(fileIsFolder, "这是文件夹，不是数据库文件：%1")
KOVA_TEXT(fileIsSpecial, "这是管道或设备，不是数据库文件：%1")
KOVA_TEXT(fileUnreadable, "无法读取数据库文件：%1（%2）")
KOVA_TEXT(notADatabase, "文件不是 SQLite 数据库，或者已加密：%1")
KOVA_TEXT(notAnAccessFile, "文件不是 Access 数据库：%1")
KOVA_TEXT(accessTooNew, "该 Access 数据库的版本太新，无法读取：%1")
KOVA_TEXT(accessDamaged, "Access 数据库已损坏或者不完整，无法读取：%1")
KOVA_TEXT(accessEncrypted, "该 Access 数据库已加密，在此系统上无法读取：%1")
KOVA_TEXT(accessQuery, "Access 查询“%1”需要参数，或者用到了此处没有的功能，不能运行。")
KOVA_TEXT(accessDistinctRow,
          "无法确定 DISTINCTROW 要去掉哪些表的重复记录；请写成 DISTINCT，或在每个字段前写出表名。")
KOVA_TEXT(accessPassword, "该 Access 数据库的密码不正确或者没有给出：%1")
KOVA_TEXT(badTimeout, "连接字符串中的 Connect Timeout 必须是不小于 0 的秒数。")

// Database servers
KOVA_TEXT(noDriver, "没有安装名为“%1”的 ODBC 驱动程序，已安装的有：%2。")
KOVA_TEXT(noOleDbDriver,
          "没有安装连接字符串所需的 ODBC 驱动程序。请安装%1（%2 位版本，与本程序相同）。已安装的有：%3。")
KOVA_TEXT(sqlServerDriver, "“ODBC Driver 18 for SQL Server”")
KOVA_TEXT(oracleDriver, "“Oracle Instant Client”及其 ODBC 驱动程序")
KOVA_TEXT(accessDriver, "“Microsoft Access Database Engine”")
KOVA_TEXT(badSwitch, "连接字符串中的 %1 只能是 Yes 或 No。")
KOVA_TEXT(noStrictEncryption, "驱动程序“%1”不支持 Encrypt=Strict，请安装%2。")
KOVA_TEXT(onlyAccessFiles, "通过该提供程序只能打开 Access 数据库，不能打开工作簿、文本等其他文件。")
KOVA_TEXT(noOdbcSource, "找不到名为“%1”的 ODBC 数据源，可用的数据源有：%2。")
KOVA_TEXT(badSeconds, "连接字符串中的 %1 必须是不小于 0 的秒数。")
KOVA_TEXT(noneInstalled, "（无）")
KOVA_TEXT(cannotConnect, "无法连接数据库服务器：%1")
KOVA_TEXT(connectTimedOut, "连接数据库服务器超时，请检查服务器地址和网络。（%1）")
KOVA_TEXT(authenticationFailed, "数据库服务器拒绝登录，请检查用户名和密码。（%1）")
KOVA_TEXT(connectionLost, "与数据库服务器的连接已断开，请在服务器恢复后重试。（%1）")
KOVA_TEXT(timedOut, "数据库服务器没有在限定时间内完成操作。（%1）")
KOVA_TEXT(secondsLimit, "限定为 %1 秒")
KOVA_TEXT(permissionDenied, "没有执行此操作的数据库权限。（%1）")
KOVA_TEXT(readOnlyQuery, "只能打开返回记录的查询语句；该语句会修改数据库，没有执行。（%1）")
KOVA_TEXT(cancelledByServer, "数据库服务器中止了操作。（%1）")

// Statements
KOVA_TEXT(emptyStatement, "没有可执行的 SQL 语句。")
KOVA_TEXT(secondStatement, "一次只能打开一条 SQL 语句，第一条语句之后还有其他内容；没有执行任何操作。")
KOVA_TEXT(strayCharacter,
          "SQL 语句的第 %1 个字符是控制字符，或者使注释、文字的结尾不明确（编码 U+%2）；没有执行任何操作。")
KOVA_TEXT(notAQuery, "只能打开返回记录的查询语句；该语句会修改数据库或不返回记录，没有执行。")
KOVA_TEXT(parameterInStatement, "SQL 语句含有没有值的参数“%1”。")
KOVA_TEXT(cancelled, "操作已取消。")
KOVA_TEXT(outOfMemory, "内存不足，无法读取全部记录。")
KOVA_TEXT(changeOutOfMemory, "内存不足，没有保存任何更改。")
KOVA_TEXT(spillFailed, "记录太多，内存放不下，又无法写入临时文件夹：%1（%2）")

// What a database answered
KOVA_TEXT(statementFailed, "SQL 语句有误：%1")
KOVA_TEXT(noTable, "找不到表或视图：%1")
KOVA_TEXT(locked, "数据库正被其他程序锁定，请稍后重试。（%1）")
KOVA_TEXT(constraintFailed, "操作违反了数据库的约束：%1")
KOVA_TEXT(readOnlyDatabase, "数据库是只读的，不能写入。（%1）")
KOVA_TEXT(damaged, "数据库文件已损坏或不是数据库文件。（%1）")
KOVA_TEXT(diskFull, "磁盘空间不足，无法完成操作。（%1）")
KOVA_TEXT(databaseFailed, "数据库操作失败：%1")

// Records and fields
KOVA_TEXT(stillExecuting, "这个记录集的上一项操作还在等待数据库，请稍后再试。")
KOVA_TEXT(recordsetOpen, "记录集已经打开，请先关闭。")
KOVA_TEXT(recordsetClosed, "记录集没有打开或已经关闭。")
KOVA_TEXT(noCurrentRecord, "没有当前记录：已在第一条之前、最后一条之后，或者没有任何记录。")
KOVA_TEXT(deletedRecord, "当前记录已被删除，请先移动到其他记录。")
KOVA_TEXT(noSuchField, "没有名称或序号为“%1”的字段。")
KOVA_TEXT(badPosition, "记录号 %1 超出范围，应在 1 到 %2 之间。")
KOVA_TEXT(badPage, "页号 %1 超出范围，应在 1 到 %2 之间。")
KOVA_TEXT(badPageSize, "每页记录数必须大于 0。")
KOVA_TEXT(badArgument, "参数的值 %1 不在允许的范围内。")
KOVA_TEXT(onlyCurrentRecord, "只能删除当前记录。")
KOVA_TEXT(notAConnection, "打开记录集需要一个连接对象。")

// Writing back
KOVA_TEXT(openedReadOnly, "记录集以只读方式打开，不能修改。")
KOVA_TEXT(accessReadOnly, "Access 数据库在此系统上只能读取，不能修改或删除记录。")
KOVA_TEXT(readOnlyNoTable, "查询结果不是直接来自数据库表，不能修改。")
KOVA_TEXT(readOnlyJoin, "查询结果来自多个表的连接或子查询，不能修改。")
KOVA_TEXT(readOnlyView, "查询结果来自视图“%1”，不能修改。")
KOVA_TEXT(readOnlyGrouped, "查询结果经过汇总，不能修改。")
KOVA_TEXT(readOnlyDistinct, "查询结果去掉了重复记录（DISTINCT），不能修改。")
KOVA_TEXT(readOnlyCompound, "查询结果由多个查询合并而成，不能修改。")
KOVA_TEXT(readOnlyField, "字段“%1”是计算得出的，不能修改。")
KOVA_TEXT(badValue, "值“%1”不适合字段“%2”的数据类型。")
KOVA_TEXT(binaryValue, "二进制数据")
KOVA_TEXT(emptyRecordAgain, "新记录还没有填写任何内容，再次插入空行的操作已取消。")
KOVA_TEXT(newRowWithoutKey, "新记录必须填写关键字段 %1，没有保存任何更改。")
KOVA_TEXT(rowGone, "记录已被其他用户修改或删除，没有保存任何更改，请刷新后重试。")
KOVA_TEXT(rowChanged, "记录已被其他用户修改，没有保存任何更改，请查看新内容后重试。")
KOVA_TEXT(rowDeleted, "记录已被其他用户删除，无法重新读取。")
KOVA_TEXT(changePrevented, "数据库没有执行该更改（可能被触发器或规则阻止），没有保存任何更改。")
KOVA_TEXT(changedRowLost, "数据库保存的值与填写的不同，因而无法再找到该记录，没有保存任何更改。")
KOVA_TEXT(inDoubt, "保存时与数据库的连接中断，无法确定更改是否已经保存，请重新打开后核对。（%1）")
KOVA_TEXT(savedUnseen, "更改可能已经保存，但无法再读取该记录，请重新打开后核对。（%1）")
KOVA_TEXT(readOnlyNoTransaction, "表“%1”既没有主键，又不支持事务，无法安全地修改。")
KOVA_TEXT(tableAltered, "表的结构已被其他程序更改，没有保存任何更改，请刷新后重试。")
KOVA_TEXT(rowNotUnique, "无法唯一确定要修改的记录（有 %1 条相同的记录），没有保存任何更改。")

// Streams
KOVA_TEXT(streamOpen, "流已经打开，请先关闭。")
KOVA_TEXT(streamClosed, "流没有打开或已经关闭。")
KOVA_TEXT(streamWrongType, "流的类型（Type）不允许此操作。")
KOVA_TEXT(streamMoved, "只有在流的开头才能更改它的类型。")
KOVA_TEXT(fileExists, "文件已经存在：%1")
KOVA_TEXT(fileNotWritten, "无法写入文件：%1（%2）")

#undef KOVA_TEXT

} // namespace ADODB::Texts
