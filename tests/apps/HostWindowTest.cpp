// The window of kovagrid, used with mouse and keys.
#include "window/HostWindow.h"

#include "start/BoxStyle.h"
#include "tab/QueryPage.h"
#include "tab/RecentConnections.h"
#include "tab/StatementEdit.h"

#include <KOVAVSFDataGrid>

#include "support/AccessKeys.h"
#include "support/AccessWriter.h"
#include "support/ExpectedWarnings.h"
#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtCore/QBuffer>
#include <QtCore/QMimeData>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>
#include <gtest/gtest.h>

#include <cmath>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

QString pictureAsHex()
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return QString::fromLatin1(bytes.toHex());
}

struct HostWindowTest : testing::Test
{
    HostWindowTest()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
        open();
    }
    ~HostWindowTest() override { window->close(); }

    void open()
    {
        Options options;
        options.connection = database.connectionString();
        options.sql = u"select * from orders"_s;
        window = std::make_unique<HostWindow>(options);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        window->page()->loadForm();
    }

    StatementEdit &statement() const { return *window->page()->statement(); }
    QTableView &table() const { return *window->grid()->findChild<QTableView *>(u"vsfgDataGrid"_s); }
    QTabWidget &tabs() const { return *qobject_cast<QTabWidget *>(window->centralWidget()); }
    QTreeWidget &tables() const { return *window->findChild<QTreeWidget *>(u"tables"_s); }
    QDockWidget &dock(const QString &name) const { return *window->findChild<QDockWidget *>(name); }
    QStringList listed() const
    {
        QStringList names;
        for (int group = 0; group < tables().topLevelItemCount(); ++group) {
            names.append(tables().topLevelItem(group)->text(0));
            for (int i = 0; i < tables().topLevelItem(group)->childCount(); ++i)
                names.append(tables().topLevelItem(group)->child(i)->text(0));
        }
        return names;
    }
    QTreeWidgetItem *item(const QString &name) const
    {
        return tables().findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(window->focusWidget(), key, modifiers);
    }
    void drop(const QString &file) const
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent entering({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &entering);
        EXPECT_TRUE(entering.isAccepted());
        QDropEvent dropping({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(window.get(), &dropping);
    }

    QTemporaryDir home;
    TestDatabase database{
        u"CREATE TABLE orders (ID INTEGER PRIMARY KEY, 名称 TEXT, P BLOB);"
        "INSERT INTO orders VALUES (1,'甲',NULL),(2,'乙',x'%1'),(3,'丙',x'00');"
        "CREATE TABLE [two words] (A); INSERT INTO [two words] VALUES (7); CREATE VIEW v AS SELECT 1 AS one"_s
            .arg(pictureAsHex())};
    std::unique_ptr<HostWindow> window;
    MessageAnswers messages;
    ExpectedWarning noRaise{u"does not support raise()"_s};
    ExpectedWarning noGrab{u"does not support grabbing the keyboard"_s};
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

TEST_F(HostWindowTest, TablesAndViewsAreListedAndOpened)
{
    EXPECT_EQ(listed(), (QStringList{u"表"_s, u"orders"_s, u"two words"_s, u"视图"_s, u"v"_s}));
    const QPoint place = tables().visualItemRect(item(u"two words"_s)).center();
    QTest::mouseClick(tables().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tables().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(statement().statement(), u"select * from [two words]"_s);
    EXPECT_EQ(table().model()->index(0, 0).data(), u"7"_s);
    tables().setFocus();
    tables().setCurrentItem(item(u"v"_s));
    QTest::keyClick(&tables(), Qt::Key_Return);
    EXPECT_EQ(table().model()->headerData(0, Qt::Horizontal), u"one"_s);
}

TEST_F(HostWindowTest, TablesWithNamesOfAnyKindAreOpened)
{
    const QStringList names{u"case"_s,    u"not"_s,  u"having"_s, u"is"_s,  u"order"_s,
                            u"primary"_s, u"a\"b"_s, u"a]b"_s,    u"a`b"_s, u"1 a"_s,
                            u"订单"_s,    u"it's"_s, u"a.b"_s,    u"a;b"_s, u"--"_s};
    TestDatabase named({}, u"named.db"_s);
    for (const QString &name : names) {
        const QString quoted = u'"' + QString(name).replace(u'"', u"\"\""_s) + u'"';
        named.run(u"CREATE TABLE %1 (A); INSERT INTO %1 VALUES ('%2')"_s.arg(
            quoted, QString(name).replace(u'\'', u"''"_s)));
    }
    drop(named.path());
    for (const QString &name : names) {
        ASSERT_TRUE(item(name)) << name.toStdString();
        tables().setFocus();
        tables().setCurrentItem(item(name));
        QTest::keyClick(&tables(), Qt::Key_Return);
        EXPECT_EQ(table().model()->index(0, 0).data(), name);
    }
    EXPECT_TRUE(messages.texts().isEmpty()) << messages.texts().join(u'\n').toStdString();
}

TEST_F(HostWindowTest, ATableIsDraggedIntoTheStatement)
{
    statement().setPlainText(u"select A from "_s);
    const auto index = tables().model()->index(1, 0, tables().model()->index(0, 0));
    const std::unique_ptr<QMimeData> data(tables().model()->mimeData({index}));
    ASSERT_TRUE(data);
    statement().moveCursor(QTextCursor::End);
    const QPoint end = statement().cursorRect().center();
    QDragEnterEvent entering(end, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(statement().viewport(), &entering);
    EXPECT_TRUE(entering.isAccepted());
    QDropEvent dropping(end, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(statement().viewport(), &dropping);
    EXPECT_EQ(statement().statement(), u"select A from [two words]"_s);
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

TEST_F(HostWindowTest, ThePictureOfTheCurrentRecordIsShown)
{
    const auto &picture = *window->findChild<QLabel *>(u"picture"_s);
    EXPECT_EQ(picture.text(), u"（无图片）"_s);
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                      table().visualRect(table().model()->index(1, 1)).center());
    EXPECT_EQ(picture.pixmap().toImage().pixelColor(1, 1), QColor(Qt::red));
    press(Qt::Key_Down);
    EXPECT_EQ(picture.text(), u"（无图片）"_s) << "a field that holds no picture";
    press(Qt::Key_Up);
    EXPECT_FALSE(picture.pixmap().isNull());
}

TEST_F(HostWindowTest, EventsAreListedOnlyOnRequest)
{
    QDockWidget &events = dock(u"eventsPane"_s);
    EXPECT_FALSE(events.isVisible());
    const auto &log = *qobject_cast<QPlainTextEdit *>(events.widget());
    EXPECT_EQ(log.toPlainText(), QString());
    events.toggleViewAction()->trigger();
    EXPECT_TRUE(events.isVisible());
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                      table().visualRect(table().model()->index(1, 1)).center());
    EXPECT_TRUE(log.toPlainText().contains(u"DataClick"_s));
}

TEST_F(HostWindowTest, F3ShowsTheValueInAPaneBesideTheGrid)
{
    QDockWidget &pane = dock(u"valuePane"_s);
    const auto shown = [&] {
        QString text;
        for (const auto *view : pane.findChildren<QPlainTextEdit *>(u"txtValue"_s))
            text += view->isVisible() ? view->toPlainText() : QString();
        return text;
    };
    EXPECT_FALSE(pane.isVisible());
    table().setCurrentIndex(table().model()->index(0, 1));
    press(Qt::Key_F3);
    EXPECT_TRUE(pane.isVisible());
    EXPECT_EQ(shown(), u"甲"_s);
    EXPECT_TRUE(pane.isAncestorOf(window->focusWidget()));
    EXPECT_FALSE(window->grid()->findChild<QDialog *>(u"ValueDialog"_s));
    // It follows the cell, and the tab.
    table().setFocus();
    press(Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == u"乙"_s; })) << shown().toStdString();
    press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown().isEmpty(); }));
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == u"乙"_s; })) << shown().toStdString();
}

