// The events for the user's mouse and key input, and how the recordset follows the grid.
#include "GridFixture.h"
#include "support/MessageAnswers.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolBar>

#include <cmath>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// The popup menu waits for a choice; this one never makes one.
struct MenuCloser : QObject
{
    MenuCloser() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (auto *menu = qobject_cast<QMenu *>(watched); menu && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(menu, &QMenu::close, Qt::QueuedConnection);
        return false;
    }
};

struct GridEventsTest : GridFixture
{
    GridEventsTest()
        : GridFixture(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, A TEXT, B TEXT);"
                      "INSERT INTO T VALUES (3,'c','x'),(1,'a','y'),(2,'b','z'),(4,'d','w')"_s)
    {
        part<QCheckBox>("CheckSelAllRow")->setChecked(false);
        EXPECT_TRUE(load(u"select * from T order by ID"_s));
        record<&KOVAVSFDataGrid::DataClick>(u"DataClick"_s);
        record<&KOVAVSFDataGrid::DataDblClick>(u"DataDblClick"_s);
        record<&KOVAVSFDataGrid::DataDBLClickOneCell>(u"DataDBLClickOneCell"_s);
        record<&KOVAVSFDataGrid::DataDBLClickOneRow>(u"DataDBLClickOneRow"_s);
        record<&KOVAVSFDataGrid::HeadClick>(u"HeadClick"_s);
        record<&KOVAVSFDataGrid::RecordChanged>(u"RecordChanged"_s);
        record<&KOVAVSFDataGrid::DataMouseDown>(u"DataMouseDown"_s);
        record<&KOVAVSFDataGrid::DataMouseUp>(u"DataMouseUp"_s);
    }

    // Logs each event with its integer arguments.
    template<auto Event>
    void record(const QString &name)
    {
        QObject::connect(&grid, Event, &grid, [this, name](auto &&...arguments) {
            QString entry = name;
            [[maybe_unused]] const auto add = [&entry](auto value) {
                if constexpr (std::is_integral_v<decltype(value)>)
                    entry += u' ' + QString::number(value);
            };
            (add(arguments), ...);
            log.append(entry);
        });
    }
    void doubleClick(int row, int col)
    {
        QTest::mouseDClick(pointed(row, col), Qt::LeftButton, {}, point(row, col));
    }
    QStringList doubleClickEvents() const { return log.filter(u"dbl"_s, Qt::CaseInsensitive); }
    QStringList firstColumn() const
    {
        QStringList texts;
        for (int row = 1; row <= table->model()->rowCount(); ++row)
            texts.append(table->model()->index(row - 1, 0).data().toString());
        return texts;
    }

    MenuCloser menus;
    QStringList log;
};

} // namespace

TEST_F(GridEventsTest, AClickMovesTheRecordsetAndNotifiesTheHostBeforeTheButtonIsUp)
{
    click(3, 2);
    EXPECT_EQ(grid.CurrPosition(), 3);
    EXPECT_EQ(field(u"A"_s)->property("Value").toString(), u"c"_s);
    EXPECT_EQ(log, QStringList({u"DataMouseDown 1 0"_s, u"RecordChanged 10 3"_s, u"DataClick"_s,
                                u"DataMouseUp 1 0"_s}));
}

TEST_F(GridEventsTest, AClickOnTheCurrentRowIsReportedButMovesNothing)
{
    click(1, 2);
    EXPECT_EQ(grid.CurrPosition(), 1);
    EXPECT_EQ(log, QStringList({u"DataMouseDown 1 0"_s, u"DataClick"_s, u"DataMouseUp 1 0"_s}));
}

TEST_F(GridEventsTest, AClickOnTheCurrentRowBringsBackARecordsetThatTheHostHasMoved)
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        grid.RecordSet()->setProperty("AbsolutePosition", 4);
        EXPECT_EQ(grid.CurrPosition(), 4);
        click(1, 1, button);
        EXPECT_EQ(grid.CurrPosition(), 1);
    }
}

TEST_F(GridEventsTest, AClickAfterTheLastRecordIsReportedButMovesNothing)
{
    grid.RecordSet()->setProperty("AbsolutePosition", 4);
    QMetaObject::invokeMethod(grid.RecordSet(), "Delete");
    QMetaObject::invokeMethod(grid.RecordSet(), "MoveFirst");
    ASSERT_EQ(table->model()->rowCount(), 4) << "the page still shows the row";
    log.clear();
    click(4, 1);
    EXPECT_EQ(grid.CurrPosition(), 1);
    EXPECT_EQ(log, QStringList({u"DataMouseDown 1 0"_s, u"DataClick"_s, u"DataMouseUp 1 0"_s}));
}

