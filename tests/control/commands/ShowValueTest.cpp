// A cell's value in a window of its own.
#include "Shop.h"

#include <KOVAVSFDataGridLib/control/face/NewValuePane.h>

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabWidget>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class ShowValue : public Shop
{
protected:
    ShowValue()
    {
        grid.activateWindow();
        QCoreApplication::processEvents();
        grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s)->setChecked(false);
    }

    QDialog *window() const { return grid.findChild<QDialog *>(u"ValueDialog"_s); }
    QString shownText() const
    {
        const auto *shown = window() ? window()->findChild<QPlainTextEdit *>(u"txtValue"_s) : nullptr;
        return shown ? shown->toPlainText() : QString();
    }
    void press(QWidget *view)
    {
        grid.activateWindow();
        QCoreApplication::processEvents();
        view->setFocus();
        QTest::keyClick(view, Qt::Key_F3);
    }
    void doubleClick(int row, int col)
    {
        const QPoint place = table->visualRect(table->model()->index(row - 1, col - 1)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
    }
    void narrow(int col) { table->setColumnWidth(col - 1, 12); }
};

} // namespace

TEST_F(ShowValue, TheOpenWindowFollowsTheCurrentCell)
{
    ASSERT_TRUE(load());
    clickCell(2, 2);
    press(table);
    ASSERT_EQ(shownText(), u"普洱茶"_s);
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shownText() == u"铁观音"_s; })) << shownText().toStdString();
    EXPECT_EQ(window()->findChild<QLabel *>(u"lblPlace"_s)->text(), u"名称（第 3 行）"_s);
    window()->close();
    clickCell(1, 2);
    QCoreApplication::processEvents();
    EXPECT_FALSE(window() && window()->isVisible()) << "it stays closed";
}

TEST_F(ShowValue, F3ShowsTheCurrentCellAndAnotherOneInTheSameWindow)
{
    ASSERT_TRUE(load());
    clickCell(2, 2);
    press(table);
    ASSERT_TRUE(window());
    EXPECT_TRUE(window()->isVisible());
    EXPECT_FALSE(window()->isModal());
    EXPECT_EQ(shownText(), u"普洱茶"_s);
    EXPECT_EQ(window()->findChild<QLabel *>(u"lblPlace"_s)->text(), u"名称（第 2 行）"_s);
    clickCell(3, 2);
    press(table);
    EXPECT_EQ(shownText(), u"铁观音"_s);
    EXPECT_EQ(grid.findChildren<QDialog *>(u"ValueDialog"_s).size(), 1);
}

TEST_F(ShowValue, ShowsBytesAndNull)
{
    ASSERT_TRUE(load());
    clickCell(2, 7);
    press(table);
    auto *views = window()->findChild<QTabWidget *>(u"tabViews"_s);
    EXPECT_EQ(views->tabText(views->count() - 1), u"十六进制"_s);
    clickCell(3, 5);
    press(table);
    EXPECT_EQ(window()->findChild<QLabel *>(u"lblSummary"_s)->text(), u"空值（NULL）"_s);
}

TEST_F(ShowValue, TheWindowIsAsWideAsALineOfBytes)
{
    ASSERT_TRUE(load(u"SELECT zeroblob(2000) AS V"_s, {}));
    clickCell(1, 1);
    press(table);
    ASSERT_TRUE(window());
    const auto *bytes = window()->findChild<QAbstractScrollArea *>(u"HexPane"_s);
    ASSERT_TRUE(bytes);
    EXPECT_GT(bytes->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(bytes->horizontalScrollBar()->maximum(), 0) << window()->width();
}

TEST_F(ShowValue, ShowsWhatIsWrittenIntoASingleRecord)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    list->setCurrentIndex(list->model()->index(listedRow(u"城市"_s), 1));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_F2);
    edit->clear();
    QTest::keyClicks(edit, u"Beijing"_s);
    QTest::keyClick(edit, Qt::Key_Return);
    list->setCurrentIndex(list->model()->index(listedRow(u"城市"_s), 1));
    press(list);
    EXPECT_EQ(shownText(), u"Beijing"_s);
    EXPECT_TRUE(isSingleRecordShown());
}

TEST_F(ShowValue, ADoubleClickOnATextThatIsCutShowsIt)
{
    ASSERT_TRUE(load());
    doubleClick(2, 2);
    EXPECT_FALSE(window()) << "it can be read where it is";
    narrow(2);
    doubleClick(2, 2);
    ASSERT_TRUE(window());
    EXPECT_EQ(shownText(), u"普洱茶"_s);
}

TEST_F(ShowValue, ADoubleClickBelongsToAHostThatListens)
{
    ASSERT_TRUE(load());
    narrow(2);
    QStringList events;
    QObject::connect(&grid, &KOVAVSFDataGrid::DataDBLClickOneCell, &grid,
                     [&](qint32 col, qint32 row) { events.append(u"%1,%2"_s.arg(col).arg(row)); });
    doubleClick(2, 2);
    EXPECT_FALSE(window());
    EXPECT_EQ(events, QStringList(u"2,2"_s));
}

TEST_F(ShowValue, ComesFromTheMenuAndStaysWhenTheResultGoes)
{
    ASSERT_TRUE(load());
    choose(28, 4, 2);
    ASSERT_TRUE(window());
    EXPECT_EQ(shownText(), u"花茶"_s);
    grid.ClearObject();
    EXPECT_EQ(shownText(), u"花茶"_s);
    QTest::keyClick(window(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window());
}

TEST_F(ShowValue, AnOpenWindowGoesWithItsControl)
{
    auto *other = new KOVAVSFDataGrid;
    other->resize(600, 300);
    other->show();
    other->PutConnectionString(database.connectionString());
    other->PutSQLShow(statementOfAll());
    ASSERT_TRUE(other->IsLoadData());
    other->findChild<QAction *>(u"PopMnuDataAction28"_s)->trigger();
    const QPointer<QDialog> shown = other->findChild<QDialog *>(u"ValueDialog"_s);
    ASSERT_TRUE(shown);
    delete other;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(shown);
}

TEST_F(ShowValue, AHostsPaneIsUsedInPlaceOfTheWindow)
{
    QWidget host;
    QWidget *const pane = KOVAVSFDataGridLib::newValuePane(grid, &host, [&] { host.show(); });
    const auto shown = [&] {
        const auto *view = pane->findChild<QPlainTextEdit *>(u"txtValue"_s);
        return view ? view->toPlainText() : QString();
    };
    ASSERT_TRUE(load());
    clickCell(2, 2);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown(), QString()) << "nobody can see it";
    press(table);
    EXPECT_TRUE(host.isVisible());
    EXPECT_FALSE(window());
    EXPECT_EQ(shown(), u"普洱茶"_s);
    for (const auto *button : pane->findChildren<QPushButton *>())
        EXPECT_FALSE(button->text().contains(u'&')) << "the host has access keys of its own";
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == u"铁观音"_s; })) << shown().toStdString();
    // In a single record, the pane follows the field.
    button(u"SingleRecord"_s)->trigger();
    makeCurrent(u"城市"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == u"厦门"_s; })) << shown().toStdString();
    button(u"AllRecord"_s)->trigger();
    // A pane that comes into view has what was chosen meanwhile.
    host.hide();
    clickCell(4, 2);
    QCoreApplication::processEvents();
    host.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == u"花茶"_s; })) << shown().toStdString();
    grid.ClearObject();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown().isEmpty(); })) << shown().toStdString();
    delete pane;
    ASSERT_TRUE(load());
    clickCell(2, 2);
    press(table);
    EXPECT_TRUE(window()) << "without the pane there is the window again";
}
