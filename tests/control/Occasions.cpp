#include "Occasions.h"

#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolBar>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

using Grid = KOVAVSFDataGrid;

QTableView &tableOf(const Grid &grid)
{
    return *grid.findChild<QTableView *>(u"vsfgDataGrid"_s);
}

QPoint cellPoint(const Grid &grid, int row, int col)
{
    const QTableView &table = tableOf(grid);
    return table.visualRect(table.model()->index(row - 1, col - 1)).center();
}

// All input is sent to the window, which outlives the control.
QWindow *windowOf(const Grid &grid)
{
    return grid.window()->windowHandle();
}

void clickOn(const QWidget &widget, const QPoint &point, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(widget.window()->windowHandle(), button, {}, widget.mapTo(widget.window(), point));
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

const std::vector<Occasion> allOccasions = {
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

} // namespace

const std::vector<Occasion> &occasions()
{
    return allOccasions;
}

std::ostream &operator<<(std::ostream &stream, const Occasion &occasion)
{
    return stream << occasion.event << " by " << occasion.name;
}

void clickCell(KOVAVSFDataGrid &grid)
{
    clickOn(*tableOf(grid).viewport(), cellPoint(grid, 2, 1));
}

} // namespace KovaTest
