<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>ADODB::Texts</name>
    <message>
        <source>连接已经打开，请先关闭。</source>
        <translation>The connection is already open. Close it first.</translation>
    </message>
    <message>
        <source>连接没有打开或已经关闭。</source>
        <translation>The connection is not open, or it has been closed.</translation>
    </message>
    <message>
        <source>连接字符串的第 %1 段缺少关键字或等号。</source>
        <translation>Part %1 of the connection string has no keyword or no equals sign.</translation>
    </message>
    <message>
        <source>连接字符串的第 %1 段缺少右引号或右括号。</source>
        <translation>Part %1 of the connection string has no closing quote or bracket.</translation>
    </message>
    <message>
        <source>连接字符串的第 %1 段在右引号之后还有内容。</source>
        <translation>Part %1 of the connection string has text after the closing quote.</translation>
    </message>
    <message>
        <source>无法识别连接字符串中的数据库提供程序“%1”，可用的有：%2。</source>
        <translation>The connection string names an unknown database provider &quot;%1&quot;. Available are: %2.</translation>
    </message>
    <message>
        <source>连接字符串没有说明要打开的数据库（需要 Provider 或 Data Source），可用的提供程序有：%1。</source>
        <translation>The connection string does not say which database to open (Provider or Data Source is needed). Available providers: %1.</translation>
    </message>
    <message>
        <source>连接字符串中没有数据库文件名（Data Source）。</source>
        <translation>The connection string has no database file name (Data Source).</translation>
    </message>
    <message>
        <source>找不到数据库文件：%1</source>
        <translation>Database file not found: %1</translation>
    </message>
    <message>
        <source>这是文件夹，不是数据库文件：%1</source>
        <translation>This is a folder, not a database file: %1</translation>
    </message>
    <message>
        <source>这是管道或设备，不是数据库文件：%1</source>
        <translation>This is a pipe or a device, not a database file: %1</translation>
    </message>
    <message>
        <source>无法读取数据库文件：%1（%2）</source>
        <translation>Cannot read the database file: %1 (%2)</translation>
    </message>
    <message>
        <source>文件不是 SQLite 数据库，或者已加密：%1</source>
        <translation>The file is not an SQLite database, or it is encrypted: %1</translation>
    </message>
    <message>
        <source>文件不是 Access 数据库：%1</source>
        <translation>The file is not an Access database: %1</translation>
    </message>
    <message>
        <source>该 Access 数据库的版本太新，无法读取：%1</source>
        <translation>The version of this Access database is too new to be read: %1</translation>
    </message>
    <message>
        <source>Access 数据库已损坏或者不完整，无法读取：%1</source>
        <translation>The Access database is damaged or incomplete and cannot be read: %1</translation>
    </message>
    <message>
        <source>该 Access 数据库已加密，在此系统上无法读取：%1</source>
        <translation>This Access database is encrypted and cannot be read on this system: %1</translation>
    </message>
    <message>
        <source>Access 查询“%1”需要参数，或者使用了此处不支持的功能，无法运行。</source>
        <translation>The Access query &quot;%1&quot; needs parameters or uses a feature that is not available here. It cannot be run.</translation>
    </message>
    <message>
        <source>无法确定 DISTINCTROW 要去掉哪些表的重复记录；请写成 DISTINCT，或在每个字段前写出表名。</source>
        <translation>Cannot determine from which tables DISTINCTROW removes duplicates. Write DISTINCT instead, or put the table name before each field.</translation>
    </message>
    <message>
        <source>该 Access 数据库的密码不正确，或者没有提供密码：%1</source>
        <translation>The password of this Access database is wrong or missing: %1</translation>
    </message>
    <message>
        <source>连接字符串中的 Connect Timeout 必须是不小于 0 的秒数。</source>
        <translation>Connect Timeout in the connection string must be a number of seconds, 0 or more.</translation>
    </message>
    <message>
        <source>没有安装名为“%1”的 ODBC 驱动程序（%2 位版本，与本程序相同），已安装的有：%3。</source>
        <translation>No ODBC driver named &quot;%1&quot; is installed (the %2-bit version, like this program). Installed are: %3.</translation>
    </message>
    <message>
        <source>没有安装连接字符串所需的 ODBC 驱动程序。请安装%1（%2 位版本，与本程序相同）。已安装的有：%3。</source>
        <translation>The ODBC driver that the connection string needs is not installed. Install %1 (the %2-bit version, like this program). Installed are: %3.</translation>
    </message>
    <message>
        <source>“ODBC Driver 18 for SQL Server”</source>
        <translation>&quot;ODBC Driver 18 for SQL Server&quot;</translation>
    </message>
    <message>
        <source>“Oracle Instant Client”及其 ODBC 驱动程序</source>
        <translation>&quot;Oracle Instant Client&quot; and its ODBC driver</translation>
    </message>
    <message>
        <source>“Microsoft Access Database Engine”</source>
        <translation>&quot;Microsoft Access Database Engine&quot;</translation>
    </message>
    <message>
        <source>连接字符串中的 %1 只能是 Yes 或 No。</source>
        <translation>%1 in the connection string can only be Yes or No.</translation>
    </message>
    <message>
        <source>驱动程序“%1”不支持 Encrypt=Strict，请安装%2。</source>
        <translation>The driver &quot;%1&quot; does not support Encrypt=Strict. Install %2.</translation>
    </message>
    <message>
        <source>通过该提供程序只能打开 Access 数据库，不能打开工作簿、文本等其他文件。</source>
        <translation>This provider can open only Access databases, not workbooks, text files or other files.</translation>
    </message>
    <message>
        <source>找不到名为“%1”的 ODBC 数据源，可用的数据源有：%2。</source>
        <translation>ODBC data source &quot;%1&quot; not found. Available data sources: %2.</translation>
    </message>
    <message>
        <source>连接字符串中的 %1 必须是不小于 0 的秒数。</source>
        <translation>%1 in the connection string must be a number of seconds, 0 or more.</translation>
    </message>
    <message>
        <source>（无）</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>无法连接数据库服务器：%1</source>
        <translation>Cannot connect to the database server: %1</translation>
    </message>
    <message>
        <source>连接数据库服务器超时，请检查服务器地址和网络。（%1）</source>
        <translation>Connecting to the database server took too long. Check the server&apos;s address and the network. (%1)</translation>
    </message>
    <message>
        <source>数据库服务器拒绝登录，请检查用户名和密码。（%1）</source>
        <translation>The database server refused the login. Check the user name and the password. (%1)</translation>
    </message>
    <message>
        <source>与数据库服务器的连接已断开，请在服务器恢复后重试。（%1）</source>
        <translation>The connection to the database server was lost. Try again when the server is back. (%1)</translation>
    </message>
    <message>
        <source>数据库服务器没有在限定时间内完成操作。（%1）</source>
        <translation>The database server did not finish the operation within the time limit. (%1)</translation>
    </message>
    <message>
        <source>时限为 %1 秒</source>
        <translation>the limit is %1 s</translation>
    </message>
    <message>
        <source>没有执行此操作的数据库权限。（%1）</source>
        <translation>You do not have permission for this operation in the database. (%1)</translation>
    </message>
    <message>
        <source>只能打开返回记录的查询语句；该语句会修改数据库，没有执行。（%1）</source>
        <translation>Only statements that return records can be opened. This statement would change the database; it was not run. (%1)</translation>
    </message>
    <message>
        <source>数据库服务器中止了操作。（%1）</source>
        <translation>The database server stopped the operation. (%1)</translation>
    </message>
    <message>
        <source>没有可执行的 SQL 语句。</source>
        <translation>There is no SQL statement to run.</translation>
    </message>
    <message>
        <source>一次只能打开一条 SQL 语句，第一条语句之后还有其他内容；没有执行任何操作。</source>
        <translation>Only one SQL statement can be opened at a time, and something follows the first one. Nothing was run.</translation>
    </message>
    <message>
        <source>SQL 语句的第 %1 个字符是控制字符，或者使注释或字符串的结尾不明确（编码 U+%2）；没有执行任何操作。</source>
        <translation>Character %1 of the SQL statement is a control character, or makes it unclear where a comment or a text ends (code U+%2). Nothing was run.</translation>
    </message>
    <message>
        <source>只能打开返回记录的查询语句；该语句会修改数据库或不返回记录，没有执行。</source>
        <translation>Only statements that return records can be opened. This statement would change the database or returns no records; it was not run.</translation>
    </message>
    <message>
        <source>SQL 语句中的参数“%1”没有值。</source>
        <translation>The parameter &quot;%1&quot; in the SQL statement has no value.</translation>
    </message>
    <message>
        <source>操作已取消。</source>
        <translation>The operation was cancelled.</translation>
    </message>
    <message>
        <source>内存不足，无法读取全部记录。</source>
        <translation>There is not enough memory to read all records.</translation>
    </message>
    <message>
        <source>内存不足，没有保存任何更改。</source>
        <translation>There is not enough memory. No changes were saved.</translation>
    </message>
    <message>
        <source>记录太多，内存放不下，又无法写入临时文件夹：%1（%2）</source>
        <translation>There are too many records to hold in memory, and the temporary folder cannot be written: %1 (%2)</translation>
    </message>
    <message>
        <source>SQL 语句有误：%1</source>
        <translation>Error in the SQL statement: %1</translation>
    </message>
    <message>
        <source>找不到表或视图：%1</source>
        <translation>Table or view not found: %1</translation>
    </message>
    <message>
        <source>数据库正被其他程序锁定，请稍后重试。（%1）</source>
        <translation>The database is locked by another program. Try again later. (%1)</translation>
    </message>
    <message>
        <source>操作违反了数据库的约束：%1</source>
        <translation>The operation violates a database constraint: %1</translation>
    </message>
    <message>
        <source>数据库是只读的，不能写入。（%1）</source>
        <translation>The database is read-only and cannot be written. (%1)</translation>
    </message>
    <message>
        <source>数据库文件已损坏或不是数据库文件。（%1）</source>
        <translation>The database file is damaged or is not a database file. (%1)</translation>
    </message>
    <message>
        <source>磁盘空间不足，无法完成操作。（%1）</source>
        <translation>There is not enough disk space for the operation. (%1)</translation>
    </message>
    <message>
        <source>数据库操作失败：%1</source>
        <translation>The database operation failed: %1</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message numerus="yes">
        <source>&lt;%1 字节&gt;</source>
        <translation>
            <numerusform>&lt;%1 byte&gt;</numerusform>
            <numerusform>&lt;%1 bytes&gt;</numerusform>
        </translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>这个记录集的上一项操作还在等待数据库，请稍后再试。</source>
        <translation>The last operation of this recordset is still waiting for the database. Try again later.</translation>
    </message>
    <message>
        <source>记录集已经打开，请先关闭。</source>
        <translation>The recordset is already open. Close it first.</translation>
    </message>
    <message>
        <source>记录集没有打开或已经关闭。</source>
        <translation>The recordset is not open, or it has been closed.</translation>
    </message>
    <message>
        <source>没有当前记录：已在第一条之前、最后一条之后，或者没有任何记录。</source>
        <translation>There is no current record: the position is before the first or after the last record, or there are no records.</translation>
    </message>
    <message>
        <source>当前记录已被删除，请先移动到其他记录。</source>
        <translation>The current record has been deleted. Move to another record first.</translation>
    </message>
    <message>
        <source>没有名称或序号为“%1”的字段。</source>
        <translation>There is no field with the name or number &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>记录号 %1 超出范围，应在 1 到 %2 之间。</source>
        <translation>Record number %1 is out of range. It must be from 1 to %2.</translation>
    </message>
    <message>
        <source>页号 %1 超出范围，应在 1 到 %2 之间。</source>
        <translation>Page number %1 is out of range. It must be from 1 to %2.</translation>
    </message>
    <message>
        <source>每页记录数必须大于 0。</source>
        <translation>The number of records per page must be greater than 0.</translation>
    </message>
    <message>
        <source>参数的值 %1 不在允许的范围内。</source>
        <translation>The argument has the value %1, which is not allowed.</translation>
    </message>
    <message>
        <source>只能删除当前记录。</source>
        <translation>Only the current record can be deleted.</translation>
    </message>
    <message>
        <source>打开记录集需要一个连接对象。</source>
        <translation>A connection object is needed to open a recordset.</translation>
    </message>
    <message>
        <source>记录集以只读方式打开，不能修改。</source>
        <translation>The recordset was opened read-only and cannot be changed.</translation>
    </message>
    <message>
        <source>Access 数据库在此系统上只能读取，不能修改或删除记录。</source>
        <translation>On this system, Access databases can only be read. Records cannot be changed or deleted.</translation>
    </message>
    <message>
        <source>查询结果不是直接来自数据库表，不能修改。</source>
        <translation>The result does not come directly from a table and cannot be changed.</translation>
    </message>
    <message>
        <source>查询结果来自多个表的连接或子查询，不能修改。</source>
        <translation>The result comes from a join or a subquery and cannot be changed.</translation>
    </message>
    <message>
        <source>查询结果来自视图“%1”，不能修改。</source>
        <translation>The result comes from the view &quot;%1&quot; and cannot be changed.</translation>
    </message>
    <message>
        <source>查询结果经过汇总，不能修改。</source>
        <translation>The result is grouped and cannot be changed.</translation>
    </message>
    <message>
        <source>查询结果去掉了重复记录（DISTINCT），不能修改。</source>
        <translation>The result has no duplicate records (DISTINCT) and cannot be changed.</translation>
    </message>
    <message>
        <source>查询结果由多个查询合并而成，不能修改。</source>
        <translation>The result combines several queries and cannot be changed.</translation>
    </message>
    <message>
        <source>字段“%1”是计算得出的，不能修改。</source>
        <translation>The field &quot;%1&quot; is computed and cannot be changed.</translation>
    </message>
    <message>
        <source>值“%1”不适合字段“%2”的数据类型。</source>
        <translation>The value &quot;%1&quot; does not fit the data type of the field &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>二进制数据</source>
        <translation>binary data</translation>
    </message>
    <message>
        <source>新记录还没有填写任何内容，再次插入空行的操作已取消。</source>
        <translation>Nothing has been entered in the new record yet. Adding another empty row was cancelled.</translation>
    </message>
    <message>
        <source>新记录必须填写主键字段 %1，没有保存任何更改。</source>
        <translation>A new record needs a value for the key field %1. No changes were saved.</translation>
    </message>
    <message>
        <source>记录已被其他用户修改或删除，没有保存任何更改，请刷新后重试。</source>
        <translation>Another user has changed or deleted the record. No changes were saved. Refresh and try again.</translation>
    </message>
    <message>
        <source>记录已被其他用户修改，没有保存任何更改，请查看新内容后重试。</source>
        <translation>Another user has changed the record. No changes were saved. Look at the new values and try again.</translation>
    </message>
    <message>
        <source>记录已被其他用户删除，无法重新读取。</source>
        <translation>Another user has deleted the record. It cannot be read again.</translation>
    </message>
    <message>
        <source>数据库没有执行该更改（可能被触发器或规则阻止），没有保存任何更改。</source>
        <translation>The database did not make the change (a trigger or a rule may have prevented it). No changes were saved.</translation>
    </message>
    <message>
        <source>数据库保存的值与填写的不同，因而无法再找到该记录，没有保存任何更改。</source>
        <translation>The database stored values that differ from those entered, so the record cannot be found again. No changes were saved.</translation>
    </message>
    <message>
        <source>表“%1”既没有主键，又不支持事务，无法安全地修改。</source>
        <translation>The table &quot;%1&quot; has no primary key and no transactions, so it cannot be changed safely.</translation>
    </message>
    <message>
        <source>表的结构已被其他程序更改，没有保存任何更改，请刷新后重试。</source>
        <translation>Another program has changed the structure of the table. No changes were saved. Refresh and try again.</translation>
    </message>
    <message>
        <source>无法唯一确定要修改的记录（有 %1 条相同的记录），没有保存任何更改。</source>
        <translation>It is not certain which record to change (%1 records are the same). No changes were saved.</translation>
    </message>
    <message>
        <source>流已经打开，请先关闭。</source>
        <translation>The stream is already open. Close it first.</translation>
    </message>
    <message>
        <source>流没有打开或已经关闭。</source>
        <translation>The stream is not open, or it has been closed.</translation>
    </message>
    <message>
        <source>流的类型（Type）不允许此操作。</source>
        <translation>The type of the stream does not allow this operation.</translation>
    </message>
    <message>
        <source>只有在流的开头才能更改它的类型。</source>
        <translation>The type of a stream can be changed only at its beginning.</translation>
    </message>
    <message>
        <source>文件已经存在：%1</source>
        <translation>The file already exists: %1</translation>
    </message>
    <message>
        <source>无法写入文件：%1（%2）</source>
        <translation>Cannot write the file: %1 (%2)</translation>
    </message>
    <message>
        <source>该书签不属于这个记录集。</source>
        <translation>The bookmark does not belong to this recordset.</translation>
    </message>
    <message>
        <source>条件“%1”有误，应为“字段 运算符 值”，并可用 AND、OR 和括号连接。</source>
        <translation>The condition &quot;%1&quot; is wrong. Write &quot;field operator value&quot;, joined with AND, OR and parentheses.</translation>
    </message>
    <message>
        <source>查找条件“%1”有误，只能是一个“字段 运算符 值”。</source>
        <translation>The search condition &quot;%1&quot; is wrong. It must be one &quot;field operator value&quot;.</translation>
    </message>
    <message>
        <source>排序“%1”有误，应为“字段 ASC”或“字段 DESC”，以逗号分隔。</source>
        <translation>The sort &quot;%1&quot; is wrong. Write &quot;field ASC&quot; or &quot;field DESC&quot;, separated by commas.</translation>
    </message>
    <message>
        <source>字段名与值的个数必须相同。</source>
        <translation>There must be as many values as field names.</translation>
    </message>
    <message>
        <source>只能按条件或书签筛选，不能按批量更新的状态筛选。</source>
        <translation>Records can be filtered by a condition or by bookmarks, not by the state of a batch update.</translation>
    </message>
    <message>
        <source>表格正在显示这个记录集，不能重新查询，请使用表格的 IsLoadData。</source>
        <translation>The grid shows this recordset, so it cannot be queried again. Use IsLoadData of the grid.</translation>
    </message>
    <message>
        <source>记录集只能保存为 XML（格式 1）或 CSV（格式 2）。</source>
        <translation>A recordset can be saved only as XML (format 1) or CSV (format 2).</translation>
    </message>
    <message>
        <source>只支持格式 2（文本）。</source>
        <translation>Only format 2 (text) is supported.</translation>
    </message>
    <message>
        <source>这是记录集的副本，不能修改。</source>
        <translation>This is a copy of the recordset and cannot be changed.</translation>
    </message>
    <message>
        <source>上次保存这条新记录时连接中断，其主键未知，无法核对是否已经保存。再次保存可能会重复。</source>
        <translation>The connection to the database was lost when this new record was saved last. Its primary key is unknown, so the program cannot check whether the record was saved. Saving it again may save it twice.</translation>
    </message>
    <message>
        <source>上次保存这条新记录时连接中断，现在主键相同的记录与它不同，无法确定是否同一条。再次保存可能会重复。</source>
        <translation>The connection to the database was lost when this new record was saved last. The record that now has its primary key is different: either this record was saved and then changed, or it is another record. Saving it again may save it twice.</translation>
    </message>
    <message>
        <source>当前记录有尚未保存的修改，不能关闭记录集。</source>
        <translation>The current record has unsaved changes, so the recordset cannot be closed.</translation>
    </message>
    <message>
        <source>数据库文件已被移动、删除或替换，没有保存任何更改，请重新打开。</source>
        <translation>The database file was moved, deleted or replaced. Nothing was saved; load the data again.</translation>
    </message>
    <message>
        <source>保存时与数据库的连接中断，无法确定更改是否已经保存。重试时会先核对。（%1）</source>
        <translation>The connection to the database was lost while saving. It is not known whether the change was saved; a retry checks first. (%1)</translation>
    </message>
    <message>
        <source>更改可能已经保存，但无法再读取该记录。重试时会先核对。（%1）</source>
        <translation>The change may have been saved, but the record cannot be read again. A retry checks first. (%1)</translation>
    </message>
    <message>
        <source>字段“%1”的内容中有空字符（U+0000），此数据库不能保存，请去掉它。</source>
        <translation>The text for the field &quot;%1&quot; contains a null character (U+0000), which this database cannot store. Remove it.</translation>
    </message>
    <message>
        <source>字段“%1”不能为空。</source>
        <translation>The field &quot;%1&quot; cannot be empty.</translation>
    </message>
    <message>
        <source>记录逐条保存，不能成批更新。</source>
        <translation>Records are saved one by one, not in batches.</translation>
    </message>
    <message>
        <source>一条语句只有一个结果。</source>
        <translation>A statement has only one result.</translation>
    </message>
    <message>
        <source>条件“%1”有误，#…# 中的日期或时间只能用 = &lt;&gt; &lt; &lt;= &gt; &gt;= 与日期或时间字段比较。</source>
        <translation>The condition &quot;%1&quot; is wrong. A date or time in #…# can only be compared with a date or time field, by = &lt;&gt; &lt; &lt;= &gt; &gt;=.</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::CellTexts</name>
    <message>
        <source>%1，%2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>空值</source>
        <translation>no value</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::ColumnCommand</name>
    <message>
        <source>适合宽度(&amp;W)</source>
        <translation>Fit &amp;Width</translation>
    </message>
    <message>
        <source>全部适合(&amp;L)</source>
        <translation>Fit A&amp;ll Columns</translation>
    </message>
    <message>
        <source>还原宽度(&amp;R)</source>
        <translation>&amp;Restore Widths</translation>
    </message>
    <message>
        <source>按此列筛选(&amp;F)…</source>
        <translation>&amp;Filter by This Column…</translation>
    </message>
    <message>
        <source>格式(&amp;O)…</source>
        <translation>F&amp;ormat…</translation>
    </message>
    <message>
        <source>冻结到此列(&amp;Z)</source>
        <translation>Free&amp;ze up to This Column</translation>
    </message>
    <message>
        <source>隐藏此列(&amp;H)</source>
        <translation>&amp;Hide This Column</translation>
    </message>
    <message>
        <source>升序(&amp;A)</source>
        <translation>Sort &amp;Ascending</translation>
    </message>
    <message>
        <source>降序(&amp;D)</source>
        <translation>Sort &amp;Descending</translation>
    </message>
    <message>
        <source>加入排序(&amp;I)</source>
        <translation>Add &amp;to Sort</translation>
    </message>
    <message>
        <source>取消排序(&amp;C)</source>
        <translation>&amp;Clear Sort</translation>
    </message>
    <message>
        <source>左移(&amp;B)</source>
        <translation>&amp;Move Left</translation>
    </message>
    <message>
        <source>右移(&amp;N)</source>
        <translation>Mo&amp;ve Right</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::Command</name>
    <message>
        <source>增加记录(&amp;N)</source>
        <translation>Add &amp;New Record</translation>
    </message>
    <message>
        <source>全部字段</source>
        <translation>All Fields</translation>
    </message>
    <message>
        <source>显示全部字段</source>
        <translation>Show all fields</translation>
    </message>
    <message>
        <source>全部字段(&amp;A)</source>
        <translation>&amp;All Fields</translation>
    </message>
    <message>
        <source>显示全部字段(&amp;A)</source>
        <translation>Show &amp;All Fields</translation>
    </message>
    <message>
        <source>按选定内容筛选(&amp;C)</source>
        <translation>Filter &amp;by Selected Cell</translation>
    </message>
    <message>
        <source>按选定内容筛选(&amp;F)</source>
        <translation>&amp;Filter by Selected Cell</translation>
    </message>
    <message>
        <source>复制(&amp;Y)</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>复制(&amp;C)</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>复制（含标题）(&amp;H)</source>
        <translation>Copy with &amp;Headings</translation>
    </message>
    <message>
        <source>INSERT 语句(&amp;I)</source>
        <translation>&amp;INSERT Statements</translation>
    </message>
    <message>
        <source>IN 列表(&amp;L)</source>
        <translation>IN &amp;List</translation>
    </message>
    <message>
        <source>删除记录(&amp;D)</source>
        <translation>&amp;Delete Record</translation>
    </message>
    <message>
        <source>导出(&amp;E)…</source>
        <translation>&amp;Export…</translation>
    </message>
    <message>
        <source>筛选</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>按条件筛选记录</source>
        <translation>Filter the records by conditions</translation>
    </message>
    <message>
        <source>筛选(&amp;F)</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>在结果中筛选</source>
        <translation>Within Result</translation>
    </message>
    <message>
        <source>按下时在当前结果中继续筛选，弹起时从最初的结果筛选</source>
        <translation>When pressed, filters within the current result; otherwise filters the original result</translation>
    </message>
    <message>
        <source>在表格中查找(&amp;G)…</source>
        <translation>Find in &amp;Grid…</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>返回上一步的结果</source>
        <translation>Go back to the previous result</translation>
    </message>
    <message>
        <source>最初</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>返回最初的结果</source>
        <translation>Go back to the original result</translation>
    </message>
    <message>
        <source>前进(&amp;W)</source>
        <translation>For&amp;ward</translation>
    </message>
    <message>
        <source>历史(&amp;Z)…</source>
        <translation>&amp;Query History…</translation>
    </message>
    <message>
        <source>首页</source>
        <translation>First</translation>
    </message>
    <message>
        <source>第一页</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>上页</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>下页</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>末页</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>最后一页</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>部分字段</source>
        <translation>Some Fields</translation>
    </message>
    <message>
        <source>只显示选定的部分字段</source>
        <translation>Show only the chosen fields</translation>
    </message>
    <message>
        <source>部分字段(&amp;P)</source>
        <translation>So&amp;me Fields</translation>
    </message>
    <message>
        <source>显示部分字段(&amp;P)</source>
        <translation>Show So&amp;me Fields</translation>
    </message>
    <message>
        <source>打印(&amp;I)…</source>
        <translation>&amp;Print…</translation>
    </message>
    <message>
        <source>快速筛选</source>
        <translation>Quick Filter</translation>
    </message>
    <message>
        <source>在所有字段中查找</source>
        <translation>Search in all fields</translation>
    </message>
    <message>
        <source>选择字段</source>
        <translation>Choose Fields</translation>
    </message>
    <message>
        <source>选择要显示的字段</source>
        <translation>Choose the fields to show</translation>
    </message>
    <message>
        <source>查看内容(&amp;V)…</source>
        <translation>View Va&amp;lue…</translation>
    </message>
    <message>
        <source>单条记录</source>
        <translation>Single Record</translation>
    </message>
    <message>
        <source>以列表方式查看当前记录</source>
        <translation>Show the current record as a list</translation>
    </message>
    <message>
        <source>单条记录(&amp;R)</source>
        <translation>Single &amp;Record</translation>
    </message>
    <message>
        <source>全部记录</source>
        <translation>All Records</translation>
    </message>
    <message>
        <source>返回全部记录</source>
        <translation>Go back to all records</translation>
    </message>
    <message>
        <source>全部记录(&amp;R)</source>
        <translation>All &amp;Records</translation>
    </message>
    <message>
        <source>排序</source>
        <translation>Sort</translation>
    </message>
    <message>
        <source>选择排序字段</source>
        <translation>Choose the fields to sort by</translation>
    </message>
    <message>
        <source>排序(&amp;O)</source>
        <translation>S&amp;ort</translation>
    </message>
    <message>
        <source>上一条记录(&amp;K)</source>
        <translation>Pre&amp;vious Record</translation>
    </message>
    <message>
        <source>下一条记录(&amp;J)</source>
        <translation>Ne&amp;xt Record</translation>
    </message>
    <message>
        <source>整表</source>
        <translation>Whole Table</translation>
    </message>
    <message>
        <source>清除筛选条件，显示整个表</source>
        <translation>Remove the filter and show the whole table</translation>
    </message>
    <message>
        <source>显示整表(&amp;T)</source>
        <translation>Whole &amp;Table</translation>
    </message>
    <message>
        <source>压缩显示</source>
        <translation>Fit Columns</translation>
    </message>
    <message>
        <source>调整列宽，使所有列都能看到；再按一次恢复原来的列宽</source>
        <translation>Make all columns visible by fitting their widths; press again to restore the widths</translation>
    </message>
    <message>
        <source>全屏</source>
        <translation>Full Screen</translation>
    </message>
    <message>
        <source>全屏显示</source>
        <translation>Show in full screen</translation>
    </message>
    <message>
        <source>全屏显示(&amp;S)</source>
        <translation>F&amp;ull Screen</translation>
    </message>
    <message>
        <source>复制为新记录(&amp;Q)</source>
        <translation>Cop&amp;y as New Record</translation>
    </message>
    <message>
        <source>打开链接(&amp;L)</source>
        <translation>Open L&amp;ink</translation>
    </message>
    <message>
        <source>标出空值(&amp;B)</source>
        <translation>Mar&amp;k Nulls</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::ExportTexts</name>
    <message>
        <source>结果已改变，没有写完。</source>
        <translation>The result has changed. The file was not completed.</translation>
    </message>
    <message>
        <source>无法写入文件“%1”：%2</source>
        <translation>Cannot write the file &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>无法从文件名“%1”得知格式。可用的扩展名：%2。</source>
        <translation>The file name &quot;%1&quot; has no known extension. Available extensions: %2.</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>此系统没有编码 %1。</source>
        <translation>This system does not have the encoding %1.</translation>
    </message>
    <message>
        <source>编码 %1 不能表示其中的字符。</source>
        <translation>The encoding %1 cannot represent some of the characters.</translation>
    </message>
    <message>
        <source>XLSX 最多有 %1 列，而结果有 %2 列。</source>
        <translation>XLSX has at most %1 columns, but the result has %2.</translation>
    </message>
    <message>
        <source>无法生成 XLSX：%1</source>
        <translation>Cannot create the XLSX file: %1</translation>
    </message>
    <message numerus="yes">
        <source>有 %1 个内容超过 XLSX 单元格的上限（32767 个字符），只写入了前面的部分。</source>
        <translation>
            <numerusform>%1 value is longer than an XLSX cell can hold (32767 characters). Only its beginning was written.</numerusform>
            <numerusform>%1 values are longer than an XLSX cell can hold (32767 characters). Only their beginnings were written.</numerusform>
        </translation>
    </message>
    <message>
        <source>无法识别导出选项“%1=%2”。</source>
        <translation>Unknown export option &quot;%1=%2&quot;.</translation>
    </message>
    <message>
        <source>数据</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>数据 %1</source>
        <translation>Data %1</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::FilterTexts</name>
    <message>
        <source>等于</source>
        <translation>equals</translation>
    </message>
    <message>
        <source>不等于</source>
        <translation>does not equal</translation>
    </message>
    <message>
        <source>大于</source>
        <translation>is greater than</translation>
    </message>
    <message>
        <source>小于</source>
        <translation>is less than</translation>
    </message>
    <message>
        <source>大于或等于</source>
        <translation>is at least</translation>
    </message>
    <message>
        <source>小于或等于</source>
        <translation>is at most</translation>
    </message>
    <message>
        <source>介于</source>
        <translation>is between</translation>
    </message>
    <message>
        <source>在列表中</source>
        <translation>is in list</translation>
    </message>
    <message>
        <source>包含</source>
        <translation>contains</translation>
    </message>
    <message>
        <source>开头是</source>
        <translation>begins with</translation>
    </message>
    <message>
        <source>结尾是</source>
        <translation>ends with</translation>
    </message>
    <message>
        <source>为空</source>
        <translation>is empty</translation>
    </message>
    <message>
        <source>不为空</source>
        <translation>is not empty</translation>
    </message>
    <message>
        <source>不包含</source>
        <translation>does not contain</translation>
    </message>
    <message>
        <source>开头不是</source>
        <translation>does not begin with</translation>
    </message>
    <message>
        <source>结尾不是</source>
        <translation>does not end with</translation>
    </message>
    <message>
        <source>不在列表中</source>
        <translation>is not in list</translation>
    </message>
    <message>
        <source>不介于</source>
        <translation>is not between</translation>
    </message>
    <message>
        <source>重复的值</source>
        <translation>repeated values</translation>
    </message>
    <message>
        <source>前 N 个</source>
        <translation>top N</translation>
    </message>
    <message>
        <source>后 N 个</source>
        <translation>bottom N</translation>
    </message>
    <message>
        <source>左括号</source>
        <translation>Opening bracket</translation>
    </message>
    <message>
        <source>右括号</source>
        <translation>Closing bracket</translation>
    </message>
    <message>
        <source>字段</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>比较方式</source>
        <translation>Comparison</translation>
    </message>
    <message>
        <source>值</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>结束值</source>
        <translation>End value</translation>
    </message>
    <message>
        <source>到</source>
        <translation>and</translation>
    </message>
    <message>
        <source>与下一个条件的关系</source>
        <translation>Relation to the next condition</translation>
    </message>
    <message>
        <source>并且</source>
        <translation>and</translation>
    </message>
    <message>
        <source>或者</source>
        <translation>or</translation>
    </message>
    <message>
        <source>删除这个条件</source>
        <translation>Delete this condition</translation>
    </message>
    <message>
        <source>从列表中选择（Alt+↓）</source>
        <translation>Choose from a list (Alt+↓)</translation>
    </message>
    <message>
        <source>从列表中选择（Shift+F4）</source>
        <translation>Choose from a list (Shift+F4)</translation>
    </message>
    <message>
        <source>选择日期（Alt+↓）</source>
        <translation>Choose a date (Alt+↓)</translation>
    </message>
    <message>
        <source>非</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>只显示不符合这个条件的记录</source>
        <translation>Show only the records that do not meet this condition</translation>
    </message>
    <message>
        <source>也包括空值</source>
        <translation>Also empty values</translation>
    </message>
    <message>
        <source>该字段没有值的记录也显示</source>
        <translation>Also show the records without a value in this field</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>今天</source>
        <translation>today</translation>
    </message>
    <message>
        <source>昨天</source>
        <translation>yesterday</translation>
    </message>
    <message>
        <source>本周</source>
        <translation>this week</translation>
    </message>
    <message>
        <source>上周</source>
        <translation>last week</translation>
    </message>
    <message>
        <source>本月</source>
        <translation>this month</translation>
    </message>
    <message>
        <source>上月</source>
        <translation>last month</translation>
    </message>
    <message>
        <source>本季</source>
        <translation>this quarter</translation>
    </message>
    <message>
        <source>今年</source>
        <translation>this year</translation>
    </message>
    <message>
        <source>去年</source>
        <translation>last year</translation>
    </message>
    <message>
        <source>最近 %1 天</source>
        <translation>last %1 days</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>【%1】</source>
        <translation>[%1]</translation>
    </message>
    <message>
        <source>%1 至 %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1（%2）</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1是 %2 之一</source>
        <translation>%1 is one of (%2)</translation>
    </message>
    <message>
        <source>%1不是 %2 之一</source>
        <translation>%1 is not one of (%2)</translation>
    </message>
    <message>
        <source>%1%2 %3 和 %4 之间</source>
        <translation>%1 %2 %3 and %4</translation>
    </message>
    <message>
        <source>%1的值有重复</source>
        <translation>%1 has repeated values</translation>
    </message>
    <message>
        <source>并非（%1）</source>
        <translation>not (%1)</translation>
    </message>
    <message>
        <source>（也包括空值）</source>
        <translation> (or is empty)</translation>
    </message>
    <message>
        <source>，并且</source>
        <translation>, and </translation>
    </message>
    <message>
        <source>，或者</source>
        <translation>, or </translation>
    </message>
    <message>
        <source>（%1）</source>
        <translation>(%1)</translation>
    </message>
    <message>
        <source>。</source>
        <translation>.</translation>
    </message>
    <message>
        <source>数字</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>例如 2024-01-31、2024-03 或“本月”</source>
        <translation>2024-01-31, 2024-03 or &quot;today&quot;</translation>
    </message>
    <message>
        <source>例如 08:30</source>
        <translation>For example 08:30</translation>
    </message>
    <message>
        <source>例如 2024-01-31、2024-01-31 08:30 或“本月”</source>
        <translation>2024-01-31, 2024-01-31 08:30 or &quot;today&quot;</translation>
    </message>
    <message>
        <source>“是”或“否”</source>
        <translation>&quot;Yes&quot; or &quot;No&quot;</translation>
    </message>
    <message>
        <source>多个值用逗号分隔</source>
        <translation>Separate several values with commas</translation>
    </message>
    <message>
        <source>个数，并列的值都包括</source>
        <translation>How many; ties are included</translation>
    </message>
    <message>
        <source>没有可以筛选的字段。</source>
        <translation>There is no field to filter by.</translation>
    </message>
    <message>
        <source>这里不能比较各条记录。</source>
        <translation>Records cannot be compared with each other here.</translation>
    </message>
    <message>
        <source>请输入值。</source>
        <translation>Enter a value.</translation>
    </message>
    <message>
        <source>“%1”不是数字。</source>
        <translation>&quot;%1&quot; is not a number.</translation>
    </message>
    <message>
        <source>“%1”不是日期，请按 2024-01-31 的形式输入。</source>
        <translation>&quot;%1&quot; is not a date. Enter it like 2024-01-31.</translation>
    </message>
    <message>
        <source>“%1”不是时间，请按 08:30 的形式输入。</source>
        <translation>&quot;%1&quot; is not a time. Enter it like 08:30.</translation>
    </message>
    <message>
        <source>“%1”不是日期或时间，请按 2024-01-31 或 2024-01-31 08:30 的形式输入。</source>
        <translation>&quot;%1&quot; is not a date or time. Enter it like 2024-01-31 or 2024-01-31 08:30.</translation>
    </message>
    <message>
        <source>“%1”不是个数，请输入从 1 开始的整数。</source>
        <translation>&quot;%1&quot; is not a count. Enter a whole number from 1.</translation>
    </message>
    <message>
        <source>“%1”不是“是”或“否”。</source>
        <translation>&quot;%1&quot; is neither &quot;Yes&quot; nor &quot;No&quot;.</translation>
    </message>
    <message>
        <source>结束值小于开始值。</source>
        <translation>The end value is less than the start value.</translation>
    </message>
    <message>
        <source>括号不配对。</source>
        <translation>The brackets do not match.</translation>
    </message>
    <message>
        <source>这里没有该筛选用到的字段“%1”，或者不能这样比较它。</source>
        <translation>The field &quot;%1&quot; that this filter uses does not exist here, or cannot be compared in this way.</translation>
    </message>
    <message>
        <source>放弃已输入的条件吗？</source>
        <translation>Discard the conditions that you have entered?</translation>
    </message>
    <message>
        <source>添加条件(&amp;D)</source>
        <translation>A&amp;dd Condition</translation>
    </message>
    <message>
        <source>条件语句(&amp;T):</source>
        <translation>Condition s&amp;tatement:</translation>
    </message>
    <message>
        <source>条件语句</source>
        <translation>Condition statement</translation>
    </message>
    <message>
        <source>随上面的条件自动生成，熟悉 SQL 时也可以直接修改</source>
        <translation>Generated from the conditions above; if you know SQL, you can also edit it</translation>
    </message>
    <message>
        <source>条件语句已手工修改，上面的条件暂不起作用。</source>
        <translation>The statement was edited. The conditions above are ignored for now.</translation>
    </message>
    <message>
        <source>恢复自动生成(&amp;R)</source>
        <translation>&amp;Restore from Conditions</translation>
    </message>
    <message>
        <source>请输入条件。</source>
        <translation>Enter a condition.</translation>
    </message>
    <message>
        <source>条件语句中不能出现“ORDER BY”。</source>
        <translation>The condition must not contain &quot;ORDER BY&quot;.</translation>
    </message>
    <message>
        <source>请先改正标出的条件。</source>
        <translation>Correct the marked conditions first.</translation>
    </message>
    <message>
        <source>无法读取字段：%1</source>
        <translation>Cannot read the fields: %1</translation>
    </message>
    <message>
        <source>无法读取已有的值：%1</source>
        <translation>Cannot read the existing values: %1</translation>
    </message>
    <message>
        <source>正在读取…（Esc 取消）</source>
        <translation>Reading… (Esc cancels)</translation>
    </message>
    <message>
        <source>更多…</source>
        <translation>More…</translation>
    </message>
    <message>
        <source>更多…（还有 %1 个）</source>
        <translation>More… (%1 left)</translation>
    </message>
    <message>
        <source>%1 秒内没有读完已有的值，请直接输入。</source>
        <translation>The existing values could not be read within %1 s. Enter the value yourself.</translation>
    </message>
    <message>
        <source>%1 秒内没有读完已有的值，只列出前面一部分记录中的值。</source>
        <translation>The existing values could not be read within %1 s. Only the values of the first records are listed.</translation>
    </message>
    <message>
        <source>该字段还没有任何值。</source>
        <translation>This field has no existing values.</translation>
    </message>
    <message>
        <source>筛选</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>只显示符合下列条件的记录</source>
        <translation>Show only the records that meet these conditions</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>当前使用数据表</source>
        <translation>Table in use</translation>
    </message>
    <message>
        <source>筛选(&amp;F)</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>%1%2%3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>%1%2 %3</source>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>%1%2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>搜索(&amp;S):</source>
        <translation>&amp;Search:</translation>
    </message>
    <message>
        <source>输入文字查找值</source>
        <translation>Type text to find values</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>All</translation>
    </message>
    <message>
        <source>全选搜索结果</source>
        <translation>All found values</translation>
    </message>
    <message>
        <source>记录数</source>
        <translation>Records</translation>
    </message>
    <message>
        <source>（空值）</source>
        <translation>(empty)</translation>
    </message>
    <message>
        <source>（有值）</source>
        <translation>(not empty)</translation>
    </message>
    <message>
        <source>%1年</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>%1月</source>
        <translation>month %1</translation>
    </message>
    <message>
        <source>%1日</source>
        <translation>day %1</translation>
    </message>
    <message>
        <source>正在读取该字段的值…</source>
        <translation>Reading the values of this field…</translation>
    </message>
    <message>
        <source>停止(&amp;T)</source>
        <translation>S&amp;top</translation>
    </message>
    <message>
        <source>已停止读取。可以输入文字搜索。</source>
        <translation>Reading was stopped. You can type text to search for.</translation>
    </message>
    <message>
        <source>只列出前 %1 个值，其余的请用搜索查找</source>
        <translation>Only the first %1 values are listed; search for others</translation>
    </message>
    <message>
        <source>共 %2 个值，只列出前 %1 个，其余的请用搜索查找</source>
        <translation>Only the first %1 of %2 values are listed; search for others</translation>
    </message>
    <message>
        <source>没有包含“%1”的值</source>
        <translation>No value contains &quot;%1&quot;</translation>
    </message>
    <message>
        <source>请至少选择一个值。</source>
        <translation>Choose at least one value.</translation>
    </message>
    <message>
        <source>按列筛选：%1</source>
        <translation>Filter by column: %1</translation>
    </message>
    <message>
        <source>按条件筛选(&amp;C)…</source>
        <translation>Filter by &amp;Conditions…</translation>
    </message>
    <message>
        <source>%1年%2月%3日</source>
        <translation>%1-%2-%3</translation>
    </message>
    <message>
        <source>选择“%1”的值</source>
        <translation>Values of &quot;%1&quot;</translation>
    </message>
    <message>
        <source>符合条件的记录数</source>
        <translation>Number of records that meet the condition</translation>
    </message>
    <message numerus="yes">
        <source>约 %1 条</source>
        <translation>
            <numerusform>about %1 record</numerusform>
            <numerusform>about %1 records</numerusform>
        </translation>
    </message>
    <message>
        <source>正在计数…</source>
        <translation>Counting…</translation>
    </message>
    <message>
        <source>停止计数</source>
        <translation>Stop counting</translation>
    </message>
    <message>
        <source>无法计数</source>
        <translation>Not counted</translation>
    </message>
    <message>
        <source>按组显示(&amp;G)</source>
        <translation>Show &amp;groups</translation>
    </message>
    <message>
        <source>用缩进的组代替括号，组可以拖动</source>
        <translation>Indented groups instead of brackets; groups can be dragged</translation>
    </message>
    <message>
        <source>加上括号(&amp;K)</source>
        <translation>Add Brac&amp;kets</translation>
    </message>
    <message>
        <source>没有括号时先算“并且”。单击可加上括号，条件的含义不变。</source>
        <translation>Without brackets, &quot;and&quot; takes precedence over &quot;or&quot;. Adds brackets that show this; the meaning of the condition does not change.</translation>
    </message>
    <message>
        <source>移动（拖动，或按 ↑ ↓）</source>
        <translation>Move (drag, or press ↑ ↓)</translation>
    </message>
    <message>
        <source>组内条件的关系</source>
        <translation>How the conditions of the group are combined</translation>
    </message>
    <message>
        <source>且：全部符合</source>
        <translation>And: all are met</translation>
    </message>
    <message>
        <source>或：符合任何一个</source>
        <translation>Or: any is met</translation>
    </message>
    <message>
        <source>都不：一个也不符合</source>
        <translation>None is met</translation>
    </message>
    <message>
        <source>＋ 条件</source>
        <translation>+ Condition</translation>
    </message>
    <message>
        <source>在这一组中添加条件</source>
        <translation>Add a condition to this group</translation>
    </message>
    <message>
        <source>解散</source>
        <translation>Ungroup</translation>
    </message>
    <message>
        <source>解散这一组，保留其中的条件</source>
        <translation>Dissolve this group and keep its conditions</translation>
    </message>
    <message>
        <source>把这个条件放入新的组</source>
        <translation>Put this condition into a new group</translation>
    </message>
    <message>
        <source>已保存的筛选(&amp;M)</source>
        <translation>Sa&amp;ved Filters</translation>
    </message>
    <message>
        <source>使用、保存、重命名或删除该表的筛选条件</source>
        <translation>Use, save, rename or delete the filters of this table</translation>
    </message>
    <message>
        <source>最近使用(&amp;L)</source>
        <translation>&amp;Recently Used</translation>
    </message>
    <message>
        <source>保存当前条件(&amp;S)…</source>
        <translation>&amp;Save This Condition…</translation>
    </message>
    <message>
        <source>重命名(&amp;N)</source>
        <translation>Re&amp;name</translation>
    </message>
    <message>
        <source>删除(&amp;X)</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>筛选的名称</source>
        <translation>Name of the filter</translation>
    </message>
    <message>
        <source>保存筛选</source>
        <translation>Save Filter</translation>
    </message>
    <message>
        <source>重命名筛选</source>
        <translation>Rename Filter</translation>
    </message>
    <message>
        <source>删除筛选</source>
        <translation>Delete Filter</translation>
    </message>
    <message>
        <source>已有名为“%1”的筛选，替换它吗？</source>
        <translation>A filter named &quot;%1&quot; already exists. Replace it?</translation>
    </message>
    <message>
        <source>确实要删除筛选“%1”吗？</source>
        <translation>Delete the filter &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>该表已保存的筛选太多，请先删除一些。</source>
        <translation>This table has too many saved filters. Delete some first.</translation>
    </message>
    <message>
        <source>筛选文本太长。</source>
        <translation>The text with the filters is too long.</translation>
    </message>
    <message>
        <source>筛选文本不是有效的 JSON（第 %1 个字符：%2）。</source>
        <translation>The text with the filters is not valid JSON (character %1: %2).</translation>
    </message>
    <message>
        <source>筛选文本的格式不对：%1 缺少或无效。</source>
        <translation>The text with the filters has the wrong form: %1 is missing or invalid.</translation>
    </message>
    <message>
        <source>没有打开的结果，无法恢复筛选。</source>
        <translation>Nothing is open, so no filters can be restored.</translation>
    </message>
    <message>
        <source>显示 SQL(&amp;Q)</source>
        <translation>Show S&amp;QL</translation>
    </message>
    <message>
        <source>显示由条件生成的语句，可以直接修改</source>
        <translation>Shows the statement that the conditions make, which can be edited</translation>
    </message>
    <message>
        <source>记录太多，短时间内数不完。</source>
        <translation>There are too many records to count quickly.</translation>
    </message>
    <message>
        <source>%1是%2之一</source>
        <translation>%1 is one of (%2)</translation>
    </message>
    <message>
        <source>%1不是%2之一</source>
        <translation>%1 is not one of (%2)</translation>
    </message>
    <message>
        <source>%1%2%3和%4之间</source>
        <translation>%1 %2 %3 and %4</translation>
    </message>
    <message>
        <source>%1（条件 %2）</source>
        <translation>%1 (condition %2)</translation>
    </message>
    <message>
        <source>移动条件 %1，在第 %2 级</source>
        <translation>Move condition %1, on level %2</translation>
    </message>
    <message>
        <source>移动组 %1，在第 %2 级</source>
        <translation>Move group %1, on level %2</translation>
    </message>
    <message>
        <source>%1（组 %2）</source>
        <translation>%1 (group %2)</translation>
    </message>
    <message>
        <source>筛选文本是空的。</source>
        <translation>The text with the filters is empty.</translation>
    </message>
    <message>
        <source>保留：%1</source>
        <translation>Keep: %1</translation>
    </message>
    <message>
        <source>已经生效的条件。去掉勾选，筛选后就不再起作用。</source>
        <translation>A condition that is in force. Clear the tick to drop it when you filter.</translation>
    </message>
    <message numerus="yes">
        <source>%2是最大的 %1 个之一</source>
        <translation>
            <numerusform>%2 is the largest</numerusform>
            <numerusform>%2 is one of the %1 largest</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2是最小的 %1 个之一</source>
        <translation>
            <numerusform>%2 is the smallest</numerusform>
            <numerusform>%2 is one of the %1 smallest</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2是按顺序排在最前的 %1 个之一</source>
        <translation>
            <numerusform>%2 is the first in order</numerusform>
            <numerusform>%2 is one of the first %1 in order</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2是按顺序排在最后的 %1 个之一</source>
        <translation>
            <numerusform>%2 is the last in order</numerusform>
            <numerusform>%2 is one of the last %1 in order</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已选 %2 个值，共 %1 个</source>
        <translation>
            <numerusform>%2 of %1 value chosen</numerusform>
            <numerusform>%2 of %1 values chosen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::FormTexts</name>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>是(&amp;Y)</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>否(&amp;N)</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>放弃(&amp;D)</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>允许编辑(&amp;E)</source>
        <translation>Allow &amp;editing</translation>
    </message>
    <message>
        <source>勾选“允许编辑”后可以修改；不勾选时只供查看和复制。</source>
        <translation>Tick &quot;Allow editing&quot; to change the text. Otherwise you can only read and copy it.</translation>
    </message>
    <message>
        <source>选择显示字段</source>
        <translation>Choose Fields to Show</translation>
    </message>
    <message>
        <source>字段名称</source>
        <translation>Field name</translation>
    </message>
    <message>
        <source>查找(&amp;S):</source>
        <translation>&amp;Search:</translation>
    </message>
    <message>
        <source>输入字段名称的一部分</source>
        <translation>Type part of the field name</translation>
    </message>
    <message>
        <source>全选(&amp;A)</source>
        <translation>&amp;All</translation>
    </message>
    <message>
        <source>全不选(&amp;N)</source>
        <translation>&amp;None</translation>
    </message>
    <message>
        <source>反选(&amp;I)</source>
        <translation>&amp;Invert</translation>
    </message>
    <message>
        <source>只作用于列出的字段</source>
        <translation>Applies only to the listed fields</translation>
    </message>
    <message>
        <source>已选 %1 个，共 %2 个</source>
        <translation>%1 of %2 chosen</translation>
    </message>
    <message>
        <source>至少选择一列</source>
        <translation>Choose at least one column</translation>
    </message>
    <message>
        <source>选择排序字段</source>
        <translation>Choose Sort Fields</translation>
    </message>
    <message>
        <source>排序字段</source>
        <translation>Sort field</translation>
    </message>
    <message>
        <source>次序</source>
        <translation>Order</translation>
    </message>
    <message>
        <source>字段(&amp;F):</source>
        <translation>&amp;Field:</translation>
    </message>
    <message>
        <source>次序(&amp;R):</source>
        <translation>O&amp;rder:</translation>
    </message>
    <message>
        <source>添加(&amp;A)</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>该字段已在排序列表中</source>
        <translation>This field is already in the sort list</translation>
    </message>
    <message>
        <source>删除(&amp;D)</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>上移(&amp;U)</source>
        <translation>Move &amp;Up</translation>
    </message>
    <message>
        <source>下移(&amp;W)</source>
        <translation>Move Do&amp;wn</translation>
    </message>
    <message>
        <source>选择字段和次序，按“添加”加入排序列表。</source>
        <translation>Choose a field and an order, then press &quot;Add&quot;.</translation>
    </message>
    <message>
        <source>双击或按空格键切换升序和降序，拖动改变先后。</source>
        <translation>Double-click or press Space to switch between ascending and descending. Drag to change the order.</translation>
    </message>
    <message>
        <source>数据表</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>查找</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>输入查询内容（以空格分隔）</source>
        <translation>Words to search for, separated by spaces</translation>
    </message>
    <message>
        <source>查询内容(&amp;W):</source>
        <translation>Find &amp;what:</translation>
    </message>
    <message>
        <source>指定的字段名称（默认：全部）(&amp;N):</source>
        <translation>Field &amp;name (default: all):</translation>
    </message>
    <message>
        <source>指定的字段名称（默认：全部）</source>
        <translation>Field name (default: all)</translation>
    </message>
    <message>
        <source>查找(&amp;F)</source>
        <translation>&amp;Find</translation>
    </message>
    <message>
        <source>查看内容 - %1</source>
        <translation>Value - %1</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>十六进制</source>
        <translation>Hexadecimal</translation>
    </message>
    <message>
        <source>内容</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>在内容中查找（Enter 下一处）</source>
        <translation>Find in the value (Enter: next)</translation>
    </message>
    <message>
        <source>没有找到</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>第 %1 段，共 %2 段</source>
        <translation>Part %1 of %2</translation>
    </message>
    <message>
        <source>上一段(&amp;P)</source>
        <translation>&amp;Previous Part</translation>
    </message>
    <message>
        <source>下一段(&amp;N)</source>
        <translation>&amp;Next Part</translation>
    </message>
    <message>
        <source>空值（NULL）</source>
        <translation>No value (NULL)</translation>
    </message>
    <message numerus="yes">
        <source>%1 个字符</source>
        <translation>
            <numerusform>%1 character</numerusform>
            <numerusform>%1 characters</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 字节</source>
        <translation>
            <numerusform>%1 byte</numerusform>
            <numerusform>%1 bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 × %2 像素</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>超过 %1 个字符，不显示结构</source>
        <translation>longer than %1 characters, structure not shown</translation>
    </message>
    <message>
        <source>复制(&amp;C)</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>保存到文件(&amp;S)…</source>
        <translation>&amp;Save to File…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>保存到文件</source>
        <translation>Save to File</translation>
    </message>
    <message>
        <source>文件没有保存：%1</source>
        <translation>The file was not saved: %1</translation>
    </message>
    <message>
        <source>内容太长，不能复制；请保存到文件。</source>
        <translation>The value is too long to copy. Save it to a file.</translation>
    </message>
    <message>
        <source>显示格式</source>
        <translation>Display Format</translation>
    </message>
    <message>
        <source>列：%1</source>
        <translation>Column: %1</translation>
    </message>
    <message>
        <source>使用千位分隔符(&amp;T)</source>
        <translation>Use &amp;thousands separators</translation>
    </message>
    <message>
        <source>小数位数(&amp;D):</source>
        <translation>&amp;Decimal places:</translation>
    </message>
    <message>
        <source>按原样</source>
        <translation>as they are</translation>
    </message>
    <message>
        <source>示例：%1</source>
        <translation>Example: %1</translation>
    </message>
    <message>
        <source>只改变显示，复制、筛选和导出仍用原来的内容。</source>
        <translation>Changes only what is shown. Copying, filtering and exporting use the original values.</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>文件(&amp;F):</source>
        <translation>&amp;File:</translation>
    </message>
    <message>
        <source>浏览(&amp;B)…</source>
        <translation>&amp;Browse…</translation>
    </message>
    <message>
        <source>格式(&amp;T):</source>
        <translation>Forma&amp;t:</translation>
    </message>
    <message>
        <source>编码(&amp;D):</source>
        <translation>Enco&amp;ding:</translation>
    </message>
    <message>
        <source>CSV（逗号分隔）</source>
        <translation>CSV (comma-separated)</translation>
    </message>
    <message>
        <source>XLSX（电子表格）</source>
        <translation>XLSX (spreadsheet)</translation>
    </message>
    <message>
        <source>JSON Lines（每行一个对象）</source>
        <translation>JSON Lines (one object per line)</translation>
    </message>
    <message>
        <source>HTML（网页）</source>
        <translation>HTML (web page)</translation>
    </message>
    <message>
        <source>UTF-8（带 BOM）</source>
        <translation>UTF-8 (with BOM)</translation>
    </message>
    <message>
        <source>记录</source>
        <translation>Records</translation>
    </message>
    <message>
        <source>全部 %1 条(&amp;A)</source>
        <translation>&amp;All %1</translation>
    </message>
    <message>
        <source>选定的 %1 条(&amp;S)</source>
        <translation>&amp;Selected %1</translation>
    </message>
    <message>
        <source>字段</source>
        <translation>Fields</translation>
    </message>
    <message>
        <source>显示的 %1 个(&amp;W)</source>
        <translation>Sho&amp;wn %1</translation>
    </message>
    <message>
        <source>全部 %1 个(&amp;L)</source>
        <translation>A&amp;ll %1</translation>
    </message>
    <message>
        <source>第一行是字段名称(&amp;H)</source>
        <translation>First line contains field names (&amp;headings)</translation>
    </message>
    <message>
        <source>防止以 = + - @ 开头的文本被当作公式(&amp;G)</source>
        <translation>Prevent texts that be&amp;gin with = + - @ from becoming formulas</translation>
    </message>
    <message>
        <source>在这样的文本前加一个撇号，电子表格打开文件时不会执行它。</source>
        <translation>Puts an apostrophe before such texts, so that a spreadsheet does not run them when it opens the file.</translation>
    </message>
    <message>
        <source>导出(&amp;E)</source>
        <translation>&amp;Export</translation>
    </message>
    <message>
        <source>请指定文件。</source>
        <translation>Enter a file name.</translation>
    </message>
    <message>
        <source>文件“%1”已经存在，要替换它吗？</source>
        <translation>The file &quot;%1&quot; already exists. Replace it?</translation>
    </message>
    <message>
        <source>按原样（True 和 False）(&amp;A)</source>
        <translation>&amp;As it is (True and False)</translation>
    </message>
    <message>
        <source>“是”和“否”(&amp;Y)</source>
        <translation>&quot;&amp;Yes&quot; and &quot;No&quot;</translation>
    </message>
    <message>
        <source>方框 ☑ ☐(&amp;B)</source>
        <translation>&amp;Box ☑ ☐</translation>
    </message>
    <message>
        <source>文件名(&amp;N):</source>
        <translation>File &amp;name:</translation>
    </message>
    <message>
        <source>打开(&amp;O)</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>后退</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>前进</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>上一级文件夹</source>
        <translation>Parent folder</translation>
    </message>
    <message>
        <source>新建文件夹</source>
        <translation>New folder</translation>
    </message>
    <message>
        <source>新建文件夹(&amp;F)</source>
        <translation>New &amp;Folder</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>List</translation>
    </message>
    <message>
        <source>详细信息</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>重命名(&amp;R)</source>
        <translation>&amp;Rename</translation>
    </message>
    <message>
        <source>显示隐藏文件(&amp;H)</source>
        <translation>Show &amp;Hidden Files</translation>
    </message>
    <message>
        <source>找不到文件“%1”。</source>
        <translation>The file &quot;%1&quot; was not found.</translation>
    </message>
    <message>
        <source>文件列表</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>常用位置</source>
        <translation>Places</translation>
    </message>
    <message>
        <source>文件夹:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>文件类型:</source>
        <translation>File type:</translation>
    </message>
    <message>
        <source>按字段（%1 位）</source>
        <translation>as the field (%1)</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::GridTexts</name>
    <message>
        <source>字段名称</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>字段内容</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>此内容只读：它不是直接取自某个表中可以修改的字段，或者无法唯一确定所在的记录。</source>
        <translation>This value is read-only: it does not come directly from a field of one table that can be changed, or its record cannot be identified with certainty.</translation>
    </message>
    <message>
        <source>按 Ctrl+Enter 换行，按 Enter 确认</source>
        <translation>Ctrl+Enter starts a new line, Enter accepts</translation>
    </message>
    <message>
        <source>上一条记录</source>
        <translation>Previous record</translation>
    </message>
    <message>
        <source>下一条记录</source>
        <translation>Next record</translation>
    </message>
    <message>
        <source>输入的内容无效：</source>
        <translation>The input is not valid: </translation>
    </message>
    <message>
        <source>记录没有保存</source>
        <translation>Record Not Saved</translation>
    </message>
    <message>
        <source>查看新值(&amp;V)</source>
        <translation>&amp;View New Values</translation>
    </message>
    <message>
        <source>第 %1 条，共 %2 条</source>
        <translation>Record %1 of %2</translation>
    </message>
    <message>
        <source>新记录，共 %1 条</source>
        <translation>New record, %1 in all</translation>
    </message>
    <message>
        <source>（未保存）</source>
        <translation> (not saved)</translation>
    </message>
    <message>
        <source>&#x3000;</source>
        <translation>  </translation>
    </message>
    <message>
        <source>复制语句(&amp;C)</source>
        <translation>&amp;Copy Statement</translation>
    </message>
    <message>
        <source>选定行数</source>
        <translation>Selected rows</translation>
    </message>
    <message>
        <source>计数</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>求和</source>
        <translation>Sum</translation>
    </message>
    <message>
        <source>平均</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>最早</source>
        <translation>Earliest</translation>
    </message>
    <message>
        <source>最晚</source>
        <translation>Latest</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1：</source>
        <translation>%1: </translation>
    </message>
    <message>
        <source>单击数值可以复制</source>
        <translation>Click a value to copy it</translation>
    </message>
    <message>
        <source>已复制 %1</source>
        <translation>%1 copied</translation>
    </message>
    <message>
        <source>尚未加载数据</source>
        <translation>No data loaded yet</translation>
    </message>
    <message>
        <source>没有记录</source>
        <translation>No records</translation>
    </message>
    <message>
        <source>没有记录。按 Ctrl++ 增加第一条记录。</source>
        <translation>No records. Press Ctrl++ to add the first record.</translation>
    </message>
    <message>
        <source>没有符合条件的记录。按“后退”返回上一步的结果。</source>
        <translation>No records match. &quot;Back&quot; returns to the previous result.</translation>
    </message>
    <message>
        <source>数据命令</source>
        <translation>Data commands</translation>
    </message>
    <message>
        <source>数据</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>数据菜单</source>
        <translation>Data menu</translation>
    </message>
    <message>
        <source>筛选条件：%1</source>
        <translation>Filtered by: %1</translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
    <message>
        <source>当前记录</source>
        <translation>Current record</translation>
    </message>
    <message>
        <source>复制为(&amp;U)</source>
        <translation>Copy A&amp;s</translation>
    </message>
    <message>
        <source>复制为</source>
        <translation>Copy as</translation>
    </message>
    <message>
        <source>第 %1 排序字段，升序</source>
        <translation>ascending, number %1</translation>
    </message>
    <message>
        <source>第 %1 排序字段，降序</source>
        <translation>descending, number %1</translation>
    </message>
    <message>
        <source>已筛选</source>
        <translation>filtered</translation>
    </message>
    <message>
        <source>列菜单</source>
        <translation>Column menu</translation>
    </message>
    <message>
        <source>筛选条件</source>
        <translation>Filter conditions</translation>
    </message>
    <message>
        <source>移除条件：%1</source>
        <translation>Remove condition: %1</translation>
    </message>
    <message>
        <source>还有 %1 个</source>
        <translation>%1 more</translation>
    </message>
    <message>
        <source>在表格中查找</source>
        <translation>Find in the grid</translation>
    </message>
    <message>
        <source>查找内容</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>在哪一列查找</source>
        <translation>Which column to search</translation>
    </message>
    <message>
        <source>所有列</source>
        <translation>All columns</translation>
    </message>
    <message>
        <source>单元格匹配(&amp;L)</source>
        <translation>Who&amp;le cell</translation>
    </message>
    <message>
        <source>区分大小写(&amp;A)</source>
        <translation>M&amp;atch case</translation>
    </message>
    <message>
        <source>下一处（Enter）</source>
        <translation>Next (Enter)</translation>
    </message>
    <message>
        <source>上一处（Shift+Enter）</source>
        <translation>Previous (Shift+Enter)</translation>
    </message>
    <message>
        <source>关闭（Esc）</source>
        <translation>Close (Esc)</translation>
    </message>
    <message>
        <source>没有找到</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>共 %1 处</source>
        <translation>%1 found</translation>
    </message>
    <message>
        <source>第 %1 处，共 %2 处</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>（已从开头继续）</source>
        <translation> (continued from the start)</translation>
    </message>
    <message>
        <source>（已从末尾继续）</source>
        <translation> (continued from the end)</translation>
    </message>
    <message>
        <source>正在查找… %1%</source>
        <translation>Searching… %1%</translation>
    </message>
    <message>
        <source>历史</source>
        <translation>History</translation>
    </message>
    <message numerus="yes">
        <source>%1 条  %2</source>
        <translation>
            <numerusform>%1 record  %2</numerusform>
            <numerusform>%1 records  %2</numerusform>
        </translation>
    </message>
    <message>
        <source>（没有历史记录）</source>
        <translation>(no history)</translation>
    </message>
    <message>
        <source>转到</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>显示这一页</source>
        <translation>Show this page</translation>
    </message>
    <message>
        <source>页数</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>第</source>
        <translation>Page </translation>
    </message>
    <message>
        <source>页共</source>
        <translation> of </translation>
    </message>
    <message>
        <source>页  只显示</source>
        <translation>, at most </translation>
    </message>
    <message>
        <source>条以内的记录</source>
        <translation> records</translation>
    </message>
    <message>
        <source>整行选择(&amp;R)</source>
        <translation>Select Whole &amp;Rows</translation>
    </message>
    <message numerus="yes">
        <source>已读取 %1 条记录</source>
        <translation>
            <numerusform>%1 record read</numerusform>
            <numerusform>%1 records read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已读取 %1 条记录，预计共约 %2 条</source>
        <translation>
            <numerusform>%1 record read, about %2 expected</numerusform>
            <numerusform>%1 records read, about %2 expected</numerusform>
        </translation>
    </message>
    <message>
        <source>正在等待数据库…</source>
        <translation>Waiting for the database…</translation>
    </message>
    <message>
        <source>正在取消…</source>
        <translation>Cancelling…</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>停止读取记录（Esc）</source>
        <translation>Stop reading records (Esc)</translation>
    </message>
    <message>
        <source>不再等待（Esc）</source>
        <translation>Stop waiting (Esc)</translation>
    </message>
    <message>
        <source>停止（Esc）</source>
        <translation>Stop (Esc)</translation>
    </message>
    <message>
        <source>没有打开的结果，无法打印。</source>
        <translation>There is no open result to print.</translation>
    </message>
    <message>
        <source>没有打开的结果，无法导出。</source>
        <translation>There is no open result to export.</translation>
    </message>
    <message>
        <source>%1：不能为空</source>
        <translation>%1: needs a value</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>同时显示图片字段（Ctrl+Shift+I）；双击图片或按 Enter 可用文件替换，按 Ctrl+0 清空</source>
        <translation>Also list picture fields (Ctrl+Shift+I). Double-click a picture or press Enter to replace it with a file; Ctrl+0 removes it.</translation>
    </message>
    <message>
        <source>用文件替换图片</source>
        <translation>Replace the picture with a file</translation>
    </message>
    <message>
        <source>图片 (*.png *.jpg *.jpeg *.bmp *.gif *.tif *.tiff *.webp *.svg *.ico);;所有文件 (*)</source>
        <translation>Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.tif *.tiff *.webp *.svg *.ico);;All files (*)</translation>
    </message>
    <message>
        <source>无法读取文件“%1”：%2</source>
        <translation>Cannot read the file &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>文件“%1”不是图片，或者太大。</source>
        <translation>The file &quot;%1&quot; is not a picture, or is too large.</translation>
    </message>
    <message>
        <source>（还有更多，输入几个字后再打开列表查找）</source>
        <translation>(There are more: type some letters and open the list again)</translation>
    </message>
    <message>
        <source>增加第一条记录</source>
        <translation>Add the First Record</translation>
    </message>
    <message>
        <source>此内容超过 %1 个字符，不能在这里修改，请按 F3 查看。</source>
        <translation>This text has more than %1 characters. It can&apos;t be edited here; press F3 to view it.</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>保存这条记录（Ctrl+S）</source>
        <translation>Save this record (Ctrl+S)</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>新记录</source>
        <translation>New record</translation>
    </message>
    <message>
        <source>列“%1”</source>
        <translation>Column &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::LanguageTexts</name>
    <message>
        <source>zh-CN</source>
        <translation>en</translation>
    </message>
    <message>
        <source>缺少“}”</source>
        <translation>&quot;}&quot; is missing</translation>
    </message>
    <message>
        <source>缺少“]”</source>
        <translation>&quot;]&quot; is missing</translation>
    </message>
    <message>
        <source>缺少冒号</source>
        <translation>a colon is missing</translation>
    </message>
    <message>
        <source>缺少逗号</source>
        <translation>a comma is missing</translation>
    </message>
    <message>
        <source>缺少右引号</source>
        <translation>a closing quotation mark is missing</translation>
    </message>
    <message>
        <source>缺少带引号的名称</source>
        <translation>a name in quotation marks is missing</translation>
    </message>
    <message>
        <source>字符不正确</source>
        <translation>not a correct character</translation>
    </message>
    <message>
        <source>层次太多</source>
        <translation>too many levels</translation>
    </message>
    <message>
        <source>太长</source>
        <translation>too long</translation>
    </message>
    <message>
        <source>结尾之后还有其他内容</source>
        <translation>there is more after the end</translation>
    </message>
    <message>
        <source>这里的值不正确</source>
        <translation>the value here is not correct</translation>
    </message>
    <message>
        <source>内容不完整</source>
        <translation>the text is incomplete</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::LayoutTexts</name>
    <message>
        <source>没有打开的结果，无法恢复布局。</source>
        <translation>No result is open, so the layout cannot be restored.</translation>
    </message>
    <message>
        <source>布局文本太长。</source>
        <translation>The layout text is too long.</translation>
    </message>
    <message>
        <source>布局文本不是有效的 JSON（第 %1 个字符：%2）。</source>
        <translation>The layout text is not valid JSON (character %1: %2).</translation>
    </message>
    <message>
        <source>布局文本的格式不对：%1 缺少或无效。</source>
        <translation>The layout text has the wrong form: %1 is missing or invalid.</translation>
    </message>
    <message>
        <source>当前记录没有保存，布局没有改变。</source>
        <translation>The current record is not saved. The layout has not changed.</translation>
    </message>
    <message>
        <source>无法显示布局中的列，布局没有改变。</source>
        <translation>The columns of the layout cannot be shown. The layout has not changed.</translation>
    </message>
    <message>
        <source>布局文本隐藏了所有的列。</source>
        <translation>The layout text hides all columns.</translation>
    </message>
    <message>
        <source>布局文本是空的。</source>
        <translation>The layout text is empty.</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::PrintTexts</name>
    <message>
        <source>第 %1 页，共 %2 页</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>打印机不接受打印任务。</source>
        <translation>The printer does not accept the print job.</translation>
    </message>
    <message>
        <source>无法写入文件“%1”：%2</source>
        <translation>Cannot write the file &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>无法识别打印选项“%1=%2”。</source>
        <translation>Unknown print option &quot;%1=%2&quot;.</translation>
    </message>
    <message>
        <source>打印预览</source>
        <translation>Print Preview</translation>
    </message>
    <message>
        <source>标题(&amp;T):</source>
        <translation>&amp;Title:</translation>
    </message>
    <message>
        <source>记录(&amp;R):</source>
        <translation>&amp;Records:</translation>
    </message>
    <message>
        <source>全部 %1 条</source>
        <translation>All %1</translation>
    </message>
    <message>
        <source>选定的 %1 条</source>
        <translation>Selected %1</translation>
    </message>
    <message>
        <source>方向(&amp;O):</source>
        <translation>&amp;Orientation:</translation>
    </message>
    <message>
        <source>纵向</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>横向</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>上页(&amp;U)</source>
        <translation>Previo&amp;us Page</translation>
    </message>
    <message>
        <source>下页(&amp;N)</source>
        <translation>&amp;Next Page</translation>
    </message>
    <message>
        <source>第 %1 页，共 %2 页（预览前 %3 页）</source>
        <translation>Page %1 of %2 (preview of the first %3)</translation>
    </message>
    <message>
        <source>缩放(&amp;Z):</source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message>
        <source>整页</source>
        <translation>Whole page</translation>
    </message>
    <message>
        <source>页宽</source>
        <translation>Page width</translation>
    </message>
    <message>
        <source>打印(&amp;P)…</source>
        <translation>&amp;Print…</translation>
    </message>
    <message>
        <source>保存为 PDF(&amp;S)…</source>
        <translation>&amp;Save as PDF…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>PDF 文件 (*.pdf)</source>
        <translation>PDF files (*.pdf)</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::QueryTexts</name>
    <message>
        <source>升序</source>
        <translation>Ascending</translation>
    </message>
    <message>
        <source>降序</source>
        <translation>Descending</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>All</translation>
    </message>
    <message>
        <source>对不起，过滤内容中不能含有&quot;  &apos; &quot;符号!</source>
        <translation>Sorry, the filter text must not contain the character &quot;  &apos; &quot;!</translation>
    </message>
    <message>
        <source>该语句不是普通的 SELECT 查询，不能再筛选、排序或选择字段。</source>
        <translation>This statement is not a plain SELECT query. It cannot be filtered or sorted, and its fields cannot be chosen.</translation>
    </message>
    <message>
        <source>查询结果中有多个名为“%1”的字段，请先在语句中用 AS 给它们不同的名称。</source>
        <translation>The result has several fields named &quot;%1&quot;. Give them different names with AS in the statement first.</translation>
    </message>
    <message>
        <source>无法确定字段“%1”属于哪个表，请先在语句中写出各字段的名称，不用“*”。</source>
        <translation>Cannot determine which table the field &quot;%1&quot; belongs to. Name the fields in the statement instead of using &quot;*&quot; first.</translation>
    </message>
    <message>
        <source>查询结果中有字段未命名，请先在语句中用 AS 为它命名。</source>
        <translation>The result has a field without a name. Name it with AS in the statement first.</translation>
    </message>
    <message>
        <source>对不起，过滤操作不支持选中内容的数据类型！</source>
        <translation>Sorry, the data type of the selected value cannot be filtered!</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>&quot;%1&quot;</translation>
    </message>
    <message>
        <source>包含%1</source>
        <translation>contains %1</translation>
    </message>
    <message>
        <source>开头是%1</source>
        <translation>begins with %1</translation>
    </message>
    <message>
        <source>结尾是%1</source>
        <translation>ends with %1</translation>
    </message>
    <message>
        <source>是 %1 之一</source>
        <translation>is one of %1</translation>
    </message>
    <message>
        <source>为空</source>
        <translation>is empty</translation>
    </message>
    <message>
        <source>不为空</source>
        <translation>is not empty</translation>
    </message>
    <message>
        <source>%1 个字段之一 %2</source>
        <translation>one of %1 fields %2</translation>
    </message>
    <message>
        <source>，并且 </source>
        <translation> and </translation>
    </message>
    <message>
        <source>，或者 </source>
        <translation> or </translation>
    </message>
    <message>
        <source>不满足 %1</source>
        <translation>not (%1)</translation>
    </message>
    <message>
        <source>的值有重复</source>
        <translation>has repeated values</translation>
    </message>
    <message numerus="yes">
        <source>是最大的 %1 个之一</source>
        <translation>
            <numerusform>is the largest</numerusform>
            <numerusform>is one of the %1 largest</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>是最小的 %1 个之一</source>
        <translation>
            <numerusform>is the smallest</numerusform>
            <numerusform>is one of the %1 smallest</numerusform>
        </translation>
    </message>
    <message>
        <source>（%1）</source>
        <translation>(%1)</translation>
    </message>
    <message>
        <source>%1 介于 %2 和 %3</source>
        <translation>%1 is between %2 and %3</translation>
    </message>
    <message>
        <source>%1年</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>部分字段的语句与当前语句的字段对应不上，不能只显示这些字段。</source>
        <translation>The part statement does not match the fields of the current statement.</translation>
    </message>
    <message numerus="yes">
        <source>是按顺序排在最前的 %1 个之一</source>
        <translation>
            <numerusform>is the first in order</numerusform>
            <numerusform>is one of the first %1 in order</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>是按顺序排在最后的 %1 个之一</source>
        <translation>
            <numerusform>is the last in order</numerusform>
            <numerusform>is one of the last %1 in order</numerusform>
        </translation>
    </message>
    <message>
        <source>不满足（%1）</source>
        <translation>not (%1)</translation>
    </message>
    <message>
        <source>数据库不能按字段“%1”的数据类型排序，也不能列出它的值。</source>
        <translation>The database can neither sort by the data type of the field &quot;%1&quot; nor list its values.</translation>
    </message>
    <message>
        <source>该语句按结果中没有的内容排序，筛选或选择字段后数据库不能保持这个顺序。请先在语句的字段中写出排序的内容。</source>
        <translation>This statement is sorted by something that its result lacks, and the database can&apos;t keep that order after a filter or a choice of fields. List what it is sorted by among its fields first.</translation>
    </message>
    <message>
        <source>查询结果中有名为“%1”的字段，数据库在子查询中会把它当作逻辑值。请先在语句中用 AS 给它另一个名称。</source>
        <translation>The result has a field called &quot;%1&quot;. In a subquery, the database takes that for a truth value. Give the field another name with AS in the statement first.</translation>
    </message>
    <message>
        <source>从当前语句得不到全部字段，请先返回上一步。</source>
        <translation>The current statement cannot be shown with all fields. Go back a step first.</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::SessionMessages</name>
    <message>
        <source>错误描述为：</source>
        <translation>Error: </translation>
    </message>
    <message>
        <source>数据库打开失败。</source>
        <translation>Cannot open the database.</translation>
    </message>
    <message>
        <source>数据库读失败。</source>
        <translation>Cannot read the database.</translation>
    </message>
    <message>
        <source>无法翻页：</source>
        <translation>Cannot go to the page: </translation>
    </message>
    <message>
        <source>请在页数输入正整数.</source>
        <translation>Enter a positive whole number as the page.</translation>
    </message>
    <message>
        <source>记录没有保存：</source>
        <translation>The record was not saved: </translation>
    </message>
    <message>
        <source>无法查看新值：</source>
        <translation>Cannot show the new values: </translation>
    </message>
    <message>
        <source>您修改的内容尚未保存，其他用户也修改了下列字段。再次保存会替换其他用户的内容，按 Esc 放弃您的修改：</source>
        <translation>Your changes are not saved yet, and another user has changed the fields below. Saving again replaces the other user&apos;s values. Esc discards your changes:</translation>
    </message>
    <message>
        <source>
