// The window of kovagrid, used with mouse and keys.
#include "HostWindowFixture.h"

#include "tab/RecentConnections.h"

#include "support/AccessKeys.h"
#include "support/AccessWriter.h"

#include <QtCore/QTranslator>
#include <QtGui/QScreen>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class HostWindowTest : public HostWindowFixture
{
};

} // namespace

TEST_F(HostWindowTest, CtrlEnterRunsAStatementOfSeveralLines)
{
    EXPECT_EQ(window->focusWidget(), &table()) << "after a load the keyboard is the grid's";
    press(Qt::Key_F6);
    ASSERT_EQ(window->focusWidget(), &statement());
    statement().selectAll();
    QTest::keyClicks(&statement(), u"select ID"_s);
    QTest::keyClick(&statement(), Qt::Key_Return);
    QTest::keyClicks(&statement(), u"from orders where ID > 1"_s);
    EXPECT_EQ(table().model()->rowCount(), 3);
    QTest::keyClick(&statement(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(statement().statement(), u"select ID\nfrom orders where ID > 1"_s);
    EXPECT_EQ(table().model()->rowCount(), 2);
    EXPECT_EQ(table().model()->columnCount(), 1);
}

TEST_F(HostWindowTest, ADroppedDatabaseOpensInATabOfItsOwn)
{
    const TestDatabase other(u"CREATE TABLE 客户 (城市 TEXT); INSERT INTO 客户 VALUES ('北京')"_s);
    drop(other.path());
    ASSERT_EQ(tabs().count(), 2);
    EXPECT_EQ(tabs().tabText(1), u"客户"_s);
    EXPECT_EQ(tabs().tabText(0), u"orders"_s);
    EXPECT_EQ(table().model()->index(0, 0).data(), u"北京"_s);
    EXPECT_EQ(listed(), (QStringList{u"表"_s, u"客户"_s}));
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), 0);
    EXPECT_TRUE(listed().contains(u"orders"_s)) << "the panes follow the tab";
}