TEST_F(HostWindowTest, EscapeAndF3LeaveTheValuePaneForTheGrid)
{
    const QDockWidget &pane = dock(u"valuePane"_s);
    table().setCurrentIndex(table().model()->index(0, 1));
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F3}) {
        table().setFocus();
        press(Qt::Key_F3);
        QTest::qWait(10); // the pane also follows the cell
        ASSERT_TRUE(pane.isAncestorOf(window->focusWidget()));
        press(key);
        EXPECT_EQ(window->focusWidget(), &table());
        EXPECT_TRUE(pane.isVisible());
        const int row = table().currentIndex().row();
        press(row == 0 ? Qt::Key_Down : Qt::Key_Up);
        EXPECT_NE(table().currentIndex().row(), row) << "the grid's keys work at once";
    }
    // Also from the pane's search box.
    press(Qt::Key_F3);
    QTest::qWait(10);
    auto *words = pane.findChild<QLineEdit *>(u"txtFindInValue"_s);
    ASSERT_TRUE(words);
    words->setFocus();
    press(Qt::Key_Escape);
    EXPECT_EQ(window->focusWidget(), &table());
}

TEST_F(HostWindowTest, ADoubleClickOnATextThatIsCutShowsItUnlessEventsAreListed)
{
    const QPoint place = table().visualRect(table().model()->index(0, 1)).center();
    table().setColumnWidth(1, 12);
    QDockWidget &pane = dock(u"valuePane"_s);
    const auto doubleClick = [&] {
        const QPoint cell(table().visualRect(table().model()->index(0, 1)).center().x(), place.y());
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, cell);
    };
    dock(u"eventsPane"_s).toggleViewAction()->trigger();
    doubleClick();
    EXPECT_FALSE(pane.isVisible()) << "the log is a host that listens";
    dock(u"eventsPane"_s).toggleViewAction()->trigger();
    doubleClick();
    EXPECT_TRUE(pane.isVisible());
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

TEST(BoxStyle, ABoxInAMenuIsSeenWithoutATick)
{
    const auto luminance = [](const QColor &grey) { return std::pow(grey.greenF(), 2.2) + 0.05; };
    for (const QColor &window : {QColor(50, 50, 50), QColor(239, 239, 239)}) {
        BoxStyle style(u"Fusion"_s);
        QMenu menu;
        menu.setStyle(&style);
        menu.setPalette(QPalette(window));
        menu.addAction(u"x"_s)->setCheckable(true);
        const QImage picture = menu.grab().toImage();
        const QRect entry = menu.actionGeometry(menu.actions().front());
        const double paper = luminance(picture.pixelColor(entry.right() - 3, entry.center().y()));
        double contrast = 1;
        for (int x = entry.left(); x < entry.left() + entry.height(); ++x) {
            const double ink = luminance(picture.pixelColor(x, entry.center().y()));
            contrast = std::max({contrast, ink / paper, paper / ink});
        }
        EXPECT_GE(contrast, 3) << qPrintable(window.name());
    }
}
