// Looking for a text in what is shown.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class FindShown : public Shop
{
protected:
    FindShown()
    {
        grid.activateWindow();
        wholeRows->setChecked(false);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
    void open()
    {
        table->setFocus();
        QTest::keyClick(table, Qt::Key_G, Qt::ControlModifier);
    }
    void find(const QString &text)
    {
        open();
        type(*sought, text);
        settle();
    }
    // As an input method does it.
    static void type(QLineEdit &edit, const QString &text)
    {
        edit.clear();
        QInputMethodEvent typed;
        typed.setCommitString(text);
        QCoreApplication::sendEvent(&edit, &typed);
    }
    // Until nothing is left to search.
    static void settle()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }
    QString current() const
    {
        const QModelIndex cell = table->currentIndex();
        return u"%1,%2"_s.arg(cell.row() + 1).arg(cell.column() + 1);
    }
    // How many pixels of a cell have the colour of a mark.
    int marked(int row, int col)
    {
        const QRect cell = table->visualRect(table->model()->index(row - 1, col - 1));
        const QImage picture = table->viewport()->grab().toImage();
        int count = 0;
        for (int x = cell.left(); x <= cell.right(); ++x) {
            const QColor colour = picture.pixelColor(x, cell.center().y() - cell.height() / 3);
            count += colour.red() - colour.blue() > 60 ? 1 : 0;
        }
        return count;
    }

    QWidget *bar = grid.findChild<QWidget *>(u"FindBar"_s);
    QLineEdit *sought = grid.findChild<QLineEdit *>(u"txtFindShown"_s);
    QComboBox *column = grid.findChild<QComboBox *>(u"cmbFindColumn"_s);
    QCheckBox *wholeCell = grid.findChild<QCheckBox *>(u"chkWholeCell"_s);
    QCheckBox *matchCase = grid.findChild<QCheckBox *>(u"chkMatchCase"_s);
    QLabel *found = grid.findChild<QLabel *>(u"lblFound"_s);
    QCheckBox *wholeRows = grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s);
};

} // namespace

TEST_F(FindShown, OpensByItsKeysAboveTheFootAndClosesWithTheFocusInTheGrid)
{
    ASSERT_TRUE(load());
    const QRect before = table->geometry();
    EXPECT_FALSE(bar->isVisible());
    for (const auto &[key, modifiers] :
         {std::pair(Qt::Key_G, Qt::ControlModifier), std::pair(Qt::Key_F7, Qt::NoModifier)}) {
        table->setFocus();
        QTest::keyClick(table, key, modifiers);
        ASSERT_TRUE(bar->isVisible());
        EXPECT_TRUE(sought->hasFocus());
        EXPECT_EQ(table->geometry().top(), before.top());
        EXPECT_EQ(bar->geometry().top(), table->geometry().bottom() + 1);
        EXPECT_EQ(bar->geometry().bottom(), before.bottom());
        press(Qt::Key_Escape);
        EXPECT_FALSE(bar->isVisible());
        EXPECT_TRUE(table->hasFocus());
        EXPECT_EQ(table->geometry(), before);
    }
}