TEST_F(HostWindowTest, ADroppedAccessFileListsItsTables)
{
    AccessWriter writer;
    writer.addTable(u"Order Details"_s, {{u"ID"_s, ADODB::AccessType::LongInteger, 0, 0, 0, true}},
                    {{1}, {2}});
    QFile file(home.filePath(u"a.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(writer.file());
    file.close();
    drop(file.fileName());
    ASSERT_EQ(tabs().count(), 2);
    EXPECT_EQ(listed(), (QStringList{u"表"_s, u"Order Details"_s}));
    EXPECT_EQ(statement().statement(), u"select * from [Order Details]"_s);
    EXPECT_EQ(table().model()->rowCount(), 2);
}

TEST_F(HostWindowTest, AFileThatIsNoDatabaseOpensNothing)
{
    QFile file(home.filePath(u"a.txt"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("text");
    file.close();
    drop(file.fileName());
    EXPECT_EQ(tabs().count(), 1);
    EXPECT_EQ(messages.texts(), QStringList{u"文件“a.txt”不是 SQLite 或 Access 数据库。"_s});
}

TEST_F(HostWindowTest, TabsComeAndGoByKeys)
{
    press(Qt::Key_T, Qt::ControlModifier);
    ASSERT_EQ(tabs().count(), 2);
    EXPECT_EQ(window->focusWidget(), &statement());
    EXPECT_EQ(window->page()->connection(), database.connectionString());
    QTest::keyClicks(&statement(), u"select ID from orders where ID = 2"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(table().model()->rowCount(), 1);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(tabs().count(), 1);
    EXPECT_EQ(table().model()->rowCount(), 3);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(tabs().count(), 1) << "the last one stays";
}

TEST_F(HostWindowTest, AccessKeysAreTheirOwnInBothLanguages)
{
    const auto expectOwnKeys = [this] {
        for (QToolButton *button : window->page()->findChildren<QToolButton *>()) {
            if (button->isCheckable() && button->isVisible())
                button->setChecked(true); // what it opens has keys too
        }
        window->grid()->findChild<QAction *>(u"PopMnuDataAction27"_s)->trigger(); // the find bar
        QStringList captions = accessCaptions(*window);
        EXPECT_GT(captions.size(), 10);
        for (const QAction *action : window->menuBar()->actions()) {
            captions.append(action->text());
            EXPECT_EQ(sharedAccessKeys(*action->menu()), QStringList());
        }
        EXPECT_EQ(sharedAccessKeys(captions), QStringList());
    };
    expectOwnKeys();
    QTranslator english;
    ASSERT_TRUE(english.load(u":/KOVAVSFDataGridLib/translations/kovagrid_en.qm"_s));
    QCoreApplication::installTranslator(&english);
    window->grid()->PutLanguage(u"en"_s);
    window->close();
    open();
    EXPECT_EQ(window->menuBar()->actions().front()->text(), u"&File"_s);
    expectOwnKeys();
    window->grid()->PutLanguage({}); // everybody's
    QCoreApplication::removeTranslator(&english);
}

TEST_F(HostWindowTest, RecentConnectionsHaveNoPasswords)
{
    EXPECT_EQ(RecentConnections::all(), QStringList{database.connectionString()});
    RecentConnections::add(u"DSN=shop;UID=me;PWD=secret"_s);
    RecentConnections::add(u"DSN=shop;UID=me;PWD=other"_s);
    EXPECT_EQ(RecentConnections::all(), (QStringList{u"DSN=shop;UID=me"_s, database.connectionString()}));
    QFile file(home.filePath(u"kovagrid/kovagrid.ini"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(file.readAll().contains("secret"));
    auto &recent = *window->page()->findChild<QToolButton *>(u"recent"_s);
    Q_EMIT recent.menu()->aboutToShow();
    ASSERT_EQ(recent.menu()->actions().size(), 4) << "two, a line, and what clears them";
    recent.menu()->actions().constFirst()->trigger();
    EXPECT_EQ(window->page()->connection(), u"DSN=shop;UID=me"_s);
    recent.menu()->actions().constLast()->trigger();
    EXPECT_EQ(RecentConnections::all(), QStringList());
}

TEST_F(HostWindowTest, FitsTheScreenAndComesBackAsItWas)
{
    const QSize screen = window->screen()->availableSize();
    EXPECT_LE(window->width(), screen.width());
    EXPECT_LE(window->height(), screen.height());
    EXPECT_LE(window->minimumSizeHint().width(), 800);
    EXPECT_LE(window->minimumSizeHint().height(), 600);
    window->rememberSettings();
    dock(u"picturePane"_s).toggleViewAction()->trigger();
    EXPECT_TRUE(window->close());
    HostWindow next((Options()));
    next.rememberSettings();
    next.show();
    EXPECT_FALSE(next.findChild<QDockWidget *>(u"picturePane"_s)->isVisible());
    EXPECT_TRUE(next.findChild<QDockWidget *>(u"tablesPane"_s)->isVisible());
}

TEST_F(HostWindowTest, F1ShowsTheShortcuts)
{
    press(Qt::Key_F1);
    auto *help = window->findChild<QDialog *>(u"shortcuts"_s);
    ASSERT_NE(help, nullptr);
    const QString text = help->findChild<QTextBrowser *>()->toPlainText();
    EXPECT_TRUE(text.contains(u"Ctrl+Enter"_s)) << qPrintable(text);
    EXPECT_TRUE(text.contains(u"Ctrl+Shift+C"_s)) << "those of the grid";
    for (const QString &word : {u"DisplayEable"_s, u"KeyCode"_s, u"SelField"_s})
        EXPECT_FALSE(text.contains(word)) << "nothing for developers: " << qPrintable(word);
    QTest::keyClick(help, Qt::Key_Escape);
}
