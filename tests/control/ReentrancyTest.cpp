// A host may do in a handler of any event what it may do elsewhere: load again, tear down, even delete the
// control.
#include "control/face/KOVAVSFDataGrid.h"
#include "support/MessageAnswers.h"
#include "support/TestDatabase.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolBar>
#include <gtest/gtest.h>

#include <ostream>
#include <string_view>
#include <utility>

using namespace KovaTest;
using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

using Grid = KOVAVSFDataGrid;

// What the host does in its handler.
struct Deed
{
    const char *name;
    void (*act)(Grid *grid);
};

// Brings the event about, as the user or the host does. The event is one of the control's, or of its data
// control. What `prepare` does comes before the handler is connected.
struct Occasion
{
    const char *event;
    const char *name;
    void (*cause)(Grid &grid);
    void (*prepare)(Grid &grid) = [](Grid &) {};
};

std::ostream &operator<<(std::ostream &stream, const Deed &deed)
{
    return stream << deed.name;
}

std::ostream &operator<<(std::ostream &stream, const Occasion &occasion)
{
    return stream << occasion.event << " by " << occasion.name;
}

QTableView &tableOf(const Grid &grid)
{
    return *grid.findChild<QTableView *>(u"vsfgDataGrid"_s);
}

QPoint cellPoint(const Grid &grid, int row, int col)
{
    const QTableView &table = tableOf(grid);
    return table.visualRect(table.model()->index(row - 1, col - 1)).center();
}

// All input goes to the window, which outlives the control.
QWindow *windowOf(const Grid &grid)
{
    return grid.window()->windowHandle();
}

void clickOn(const QWidget &widget, const QPoint &point, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(widget.window()->windowHandle(), button, {}, widget.mapTo(widget.window(), point));
}

void clickCell(Grid &grid)
{
    clickOn(*tableOf(grid).viewport(), cellPoint(grid, 2, 1));
}

void rightClickCell(Grid &grid)
{
    clickOn(*tableOf(grid).viewport(), cellPoint(grid, 2, 1), Qt::RightButton);
}

void doubleClick(const QWidget &widget, const QPoint &point)
{
    QTest::mouseDClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                       widget.mapTo(widget.window(), point));
}

void doubleClickCell(Grid &grid)
{
    grid.findChild<QCheckBox *>(u"CheckSelAllRow"_s)->setChecked(false);
    doubleClick(*tableOf(grid).viewport(), cellPoint(grid, 2, 1));
}

void doubleClickRowNumber(Grid &grid)
{
    doubleClick(*tableOf(grid).verticalHeader()->viewport(), {4, cellPoint(grid, 2, 1).y()});
}

void pressKey(Grid &grid, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    tableOf(grid).setFocus();
    QTest::keyClick(windowOf(grid), key, modifiers);
}

void pressDown(Grid &grid)
{
    pressKey(grid, Qt::Key_Down);
}

void pressButton(Grid &grid, const QString &key)
{
    const auto *toolbar = grid.findChild<QToolBar *>(u"Toolbar1"_s);
    const QWidget *button = toolbar->widgetForAction(toolbar->findChild<QAction *>(key));
    clickOn(*button, button->rect().center());
}

void load(Grid &grid)
{
    grid.IsLoadData();
}

void chooseItem(Grid &grid, const QString &item)
{
    grid.findChild<QAction *>(item)->trigger();
}

void insert(Grid &grid)
{
    chooseItem(grid, u"PopMnuDataAction8"_s);
}

void deleteRecord(Grid &grid)
{
    chooseItem(grid, u"PopMnuDataAction9"_s);
}

QTableView &listOf(const Grid &grid)
{
    return *grid.findChild<QTableView *>(u"MSFlexGrid1"_s);
}

QPoint listPoint(const Grid &grid, int row)
{
    return listOf(grid).visualRect(listOf(grid).model()->index(row - 1, 1)).center();
}

