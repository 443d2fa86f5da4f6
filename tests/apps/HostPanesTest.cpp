// The panes beside the grid of kovagrid: tables, the picture and the value of a cell, events.
#include "HostWindowFixture.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class HostPanesTest : public HostWindowFixture
{
};

} // namespace

TEST_F(HostPanesTest, TablesAndViewsAreListedAndOpened)
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

TEST_F(HostPanesTest, TablesWithNamesOfAnyKindAreOpened)
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

TEST_F(HostPanesTest, ATableIsDraggedIntoTheStatement)
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

TEST_F(HostPanesTest, ThePictureOfTheCurrentRecordIsShown)
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

TEST_F(HostPanesTest, EventsAreListedOnlyOnRequest)
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

TEST_F(HostPanesTest, F3ShowsTheValueInAPaneBesideTheGrid)
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

TEST_F(HostPanesTest, EscapeAndF3LeaveTheValuePaneForTheGrid)
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

TEST_F(HostPanesTest, ADoubleClickOnATextThatIsCutShowsItUnlessEventsAreListed)
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
