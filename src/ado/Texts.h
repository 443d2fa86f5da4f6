#pragma once

#include "language/CountedText.h"
#include "language/Text.h"

// All texts that the data access layer shows to users, collected here for proofreading. %1, %2 … are file
// names, field names, numbers or the database's own messages; never a connection string or a password.
namespace ADODB::Texts {

using KOVAVSFDataGridLib::CountedText;
using KOVAVSFDataGridLib::Text;

inline constexpr KOVAVSFDataGridLib::TextTable tr{"ADODB::Texts"};
inline constexpr KOVAVSFDataGridLib::CountedTextTable counted{tr.context};

// Connections
inline constexpr Text connectionOpen = tr("连接已经打开，请先关闭。");
inline constexpr Text connectionClosed = tr("连接没有打开或已经关闭。");
inline constexpr Text connectionNoEquals = tr("连接字符串的第 %1 段缺少关键字或等号。");
inline constexpr Text connectionOpenQuote = tr("连接字符串的第 %1 段缺少右引号或右括号。");
inline constexpr Text connectionAfterQuote = tr("连接字符串的第 %1 段在右引号之后还有内容。");
inline constexpr Text unknownProvider = tr("无法识别连接字符串中的数据库提供程序“%1”，可用的有：%2。");
inline constexpr Text noProvider =
    tr("连接字符串没有说明要打开的数据库（需要 Provider 或 Data Source），可用的提供程序有：%1。");

// Database files
inline constexpr Text noDataSource = tr("连接字符串中没有数据库文件名（Data Source）。");
inline constexpr Text fileMissing = tr("找不到数据库文件：%1");
inline constexpr Text fileIsFolder = tr("这是文件夹，不是数据库文件：%1");
inline constexpr Text fileIsSpecial = tr("这是管道或设备，不是数据库文件：%1");
inline constexpr Text fileUnreadable = tr("无法读取数据库文件：%1（%2）");
inline constexpr Text notADatabase = tr("文件不是 SQLite 数据库，或者已加密：%1");
inline constexpr Text notAnAccessFile = tr("文件不是 Access 数据库：%1");
inline constexpr Text accessTooNew = tr("该 Access 数据库的版本太新，无法读取：%1");
inline constexpr Text accessDamaged = tr("Access 数据库已损坏或者不完整，无法读取：%1");
inline constexpr Text accessEncrypted = tr("该 Access 数据库已加密，在此系统上无法读取：%1");
inline constexpr Text accessQuery = tr("Access 查询“%1”需要参数，或者使用了此处不支持的功能，无法运行。");
inline constexpr Text accessDistinctRow =
    tr("无法确定 DISTINCTROW 要去掉哪些表的重复记录；请写成 DISTINCT，或在每个字段前写出表名。");
inline constexpr Text accessPassword = tr("该 Access 数据库的密码不正确，或者没有提供密码：%1");
inline constexpr Text badTimeout = tr("连接字符串中的 Connect Timeout 必须是不小于 0 的秒数。");

// Database servers
inline constexpr Text noDriver =
    tr("没有安装名为“%1”的 ODBC 驱动程序（%2 位版本，与本程序相同），已安装的有：%3。");
inline constexpr Text noOleDbDriver =
    tr("没有安装连接字符串所需的 ODBC 驱动程序。请安装%1（%2 位版本，与本程序相同）。已安装的有：%3。");
inline constexpr Text sqlServerDriver = tr("“ODBC Driver 18 for SQL Server”");
inline constexpr Text oracleDriver = tr("“Oracle Instant Client”及其 ODBC 驱动程序");
inline constexpr Text accessDriver = tr("“Microsoft Access Database Engine”");
inline constexpr Text badSwitch = tr("连接字符串中的 %1 只能是 Yes 或 No。");
inline constexpr Text noStrictEncryption = tr("驱动程序“%1”不支持 Encrypt=Strict，请安装%2。");
inline constexpr Text onlyAccessFiles =
    tr("通过该提供程序只能打开 Access 数据库，不能打开工作簿、文本等其他文件。");
inline constexpr Text noOdbcSource = tr("找不到名为“%1”的 ODBC 数据源，可用的数据源有：%2。");
inline constexpr Text badSeconds = tr("连接字符串中的 %1 必须是不小于 0 的秒数。");
inline constexpr Text noneInstalled = tr("（无）");
inline constexpr Text cannotConnect = tr("无法连接数据库服务器：%1");
inline constexpr Text connectTimedOut = tr("连接数据库服务器超时，请检查服务器地址和网络。（%1）");
inline constexpr Text authenticationFailed = tr("数据库服务器拒绝登录，请检查用户名和密码。（%1）");
inline constexpr Text connectionLost = tr("与数据库服务器的连接已断开，请在服务器恢复后重试。（%1）");
inline constexpr Text timedOut = tr("数据库服务器没有在限定时间内完成操作。（%1）");
inline constexpr Text secondsLimit = tr("时限为 %1 秒");
inline constexpr Text permissionDenied = tr("没有执行此操作的数据库权限。（%1）");
inline constexpr Text readOnlyQuery = tr("只能打开返回记录的查询语句；该语句会修改数据库，没有执行。（%1）");
inline constexpr Text cancelledByServer = tr("数据库服务器中止了操作。（%1）");

// Statements
inline constexpr Text emptyStatement = tr("没有可执行的 SQL 语句。");
inline constexpr Text secondStatement =
    tr("一次只能打开一条 SQL 语句，第一条语句之后还有其他内容；没有执行任何操作。");
inline constexpr Text strayCharacter =
    tr("SQL 语句的第 %1 个字符是控制字符，或者使注释或字符串的结尾不明确（编码 U+%2）；没有执行任何操作。");
inline constexpr Text notAQuery =
    tr("只能打开返回记录的查询语句；该语句会修改数据库或不返回记录，没有执行。");
inline constexpr Text parameterInStatement = tr("SQL 语句中的参数“%1”没有值。");
inline constexpr Text cancelled = tr("操作已取消。");
inline constexpr Text outOfMemory = tr("内存不足，无法读取全部记录。");
inline constexpr Text changeOutOfMemory = tr("内存不足，没有保存任何更改。");
inline constexpr Text spillFailed = tr("记录太多，内存放不下，又无法写入临时文件夹：%1（%2）");

// What a database answered
inline constexpr Text statementFailed = tr("SQL 语句有误：%1");
inline constexpr Text noTable = tr("找不到表或视图：%1");
inline constexpr Text locked = tr("数据库正被其他程序锁定，请稍后重试。（%1）");
inline constexpr Text constraintFailed = tr("操作违反了数据库的约束：%1");
inline constexpr Text readOnlyDatabase = tr("数据库是只读的，不能写入。（%1）");
inline constexpr Text damaged = tr("数据库文件已损坏或不是数据库文件。（%1）");
inline constexpr Text diskFull = tr("磁盘空间不足，无法完成操作。（%1）");
inline constexpr Text databaseFailed = tr("数据库操作失败：%1");

// Values
inline constexpr Text yes = tr("是");
inline constexpr Text no = tr("否");
inline constexpr CountedText bytes = counted("<%1 字节>");
inline constexpr Text betweenNames = tr("、");

// Records and fields
inline constexpr Text stillExecuting = tr("这个记录集的上一项操作还在等待数据库，请稍后再试。");
inline constexpr Text recordsetOpen = tr("记录集已经打开，请先关闭。");
inline constexpr Text recordsetClosed = tr("记录集没有打开或已经关闭。");
inline constexpr Text noCurrentRecord = tr("没有当前记录：已在第一条之前、最后一条之后，或者没有任何记录。");
inline constexpr Text deletedRecord = tr("当前记录已被删除，请先移动到其他记录。");
inline constexpr Text noSuchField = tr("没有名称或序号为“%1”的字段。");
inline constexpr Text badPosition = tr("记录号 %1 超出范围，应在 1 到 %2 之间。");
inline constexpr Text badPage = tr("页号 %1 超出范围，应在 1 到 %2 之间。");
inline constexpr Text badPageSize = tr("每页记录数必须大于 0。");
inline constexpr Text badArgument = tr("参数的值 %1 不在允许的范围内。");
inline constexpr Text onlyCurrentRecord = tr("只能删除当前记录。");
inline constexpr Text notAConnection = tr("打开记录集需要一个连接对象。");
inline constexpr Text badBookmark = tr("该书签不属于这个记录集。");
inline constexpr Text badCriteria = tr("条件“%1”有误，应为“字段 运算符 值”，并可用 AND、OR 和括号连接。");
inline constexpr Text badFindCriteria = tr("查找条件“%1”有误，只能是一个“字段 运算符 值”。");
inline constexpr Text dateCriteria =
    tr("条件“%1”有误，#…# 中的日期或时间只能用 = <> < <= > >= 与日期或时间字段比较。");
inline constexpr Text badSort = tr("排序“%1”有误，应为“字段 ASC”或“字段 DESC”，以逗号分隔。");
inline constexpr Text badFieldList = tr("字段名与值的个数必须相同。");
inline constexpr Text filterGroup = tr("只能按条件或书签筛选，不能按批量更新的状态筛选。");
inline constexpr Text noRequery = tr("表格正在显示这个记录集，不能重新查询，请使用表格的 IsLoadData。");
inline constexpr Text noBatch = tr("记录逐条保存，不能成批更新。");
inline constexpr Text oneResult = tr("一条语句只有一个结果。");
inline constexpr Text onlyXmlOrCsv = tr("记录集只能保存为 XML（格式 1）或 CSV（格式 2）。");
inline constexpr Text onlyClipString = tr("只支持格式 2（文本）。");

// Writing back
inline constexpr Text openedReadOnly = tr("记录集以只读方式打开，不能修改。");
inline constexpr Text cloneIsReadOnly = tr("这是记录集的副本，不能修改。");
inline constexpr Text accessReadOnly = tr("Access 数据库在此系统上只能读取，不能修改或删除记录。");
inline constexpr Text readOnlyNoTable = tr("查询结果不是直接来自数据库表，不能修改。");
inline constexpr Text readOnlyJoin = tr("查询结果来自多个表的连接或子查询，不能修改。");
inline constexpr Text readOnlyView = tr("查询结果来自视图“%1”，不能修改。");
inline constexpr Text readOnlyGrouped = tr("查询结果经过汇总，不能修改。");
inline constexpr Text readOnlyDistinct = tr("查询结果去掉了重复记录（DISTINCT），不能修改。");
inline constexpr Text readOnlyCompound = tr("查询结果由多个查询合并而成，不能修改。");
inline constexpr Text readOnlyField = tr("字段“%1”是计算得出的，不能修改。");
inline constexpr Text badValue = tr("值“%1”不适合字段“%2”的数据类型。");
inline constexpr Text nulInText = tr("字段“%1”的内容中有空字符（U+0000），此数据库不能保存，请去掉它。");
inline constexpr Text valueNeeded = tr("字段“%1”不能为空。");
inline constexpr Text binaryValue = tr("二进制数据");
inline constexpr Text emptyRecordAgain = tr("新记录还没有填写任何内容，再次插入空行的操作已取消。");
inline constexpr Text newRowWithoutKey = tr("新记录必须填写主键字段 %1，没有保存任何更改。");
inline constexpr Text rowGone = tr("记录已被其他用户修改或删除，没有保存任何更改，请刷新后重试。");
inline constexpr Text rowChanged = tr("记录已被其他用户修改，没有保存任何更改，请查看新内容后重试。");
inline constexpr Text rowDeleted = tr("记录已被其他用户删除，无法重新读取。");
inline constexpr Text changePrevented =
    tr("数据库没有执行该更改（可能被触发器或规则阻止），没有保存任何更改。");
inline constexpr Text changedRowLost =
    tr("数据库保存的值与填写的不同，因而无法再找到该记录，没有保存任何更改。");
inline constexpr Text inDoubt =
    tr("保存时与数据库的连接中断，无法确定更改是否已经保存。重试时会先核对。（%1）");
inline constexpr Text newKeyUnknown =
    tr("上次保存这条新记录时连接中断，其主键未知，无法核对是否已经保存。再次保存可能会重复。");
inline constexpr Text newKeyTaken =
    tr("上次保存这条新记录时连接中断，现在主键相同的记录与它不同，无法确定是否同一条。再次保存可能会重复。");
inline constexpr Text fileReplaced = tr("数据库文件已被移动、删除或替换，没有保存任何更改，请重新打开。");
inline constexpr Text closedWhileEdited = tr("当前记录有尚未保存的修改，不能关闭记录集。");
inline constexpr Text savedUnseen = tr("更改可能已经保存，但无法再读取该记录。重试时会先核对。（%1）");
inline constexpr Text readOnlyNoTransaction = tr("表“%1”既没有主键，又不支持事务，无法安全地修改。");
inline constexpr Text tableAltered = tr("表的结构已被其他程序更改，没有保存任何更改，请刷新后重试。");
inline constexpr Text rowNotUnique = tr("无法唯一确定要修改的记录（有 %1 条相同的记录），没有保存任何更改。");

// Streams
inline constexpr Text streamOpen = tr("流已经打开，请先关闭。");
inline constexpr Text streamClosed = tr("流没有打开或已经关闭。");
inline constexpr Text streamWrongType = tr("流的类型（Type）不允许此操作。");
inline constexpr Text streamMoved = tr("只有在流的开头才能更改它的类型。");
inline constexpr Text fileExists = tr("文件已经存在：%1");
inline constexpr Text fileNotWritten = tr("无法写入文件：%1（%2）");

} // namespace ADODB::Texts