void showSingleRecord(Grid &grid)
{
    pressButton(grid, u"SingleRecord"_s);
}

void showAllRecords(Grid &grid)
{
    pressButton(grid, u"AllRecord"_s);
}

void beginEdit(Grid &grid)
{
    showSingleRecord(grid);
    clickOn(*listOf(grid).viewport(), listPoint(grid, 2));
    QTest::keyClick(windowOf(grid), Qt::Key_X);
}

void endEdit(Grid &grid)
{
    QTest::keyClick(windowOf(grid), Qt::Key_Return);
}

void edit(Grid &grid)
{
    beginEdit(grid);
    endEdit(grid);
}

// Presses a button of the full-screen viewer, which is closed afterwards.
void pressInViewer(Grid &grid, const QString &key)
{
    QTimer::singleShot(0, qApp, [key] {
        const QWidget *viewer = QApplication::activeModalWidget();
        ASSERT_TRUE(viewer);
        const auto *toolbar = viewer->findChild<QToolBar *>(u"Toolbar1"_s);
        QTest::mouseClick(toolbar->widgetForAction(toolbar->findChild<QAction *>(key)), Qt::LeftButton);
    });
    pressButton(grid, u"FullScreen"_s);
}

const Occasion Occasions[] = {
    {"DataMouseDown", "Click", [](Grid &grid) { clickCell(grid); }},
    {"DataMouseUp", "Click", [](Grid &grid) { clickCell(grid); }},
    {"DataMouseDown", "RightClick", rightClickCell},
    {"DataMouseDown", "RightClickOnAHeading",
     [](Grid &grid) {
         clickOn(*tableOf(grid).horizontalHeader()->viewport(), {20, 5}, Qt::RightButton);
     }},
    {"DataMouseUp", "RightClick", rightClickCell},
    {"DataMouseMove", "Move",
     [](Grid &grid) {
         QTest::mouseMove(windowOf(grid), {1, 1});
         QTest::mouseMove(windowOf(grid),
                          tableOf(grid).viewport()->mapTo(grid.window(), cellPoint(grid, 2, 1)));
     }},
    {"HeadClick", "HeadingClick",
     [](Grid &grid) {
         clickOn(*tableOf(grid).horizontalHeader()->viewport(), {20, 5});
     }},
    {"DataClick", "Click", [](Grid &grid) { clickCell(grid); }},
    {"DataDblClick", "DoubleClick", doubleClickCell},
    {"DataDBLClickOneCell", "DoubleClick", doubleClickCell},
    {"DataDBLClickOneRow", "DoubleClick", doubleClickRowNumber},
    {"DataDblClick", "DoubleClickOnAValue",
     [](Grid &grid) { doubleClick(*listOf(grid).viewport(), listPoint(grid, 1)); }, showSingleRecord},
    {"DataDBLClickOneCell", "DoubleClickOnAValue",
     [](Grid &grid) { doubleClick(*listOf(grid).viewport(), listPoint(grid, 1)); }, showSingleRecord},
    {"DataDBLClickOneRow", "DoubleClickOnTheListsHeading",
     [](Grid &grid) {
         doubleClick(*listOf(grid).horizontalHeader()->viewport(), {listPoint(grid, 1).x(), 5});
     },
     showSingleRecord},
    {"DataKeyDown", "Key", pressDown},
    {"DataKeyDown", "Shortcut", [](Grid &grid) { pressKey(grid, Qt::Key_M, Qt::ControlModifier); }},
    {"MouseUp", "Click",
     [](Grid &grid) {
         clickOn(*grid.findChild<QWidget *>(u"lblFieldCount"_s), {3, 3});
     }},
    {"MouseUp", "RightClick",
     [](Grid &grid) {
         clickOn(*grid.findChild<QWidget *>(u"lblFieldCount"_s), {3, 3}, Qt::RightButton);
     }},
    {"RecordChanged", "Click", [](Grid &grid) { clickCell(grid); }},
    {"RecordChanged", "Key", pressDown},
    {"RecordChanged", "SetGridRow", [](Grid &grid) { grid.SetGridRow(3); }},
    {"RecordChanged", "LocateSelRecord", [](Grid &grid) { grid.LocateSelRecord(3); }},
    {"RecordChanged", "Load", load},
    {"RecordChanged", "RightPress", rightClickCell},
    {"RecordChanged", "Insert", insert},
    {"RecordChanged", "LeavingANewRecord", showAllRecords, insert},
    {"RecordChanged", "GivingUpANewRecord",
     [](Grid &grid) { QTest::keyClick(&listOf(grid), Qt::Key_Escape); }, insert},
    {"RecordChanged", "DeletingANewRecord", deleteRecord, insert},
    {"RecordChanged", "Delete", deleteRecord},
    {"RecordChangeComplete", "Delete", deleteRecord},
    {"RecordChangeComplete", "TakingAValue", endEdit, beginEdit},
    {"RecordChangeComplete", "GoingToAnotherField",
     [](Grid &grid) { clickOn(*listOf(grid).viewport(), listPoint(grid, 1)); }, beginEdit},
    {"RecordChangeComplete", "Resizing", [](Grid &grid) { grid.resize(700, 400); }, beginEdit},
    {"RecordChangeComplete", "Saving", showAllRecords, edit},
    {"RecordChangeComplete", "SavingByMove", [](Grid &grid) { grid.SetGridRow(3); }, edit},
    {"RecordChangeComplete", "SavingForAnInsert", insert, edit},
    {"RecordsetReplaced", "Load", load},
    {"RecordsetReplaced", "ClearObject", [](Grid &grid) { grid.ClearObject(); }},
    {"RecordsetChanged", "Load", load},
    {"RecordsetChanged", "Clear", [](Grid &grid) { grid.Clear(); }},
    {"RecordsetChanged", "ClearObject", [](Grid &grid) { grid.ClearObject(); }},
    {"RecordsetChanged", "ToFullTable", [](Grid &grid) { pressButton(grid, u"ToFullTable"_s); }},
    {"RecordsetChanged", "ToOrigin", [](Grid &grid) { pressButton(grid, u"ToOrigin"_s); }},
    {"RecordsetChanged", "AllInTheViewer", [](Grid &grid) { pressInViewer(grid, u"All"_s); }},
    {"RecordsetReplaced", "ToFullTableInTheViewer",
     [](Grid &grid) { pressInViewer(grid, u"ToFullTable"_s); }},
    {"QurryFilter", "Filter", [](Grid &grid) { pressButton(grid, u"Filter"_s); }},
    {"ShowFieldsChange", "SelField", [](Grid &grid) { pressButton(grid, u"SelField"_s); }},
    {"PropertyChanged", "ToOrigin", [](Grid &grid) { pressButton(grid, u"ToOrigin"_s); }},
    {"PropertyChanged", "SelField", [](Grid &grid) { pressButton(grid, u"SelField"_s); }},
    {"PropertyChanged", "ConnectionString",
     [](Grid &grid) { grid.PutConnectionString(grid.ConnectionString()); }},
    {"PropertyChanged", "BackColor", [](Grid &grid) { grid.PutBackColor(Qt::red); }},
};