%1：现在是“%2”，您填写的是“%3”</source>
        <translation>
%1: now &quot;%2&quot;, you entered &quot;%3&quot;</translation>
    </message>
    <message>
        <source>连接字符串已经改变，请先加载数据。</source>
        <translation>The connection string has changed. Load the data first.</translation>
    </message>
    <message>
        <source>已取消读取，仍显示原来的记录</source>
        <translation>Reading was cancelled. The previous records are still shown.</translation>
    </message>
    <message>
        <source>%1（第 %2 行）</source>
        <translation>%1 (row %2)</translation>
    </message>
    <message>
        <source>没有可以前进到的结果。</source>
        <translation>There is no result to go forward to.</translation>
    </message>
    <message>
        <source>再次插入空行操作已被取消</source>
        <translation>Adding another empty row was cancelled</translation>
    </message>
    <message>
        <source>记录只读，不能增加、修改或删除。</source>
        <translation>The records are read-only. They cannot be added, changed or deleted.</translation>
    </message>
    <message numerus="yes">
        <source>已复制 %1 条记录</source>
        <translation>
            <numerusform>%1 record copied</numerusform>
            <numerusform>%1 records copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已导出 %1 条记录</source>
        <translation>
            <numerusform>%1 record exported</numerusform>
            <numerusform>%1 records exported</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>已打印 %1 条记录</source>
        <translation>
            <numerusform>%1 record printed</numerusform>
            <numerusform>%1 records printed</numerusform>
        </translation>
    </message>
    <message>
        <source>确实要删除该记录?</source>
        <translation>Really delete this record?</translation>
    </message>
    <message>
        <source>