TEST_F(GridEventsTest, AHeadingClickIsPassedOnAndDoesNothingElse)
{
    grid.SetGridRow(2);
    grid.SetGridCol(1);
    log.clear();
    click(0, 3);
    EXPECT_EQ(log, QStringList({u"DataMouseDown 1 0"_s, u"DataMouseUp 1 0"_s, u"HeadClick 3"_s}));
    EXPECT_EQ(grid.GetGridRow(), 2);
    EXPECT_EQ(grid.GetGridCol(), 1);
    EXPECT_EQ(grid.CurrPosition(), 2);
    EXPECT_FALSE(table->selectionModel()->isColumnSelected(2));
}

TEST_F(GridEventsTest, AHeadingClickNeverSorts)
{
    ASSERT_TRUE(load(u"select * from T order by B"_s));
    const QStringList before = firstColumn();
    ASSERT_EQ(before, QStringList({u"4"_s, u"3"_s, u"1"_s, u"2"_s}));
    for (int clicks = 0; clicks < 3; ++clicks)
        click(0, 1);
    EXPECT_EQ(firstColumn(), before);
    EXPECT_FALSE(table->isSortingEnabled());
    EXPECT_FALSE(table->horizontalHeader()->isSortIndicatorShown());
}

TEST_F(GridEventsTest, TheCornerSelectsNothing)
{
    grid.SetGridRow(2);
    log.clear();
    const auto selected = table->selectionModel()->selectedIndexes();
    QWidget *corner = table->findChild<QAbstractButton *>();
    ASSERT_NE(corner, nullptr);
    QTest::mouseClick(corner, Qt::LeftButton, {}, corner->rect().center());
    EXPECT_EQ(table->selectionModel()->selectedIndexes(), selected);
    EXPECT_EQ(log, QStringList());
}

TEST_F(GridEventsTest, AClickBelowTheLastRowIsNoDataClick)
{
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, {20, table->viewport()->height() - 3});
    EXPECT_EQ(log, QStringList({u"DataMouseDown 1 0"_s, u"DataMouseUp 1 0"_s}));
}

TEST_F(GridEventsTest, BeforeAnyLoadNothingIsReported)
{
    grid.Clear();
    log.clear();
    click(1, 1);
    click(0, 1);
    doubleClick(1, 1);
    QTest::mouseMove(table->viewport(), {5, 5});
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(grid.CurrPosition(), 0);
}

TEST_F(GridEventsTest, ADoubleClickOnACellIsReportedInTwoSteps)
{
    doubleClick(2, 3);
    EXPECT_EQ(doubleClickEvents(), QStringList({u"DataDblClick"_s, u"DataDBLClickOneCell 3 2"_s}));
    EXPECT_EQ(grid.CurrPosition(), 2);
}