const Deed Deeds[] = {
    {"Loads", [](Grid *grid) { grid->IsLoadData(); }},
    {"LoadsAnother",
     [](Grid *grid) {
         grid->PutSQLShow(u"select B, A from T where ID > 2"_s);
         grid->IsLoadData();
     }},
    {"Clears", [](Grid *grid) { grid->Clear(); }},
    {"ClearsObject", [](Grid *grid) { grid->ClearObject(); }},
    {"DeletesLater", [](Grid *grid) { grid->deleteLater(); }},
    {"Deletes", [](Grid *grid) { delete grid; }},
};

class Handler : public QObject
{
    Q_OBJECT

public:
    Handler(Grid *grid, const Deed &deed) : m_grid(grid), m_deed(deed) {}
    bool wasCalled() const { return m_wasCalled; }

public Q_SLOTS:
    void act()
    {
        if (!std::exchange(m_wasCalled, true))
            m_deed.act(m_grid);
    }

private:
    Grid *m_grid;
    Deed m_deed;
    bool m_wasCalled = false;
};

// Nobody is there to use a menu or a dialog: the first field is chosen where there are any, all else is
// closed.
class Closer : public QObject
{
public:
    Closer() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isWaiting = qobject_cast<QMenu *>(watched) ||
                               (qobject_cast<QDialog *>(watched) && !qobject_cast<QMessageBox *>(watched));
        if (isWaiting && event->type() == QEvent::Show) {
            auto *window = static_cast<QWidget *>(watched);
            QMetaObject::invokeMethod(
                window, [window] { end(*window); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static void end(QWidget &window)
    {
        const auto *fields = window.findChild<QAbstractItemView *>(u"lvSelField"_s);
        if (!fields) {
            window.close();
            return;
        }
        fields->model()->setData(fields->model()->index(0, 0), Qt::Checked, Qt::CheckStateRole);
        window.findChild<QAbstractButton *>(u"cmdOK"_s)->click();
    }
};

void connectEvents(QObject &sender, const char *event, Handler &handler)
{
    const QMetaObject &meta = *sender.metaObject();
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal && meta.method(i).name() == event)
            QObject::connect(
                &sender, meta.method(i), &handler,
                Handler::staticMetaObject.method(Handler::staticMetaObject.indexOfSlot("act()")));
    }
}

struct Reentrancy : testing::TestWithParam<std::tuple<Occasion, Deed>>
{
};

std::string nameOf(const testing::TestParamInfo<Reentrancy::ParamType> &info)
{
    const auto &[occasion, deed] = info.param;
    return std::string(occasion.event) + "By" + occasion.name + deed.name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, Reentrancy,
                         testing::Combine(testing::ValuesIn(Occasions), testing::ValuesIn(Deeds)), nameOf);

TEST_P(Reentrancy, AHandlerDoesAsItLikes)
{
    const auto &[occasion, deed] = GetParam();
    if (occasion.name == "Resizing"sv && deed.name == "Deletes"sv)
        GTEST_SKIP() << "Qt itself goes on with the widget that was resized";
    const TestDatabase database(u"CREATE TABLE T (ID INTEGER PRIMARY KEY, A TEXT, B INTEGER);"
                                "INSERT INTO T VALUES (1,'a',10),(2,'b',20),(3,'c',30),(4,'d',40)"_s);
    QWidget form;
    form.resize(900, 500);
    QPointer<Grid> grid = new Grid(&form);
    grid->resize(form.size());
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    grid->PutDBType(Grid::dbAccess);
    grid->PutConnectionString(database.connectionString());
    grid->PutSQLShow(u"select * from T where ID > 0"_s);
    ASSERT_TRUE(grid->IsLoadData());
    MessageAnswers messages({QMessageBox::Yes});
    Closer closer;
    occasion.prepare(*grid);
    QCoreApplication::processEvents(); // the toolbar places its buttons

    Handler handler(grid, deed);
    connectEvents(*grid, occasion.event, handler);
    connectEvents(*grid->GetBond(), occasion.event, handler);
    occasion.cause(*grid);
    EXPECT_TRUE(handler.wasCalled());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    if (!grid)
        return;
    // It works on as ever.
    grid->PutSQLShow(u"select * from T"_s);
    EXPECT_TRUE(grid->IsLoadData());
    clickCell(*grid);
    EXPECT_EQ(grid->CurrPosition(), 2);
    for (const QString &text : messages.texts())
        EXPECT_EQ(text, u"确实要删除该记录?"_s);
}

#include "ReentrancyTest.moc"