第 %1 行：%2 = %3</source>
        <translation>
Row %1: %2 = %3</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>Delete Record</translation>
    </message>
    <message>
        <source>删除操作与数据库的约束冲突，不能删除此记录！</source>
        <translation>Deleting this record would violate a database constraint. It cannot be deleted!</translation>
    </message>
    <message>
        <source>无法复制记录：</source>
        <translation>The record cannot be copied: </translation>
    </message>
    <message>
        <source>当前单元格不是链接（http、https 或 mailto）。</source>
        <translation>The current cell is not a link (http, https or mailto).</translation>
    </message>
    <message>
        <source>内存不足，操作没有完成。</source>
        <translation>There is not enough memory. The operation was not completed.</translation>
    </message>
    <message>
        <source>查询结果中没有可以修改的字段，不能增加记录。</source>
        <translation>None of the result&apos;s fields can be changed, so no record can be added.</translation>
    </message>
    <message>
        <source>%1

仍要再次保存吗？</source>
        <translation>%1

Save it again anyway?</translation>
    </message>
    <message>
        <source>再次保存</source>
        <translation>Save Again</translation>
    </message>
    <message>
        <source>保存时连接中断；重新连接后核对，更改已经保存</source>
        <translation>The connection was lost while saving; checked again: the change was saved</translation>
    </message>
    <message>
        <source>保存时与数据库的连接中断。重新连接后核对，数据库中还没有这些更改，可以再次保存。</source>
        <translation>The connection to the database was lost while saving. Checked again: the database does not have the change yet. You can save it again.</translation>
    </message>
    <message>
        <source>删除时连接中断；重新连接后核对，记录已经删除</source>
        <translation>The connection was lost while deleting; checked again: the record was deleted</translation>
    </message>
    <message>
        <source>删除时与数据库的连接中断。重新连接后核对，记录还在数据库中，可以再次删除。</source>
        <translation>The connection to the database was lost while deleting. Checked again: the record is still in the database. You can delete it again.</translation>
    </message>
    <message>
        <source>记录已设为只读，不能再保存。修改的内容仍在，按 Esc 放弃。</source>
        <translation>The records are now read-only and can no longer be saved. Your changes are still here; discard them with Esc.</translation>
    </message>
    <message>
        <source>记录已经按此列排序。</source>
        <translation>The records are already sorted by this column.</translation>
    </message>
    <message>
        <source>记录没有按此列排序。</source>
        <translation>The records are not sorted by this column.</translation>
    </message>
    <message>
        <source>至少要显示一列。</source>
        <translation>At least one column must be shown.</translation>
    </message>
    <message>
        <source>这一侧没有其他列。</source>
        <translation>There is no other column on this side.</translation>
    </message>
    <message>
        <source>只有数字列和“是/否”列可以设置格式。</source>
        <translation>Only number and yes/no columns can be formatted.</translation>
    </message>
    <message>
        <source>记录按结果中没有的内容排序，与其他列一起排序就会失去它。请选“升序”或“降序”，只按此列排序。</source>
        <translation>The records are sorted by something that is not in the result. A sort with other columns would lose it. Choose &quot;Sort Ascending&quot; or &quot;Sort Descending&quot; to sort by this column alone.</translation>
    </message>
</context>
<context>
    <name>KOVAVSFDataGridLib::ViewerTexts</name>
    <message>
        <source>全屏显示</source>
        <translation>Full Screen</translation>
    </message>
    <message>
        <source>查询结果</source>
        <translation>Query result</translation>
    </message>
    <message>
        <source>第%1页共%2页</source>
        <translation>Page %1 of %2</translation>
    </message>
    <message>
        <source>转到输入的页</source>
        <translation>Go to the page that was entered</translation>
    </message>
    <message>
        <source>返回(&amp;X)</source>
        <translation>E&amp;xit Full Screen</translation>
    </message>
    <message>
        <source>退出全屏（Esc 或 F11）</source>
        <translation>Leave full screen (Esc or F11)</translation>
    </message>
</context>
</TS>