TEST_F(FindShown, CountsWhatItFindsAndGoesFromOneToTheNext)
{
    ASSERT_TRUE(load());
    clickCell(1, 1);
    find(u"茶"_s);
    EXPECT_EQ(found->text(), u"共 6 处"_s);
    EXPECT_EQ(current(), u"1,1"_s) << "typing moves nothing";
    press(Qt::Key_Return);
    EXPECT_EQ(current(), u"1,2"_s);
    EXPECT_EQ(found->text(), u"第 1 处，共 6 处"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(current(), u"2,2"_s);
    EXPECT_EQ(statement(), statementOfAll()) << "no other statement is run";
    press(Qt::Key_Return, Qt::ShiftModifier);
    press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(current(), u"12,2"_s);
    EXPECT_EQ(found->text(), u"第 6 处，共 6 处（已从末尾继续）"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(current(), u"1,2"_s);
    EXPECT_EQ(found->text(), u"第 1 处，共 6 处（已从开头继续）"_s);
    QTest::mouseClick(grid.findChild<QWidget *>(u"cmdFindNext"_s), Qt::LeftButton);
    EXPECT_EQ(current(), u"2,2"_s);
    EXPECT_TRUE(sought->isVisible());
}

TEST_F(FindShown, TheHostIsNotifiedOfEachRecordItGoesTo)
{
    ASSERT_TRUE(load());
    clickCell(1, 1);
    find(u"大连"_s);
    QSignalSpy moves(&grid, &KOVAVSFDataGrid::RecordChanged);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    ASSERT_EQ(moves.count(), 2);
    EXPECT_EQ(moves.at(0).at(1).toInt(), 5);
    EXPECT_EQ(moves.at(1).at(1).toInt(), 8);
}

TEST_F(FindShown, LooksInOneColumnAtWholeCellsAndAtLetterCase)
{
    ASSERT_TRUE(load());
    find(u"1"_s);
    const QString everywhere = found->text();
    column->setCurrentIndex(column->findText(u"ID"_s));
    settle();
    EXPECT_EQ(found->text(), u"共 4 处"_s);
    EXPECT_NE(found->text(), everywhere);
    QTest::mouseClick(wholeCell, Qt::LeftButton, {}, {5, wholeCell->height() / 2});
    settle();
    EXPECT_EQ(found->text(), u"共 1 处"_s);
    column->setCurrentIndex(0);
    wholeCell->setChecked(false);
    find(u"o'neil"_s);
    EXPECT_EQ(found->text(), u"共 1 处"_s);
    matchCase->setChecked(true);
    settle();
    EXPECT_EQ(found->text(), u"没有找到"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(found->text(), u"没有找到"_s);
}

TEST_F(FindShown, MarksWhatItFindsUntilItIsClosed)
{
    ASSERT_TRUE(load());
    clickCell(5, 1);
    find(u"茶"_s);
    const int width = table->fontMetrics().horizontalAdvance(u"茶"_s);
    EXPECT_NEAR(marked(1, 2), width + 2, 3) << "only the character";
    EXPECT_EQ(marked(5, 2), 0);
    EXPECT_EQ(marked(1, 4), 0);
    press(Qt::Key_Escape);
    EXPECT_EQ(marked(1, 2), 0);
}

TEST_F(FindShown, MarksTheWordsOfAQuickFilter)
{
    ASSERT_TRUE(load());
    WindowAnswers dialogs({[&](QDialog &dialog) { Hands::find(dialog, u"茶"_s, u"名称"_s); }});
    click(u"QuickFilter"_s);
    clickCell(2, 1);
    EXPECT_GT(marked(1, 2), 0);
    EXPECT_EQ(marked(1, 4), 0);
    click(u"ToPreview"_s);
    EXPECT_EQ(marked(1, 2), 0);
}

TEST_F(FindShown, FollowsTheColumnsThatAreShown)
{
    ASSERT_TRUE(load());
    find(u"大连"_s);
    EXPECT_EQ(found->text(), u"共 2 处"_s);
    EXPECT_EQ(column->count(), AllColumns.size() + 1);
    click(u"Part"_s);
    settle();
    EXPECT_EQ(found->text(), u"没有找到"_s) << "the column is hidden";
    EXPECT_EQ(column->count(), PartColumns.size() + 1);
}

TEST_F(FindShown, StartsOverWhenAnotherResultIsShown)
{
    ASSERT_TRUE(load());
    find(u"茶"_s);
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID < 3"_s));
    settle();
    EXPECT_EQ(found->text(), u"共 2 处"_s);
    grid.ClearObject();
    settle();
    press(Qt::Key_Return);
    SUCCEED() << "nothing is read from a result that is gone";
}

TEST_F(FindShown, ComesFromTheMenuAndLeavesTheSingleRecord)
{
    ASSERT_TRUE(load());
    click(u"SingleRecord"_s);
    ASSERT_TRUE(isSingleRecordShown());
    QTest::keyClick(list, Qt::Key_F7);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_TRUE(bar->isVisible());
    press(Qt::Key_Escape);
    choose(27, 1);
    EXPECT_TRUE(bar->isVisible());
}

TEST_F(FindShown, AHostMayDeleteTheControlFromInside)
{
    auto *other = new KOVAVSFDataGrid;
    other->resize(600, 300);
    other->show();
    other->activateWindow(); // shortcuts belong to the active window
    settle();
    other->PutConnectionString(database.connectionString());
    other->PutSQLShow(statementOfAll());
    ASSERT_TRUE(other->IsLoadData());
    QObject::connect(other, &KOVAVSFDataGrid::RecordChanged, other, [other] { delete other; });
    auto *cells = other->findChild<QTableView *>(u"vsfgDataGrid"_s);
    cells->setFocus();
    QTest::keyClick(cells, Qt::Key_F7);
    auto *text = other->findChild<QLineEdit *>(u"txtFindShown"_s);
    type(*text, u"大连"_s);
    settle();
    QPointer<KOVAVSFDataGrid> alive(other);
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_FALSE(alive);
}

TEST_F(FindShown, HasRoomForItsPartsInANarrowControl)
{
    ASSERT_TRUE(load());
    open();
    for (const int width : {1200, 700, 420, 260}) {
        grid.resize(width, 400);
        settle();
        for (const char *name : {"txtFindShown", "cmdFindPrevious", "cmdFindNext", "cmdFindClose"}) {
            const auto *part = grid.findChild<QWidget *>(QLatin1StringView(name));
            EXPECT_GE(part->width(), 10) << name << ' ' << width;
            EXPECT_TRUE(bar->rect().contains(part->geometry())) << name << ' ' << width;
        }
    }
}
