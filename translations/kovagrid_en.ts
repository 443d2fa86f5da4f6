<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>HostTexts</name>
    <message>
        <source>无法建立文件夹：%1</source>
        <translation>Cannot create the folder: %1</translation>
    </message>
    <message>
        <source>无法建立示例数据库：%1（%2）</source>
        <translation>Cannot create the sample database: %1 (%2)</translation>
    </message>
    <message>
        <source>无法输出记录。</source>
        <translation>Cannot write the records.</translation>
    </message>
    <message>
        <source>无法保存窗口截图：%1</source>
        <translation>Cannot save the picture of the window: %1</translation>
    </message>
    <message>
        <source>无法列出表：%1</source>
        <translation>Cannot list the tables: %1</translation>
    </message>
    <message>
        <source>文件“%1”不是 SQLite 或 Access 数据库。</source>
        <translation>The file &quot;%1&quot; is not an SQLite or Access database.</translation>
    </message>
    <message>
        <source>zh-CN</source>
        <translation>en</translation>
    </message>
    <message>
        <source>用法：kovagrid [--connection 连接字符串] [--db-type access|oracle|sqlserver] [--sql 语句]
               [--part 语句] [--sort 排序] [--table-type table|view|sql]
               [--do 按钮[,按钮...]] [--print [行数]] [--screenshot 文件]
               [--size 宽x高] [--dark] [--lang zh|en]
没有 --connection 时打开示例数据库（首次使用时建立）。
没有显示器，或给出 --screenshot 时，在标准输出打印“Loaded N records, M fields in S s”。
给出 --print 时，这一行打印到标准错误，标准输出只有记录。</source>
        <translation>usage: kovagrid [--connection TEXT] [--db-type access|oracle|sqlserver] [--sql TEXT] [--part TEXT]
                [--sort TEXT] [--table-type table|view|sql] [--do KEY[,KEY...]] [--print [ROWS]]
                [--screenshot FILE] [--size WIDTHxHEIGHT] [--dark] [--lang zh|en]
Without --connection, it opens a sample database, which it creates on first use.
Without a display, or with --screenshot, it prints &quot;Loaded N records, M fields in S s&quot; to
standard output. With --print, it prints that line to standard error instead, and only the
records to standard output.</translation>
    </message>
    <message>
        <source>多余的参数：%1</source>
        <translation>Unexpected argument: %1</translation>
    </message>
    <message>
        <source>--size 应为 宽x高</source>
        <translation>--size must be WIDTHxHEIGHT</translation>
    </message>
    <message>
        <source>--%1 只能是 %2</source>
        <translation>--%1 must be one of %2</translation>
    </message>
    <message>
        <source>--print 后面应为行数</source>
        <translation>--print takes a number of rows</translation>
    </message>
    <message>
        <source>--do：没有按钮 %1</source>
        <translation>--do: there is no button %1</translation>
    </message>
    <message>
        <source>连接(&amp;C):</source>
        <translation>&amp;Connection:</translation>
    </message>
    <message>
        <source>最近(&amp;N)</source>
        <translation>Rece&amp;nt</translation>
    </message>
    <message>
        <source>（没有）</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>清除(&amp;L)</source>
        <translation>C&amp;lear</translation>
    </message>
    <message>
        <source>类型(&amp;D):</source>
        <translation>&amp;Database type:</translation>
    </message>
    <message>
        <source>语句(&amp;S):</source>
        <translation>&amp;Statement:</translation>
    </message>
    <message>
        <source>执行(&amp;E)</source>
        <translation>&amp;Execute</translation>
    </message>
    <message>
        <source>执行语句（Ctrl+Enter）</source>
        <translation>Run the statement (Ctrl+Enter)</translation>
    </message>
    <message>
        <source>更多(&amp;M)</source>
        <translation>&amp;More</translation>
    </message>
    <message>
        <source>部分字段和排序</source>
        <translation>Part statement and sort order</translation>
    </message>
    <message>
        <source>部分字段(&amp;P):</source>
        <translation>&amp;Part statement:</translation>
    </message>
    <message>
        <source>排序(&amp;O):</source>
        <translation>S&amp;ort:</translation>
    </message>
    <message>
        <source>SELECT 语句，按 Ctrl+Enter 执行</source>
        <translation>SELECT statement; Ctrl+Enter runs it</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>打开数据库文件(&amp;O)…</source>
        <translation>&amp;Open Database File…</translation>
    </message>
    <message>
        <source>新建标签页(&amp;T)</source>
        <translation>New &amp;Tab</translation>
    </message>
    <message>
        <source>关闭标签页(&amp;W)</source>
        <translation>&amp;Close Tab</translation>
    </message>
    <message>
        <source>重新加载(&amp;L)</source>
        <translation>Re&amp;load</translation>
    </message>
    <message>
        <source>刷新表的列表(&amp;R)</source>
        <translation>&amp;Refresh List of Tables</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>切换焦点(&amp;F)</source>
        <translation>&amp;Next Pane</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>快捷键(&amp;K)</source>
        <translation>&amp;Keyboard Shortcuts</translation>
    </message>
    <message>
        <source>关于 KOVAVSFDataGrid(&amp;A)</source>
        <translation>&amp;About KOVAVSFDataGrid</translation>
    </message>
    <message>
        <source>关于 Qt(&amp;Q)</source>
        <translation>About &amp;Qt</translation>
    </message>
    <message>
        <source>KOVAVSFDataGrid %1

查看查询结果，随意筛选和排序。</source>
        <translation>KOVAVSFDataGrid %1

Look through query results, filter and sort them.</translation>
    </message>
    <message>
        <source>KOVAVSFDataGrid 数据表格</source>
        <translation>KOVAVSFDataGrid</translation>
    </message>
    <message>
        <source>查询</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>表</source>
        <translation>Tables</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>Views</translation>
    </message>
    <message>
        <source>（没有表）</source>
        <translation>(no tables)</translation>
    </message>
    <message>
        <source>表和视图</source>
        <translation>Tables and Views</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>（无图片）</source>
        <translation>(no picture)</translation>
    </message>
    <message>
        <source>事件记录</source>
        <translation>Event Log</translation>
    </message>
    <message>
        <source>打开数据库文件</source>
        <translation>Open Database File</translation>
    </message>
    <message>
        <source>数据库 (*.db *.db3 *.sqlite *.sqlite3 *.mdb *.accdb);;所有文件 (*)</source>
        <translation>Databases (*.db *.db3 *.sqlite *.sqlite3 *.mdb *.accdb);;All files (*)</translation>
    </message>
    <message>
        <source>快捷键</source>
        <translation>Keyboard Shortcuts</translation>
    </message>
    <message>
        <source>关于 KOVAVSFDataGrid</source>
        <translation>About KOVAVSFDataGrid</translation>
    </message>
    <message>
        <source>内容</source>
        <translation>Value</translation>
    </message>
</context>
</TS>
