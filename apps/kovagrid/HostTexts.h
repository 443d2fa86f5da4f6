#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

// The texts of the host program itself, collected here for proofreading. They are written in Chinese and
// translated in translations/kovagrid_en.ts.
struct HostTexts
{
    Q_DECLARE_TR_FUNCTIONS(HostTexts)

public:
    // %1 is a file or a folder, %2 the error message of the system or the database.
    static QString CantMakeFolder() { return tr("无法建立文件夹：%1"); }
    static QString CantMakeSample() { return tr("无法建立示例数据库：%1（%2）"); }
    static QString CantPrint() { return tr("无法输出记录。"); }
    static QString CantSavePicture() { return tr("无法保存窗口截图：%1"); }
    static QString CantListTables() { return tr("无法列出表：%1"); }
    static QString NotADatabase() { return tr("文件“%1”不是 SQLite 或 Access 数据库。"); }

    // The name of the current language.
    static QString Language() { return tr("zh-CN"); }

    // The command line
    static QString Usage()
    {
        return tr(
            "用法：kovagrid [--connection 连接字符串] [--db-type access|oracle|sqlserver] [--sql 语句]\n"
            "               [--part 语句] [--sort 排序] [--table-type table|view|sql]\n"
            "               [--do 按钮[,按钮...]] [--print [行数]] [--screenshot 文件]\n"
            "               [--size 宽x高] [--dark] [--lang zh|en]\n"
            "没有 --connection 时打开示例数据库（首次使用时建立）。\n"
            "没有显示器，或给出 --screenshot 时，在标准输出打印“Loaded N records, M fields in S s”。\n"
            "给出 --print 时，这一行打印到标准错误，标准输出只有记录。");
    }
    static QString UnexpectedArgument() { return tr("多余的参数：%1"); }
    static QString BadSize() { return tr("--size 应为 宽x高"); }
    static QString BadChoice() { return tr("--%1 只能是 %2"); }
    static QString BadRows() { return tr("--print 后面应为行数"); }
    static QString NoButton() { return tr("--do：没有按钮 %1"); }

    // The form
    static QString Connection() { return tr("连接(&C):"); }
    static QString Recent() { return tr("最近(&N)"); }
    static QString NoRecent() { return tr("（没有）"); }
    static QString ClearRecent() { return tr("清除(&L)"); }
    static QString DbType() { return tr("类型(&D):"); }
    static QString Statement() { return tr("语句(&S):"); }
    static QString Run() { return tr("执行(&E)"); }
    static QString RunTip() { return tr("执行语句（Ctrl+Enter）"); }
    static QString More() { return tr("更多(&M)"); }
    static QString MoreTip() { return tr("部分字段和排序"); }
    static QString Part() { return tr("部分字段(&P):"); }
    static QString Sort() { return tr("排序(&O):"); }

    static QString StatementHint() { return tr("SELECT 语句，按 Ctrl+Enter 执行"); }

    // The menus
    static QString FileMenu() { return tr("文件(&F)"); }
    static QString OpenFileAction() { return tr("打开数据库文件(&O)…"); }
    static QString NewTabAction() { return tr("新建标签页(&T)"); }
    static QString CloseTabAction() { return tr("关闭标签页(&W)"); }
    static QString ReloadAction() { return tr("重新加载(&L)"); }
    static QString RefreshTablesAction() { return tr("刷新表的列表(&R)"); }
    static QString QuitAction() { return tr("退出(&X)"); }
    static QString ViewMenu() { return tr("视图(&V)"); }
    static QString NextPaneAction() { return tr("切换焦点(&F)"); }
    static QString HelpMenu() { return tr("帮助(&H)"); }
    static QString ShortcutsAction() { return tr("快捷键(&K)"); }
    static QString AboutAction() { return tr("关于 KOVAVSFDataGrid(&A)"); }
    static QString AboutQtAction() { return tr("关于 Qt(&Q)"); }
    static QString AboutText() { return tr("KOVAVSFDataGrid %1\n\n查看查询结果，随意筛选和排序。"); }

    // The window and its panes
    static QString WindowTitle() { return tr("KOVAVSFDataGrid 数据表格"); }
    static QString NewTab() { return tr("查询"); }
    static QString Tables() { return tr("表"); }
    static QString Views() { return tr("视图"); }
    static QString NoTables() { return tr("（没有表）"); }
    static QString TablesPane() { return tr("表和视图"); }
    static QString PicturePane() { return tr("图片"); }
    static QString NoPicture() { return tr("（无图片）"); }
    static QString ValuePane() { return tr("内容"); }
    static QString EventsPane() { return tr("事件记录"); }
    static QString OpenFile() { return tr("打开数据库文件"); }
    static QString DatabaseFiles()
    {
        return tr("数据库 (*.db *.db3 *.sqlite *.sqlite3 *.mdb *.accdb);;所有文件 (*)");
    }
    static QString Shortcuts() { return tr("快捷键"); }
    static QString About() { return tr("关于 KOVAVSFDataGrid"); }
};