TEST_F(GridEventsTest, TheSecondReleaseOfADoubleClickIsNoSecondClick)
{
    const QPoint place = point(2, 3);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
    log.clear();
    // What the window system sends for the second half.
    const QPointF global = table->viewport()->mapToGlobal(QPointF(place));
    QMouseEvent second(QEvent::MouseButtonDblClick, place, global, Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(table->viewport(), &second);
    QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(log, QStringList({u"DataDblClick"_s, u"DataDBLClickOneCell 3 2"_s, u"DataMouseUp 1 0"_s}));
}

TEST_F(GridEventsTest, ADoubleClickWithWholeRowsCheckedMeansTheRow)
{
    part<QCheckBox>("CheckSelAllRow")->setChecked(true);
    for (const int col : {1, 3}) {
        log.clear();
        doubleClick(4, col);
        EXPECT_EQ(doubleClickEvents(), QStringList({u"DataDblClick"_s, u"DataDBLClickOneRow 4"_s}));
    }
}

TEST_F(GridEventsTest, ADoubleClickOnARowNumberMeansTheRow)
{
    doubleClick(3, 0);
    EXPECT_EQ(doubleClickEvents(), QStringList({u"DataDblClick"_s, u"DataDBLClickOneRow 3"_s}));
    // Also if the first column isn't visible.
    table->setColumnHidden(0, true);
    log.clear();
    doubleClick(2, 0);
    EXPECT_EQ(doubleClickEvents(), QStringList({u"DataDblClick"_s, u"DataDBLClickOneRow 2"_s}));
}

TEST_F(GridEventsTest, ADoubleClickInSeveralSelectedColumnsFromTheFirstMeansTheRow)
{
    table->setCurrentIndex(table->model()->index(1, 0));
    table->selectionModel()->select(QItemSelection(table->model()->index(1, 0), table->model()->index(1, 2)),
                                    QItemSelectionModel::Select);
    const QPoint place = point(2, 1);
    const QPointF global = table->viewport()->mapToGlobal(QPointF(place));
    QMouseEvent second(QEvent::MouseButtonDblClick, place, global, Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(table->viewport(), &second);
    EXPECT_EQ(doubleClickEvents(), QStringList({u"DataDblClick"_s, u"DataDBLClickOneRow 2"_s}));
}

TEST_F(GridEventsTest, ADoubleClickOnAHeadingStopsAfterTheFirstEvent)
{
    doubleClick(0, 2);
    EXPECT_EQ(doubleClickEvents(), QStringList(u"DataDblClick"_s));
}

TEST_F(GridEventsTest, MousePlacesAreTwipsWithButtonsAndModifiers)
{
    struct Seen
    {
        qint16 button, shift;
        float x, y;
    } seen{};
    const auto take = [&seen](qint16 &button, qint16 &shift, float &x, float &y) {
        seen = {button, shift, x, y};
    };
    QObject::connect(&grid, &KOVAVSFDataGrid::DataMouseDown, take);
    QObject::connect(&grid, &KOVAVSFDataGrid::DataMouseMove, take);

    const QPoint place = point(2, 2);
    const QPoint inGrid = table->viewport()->mapTo(table, place);
    const float perPixel = 1440.0f / static_cast<float>(table->logicalDpiX());
    QTest::mousePress(table->viewport(), Qt::MiddleButton, Qt::ShiftModifier | Qt::AltModifier, place);
    EXPECT_EQ(seen.button, 4);
    EXPECT_EQ(seen.shift, 5);
    EXPECT_FLOAT_EQ(seen.x, std::round(static_cast<float>(inGrid.x()) * perPixel));
    EXPECT_FLOAT_EQ(seen.y, std::round(static_cast<float>(inGrid.y()) * perPixel));
    QTest::mousePress(table->viewport(), Qt::RightButton, Qt::ControlModifier, place);
    EXPECT_EQ(seen.button, 2);
    EXPECT_EQ(seen.shift, 2);

    const QPointF move(place + QPoint(3, 1));
    QMouseEvent moved(QEvent::MouseMove, move, table->viewport()->mapToGlobal(move), Qt::NoButton,
                      Qt::LeftButton | Qt::RightButton, Qt::ShiftModifier);
    QApplication::sendEvent(table->viewport(), &moved);
    EXPECT_EQ(seen.button, 3) << "a move tells of all buttons that are down";
    EXPECT_EQ(seen.shift, 1);
    EXPECT_FLOAT_EQ(seen.x, std::round(static_cast<float>(inGrid.x() + 3) * perPixel));
}

TEST_F(GridEventsTest, AHandlerChangesWhatTheNextOneSees)
{
    QObject::connect(&grid, &KOVAVSFDataGrid::DataMouseMove,
                     [](qint16 &button, qint16 &shift, float &x, float &y) {
                         button = 7;
                         shift = 6;
                         x = 1.5f;
                         y = -2.0f;
                     });
    bool isSeen = false;
    QObject::connect(&grid, &KOVAVSFDataGrid::DataMouseMove,
                     [&](qint16 &button, qint16 &shift, float &x, float &y) {
                         isSeen = button == 7 && shift == 6 && x == 1.5f && y == -2.0f;
                     });
    QTest::mouseMove(table->viewport(), point(1, 1));
    EXPECT_TRUE(isSeen);
}

TEST_F(GridEventsTest, AReleaseBesideTheGridIsTheControlsOwnMouseUp)
{
    record<&KOVAVSFDataGrid::MouseUp>(u"MouseUp"_s);
    auto *panel = part<QWidget>("picMainBack");
    QTest::mouseClick(panel, Qt::LeftButton, Qt::ControlModifier, {panel->width() / 2, panel->height() - 2});
    EXPECT_EQ(log, QStringList(u"MouseUp 1 2"_s));
}

TEST_F(GridEventsTest, ARecordWhoseEditCantBeSavedStaysCurrent)
{
    field(u"ID"_s)->setProperty("Value", 2); // taken already
    MessageAnswers messages;
    click(3, 1);
    EXPECT_EQ(grid.CurrPosition(), 1);
    EXPECT_EQ(grid.GetGridRow(), 1);
    EXPECT_EQ(table->currentIndex().row(), 0);
    EXPECT_EQ(messages.texts(), QStringList());
    QMetaObject::invokeMethod(grid.RecordSet(), "CancelUpdate");
    click(3, 1);
    EXPECT_EQ(grid.CurrPosition(), 3);
}

TEST_F(GridEventsTest, ArrowKeysMoveTheRecordset)
{
    QTest::keyClick(table, Qt::Key_Down);
    QTest::keyClick(table, Qt::Key_Down);
    EXPECT_EQ(grid.CurrPosition(), 3);
    EXPECT_EQ(log, QStringList({u"RecordChanged 10 2"_s, u"RecordChanged 10 3"_s}));
}

TEST_F(GridEventsTest, AHandlerThatSetsTheKeyToNoneTakesItForItself)
{
    QObject::connect(&grid, &KOVAVSFDataGrid::DataKeyDown, [](qint16 &code, qint16 &) {
        if (code == 40)
            code = 0;
    });
    QTest::keyClick(table, Qt::Key_Down);
    EXPECT_EQ(grid.GetGridRow(), 1);
    QTest::keyClick(table, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grid.GetGridRow(), 4);
}

// A key, and the number and modifiers that the host sees.
struct KeyCase
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int code;
    int shift;
};

struct KeyDown : GridEventsTest, testing::WithParamInterface<KeyCase>
{
};

INSTANTIATE_TEST_SUITE_P(
    Keys, KeyDown,
    testing::Values(KeyCase{Qt::Key_Return, {}, 13, 0}, KeyCase{Qt::Key_Enter, Qt::KeypadModifier, 13, 0},
                    KeyCase{Qt::Key_Escape, {}, 27, 0}, KeyCase{Qt::Key_F1, {}, 112, 0},
                    KeyCase{Qt::Key_F12, Qt::ShiftModifier, 123, 1}, KeyCase{Qt::Key_A, {}, 65, 0},
                    KeyCase{Qt::Key_Z, Qt::ShiftModifier, 90, 1},
                    KeyCase{Qt::Key_C, Qt::ControlModifier, 67, 2},
                    KeyCase{Qt::Key_5, Qt::AltModifier, 53, 4},
                    KeyCase{Qt::Key_X, Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier, 88, 7},
                    KeyCase{Qt::Key_5, Qt::KeypadModifier, 101, 0},
                    KeyCase{Qt::Key_Plus, Qt::KeypadModifier, 107, 0}, KeyCase{Qt::Key_Delete, {}, 46, 0},
                    KeyCase{Qt::Key_Insert, {}, 45, 0}, KeyCase{Qt::Key_PageDown, {}, 34, 0},
                    KeyCase{Qt::Key_Home, {}, 36, 0}, KeyCase{Qt::Key_Left, {}, 37, 0},
                    KeyCase{Qt::Key_Space, {}, 32, 0}, KeyCase{Qt::Key_Backtab, Qt::ShiftModifier, 9, 1},
                    KeyCase{Qt::Key_Exclam, Qt::ShiftModifier, 49, 1},
                    KeyCase{Qt::Key_Semicolon, {}, 186, 0}));

TEST_P(KeyDown, IsReportedByItsVirtualKeyNumber)
{
    record<&KOVAVSFDataGrid::DataKeyDown>(u"DataKeyDown"_s);
    QTest::keyClick(table, GetParam().key, GetParam().modifiers);
    const QStringList keys = log.filter(u"DataKeyDown"_s);
    ASSERT_FALSE(keys.isEmpty());
    EXPECT_EQ(keys.last(), u"DataKeyDown %1 %2"_s.arg(GetParam().code).arg(GetParam().shift));
}

TEST_F(GridEventsTest, AKeyWithoutANumberIsNotReported)
{
    record<&KOVAVSFDataGrid::DataKeyDown>(u"DataKeyDown"_s);
    QTest::keyClick(table, Qt::Key_MediaPlay);
    EXPECT_EQ(log, QStringList());
}
