#include "control/parts/GridWindow.h"

#include "control/parts/GridToolbar.h"
#include "control/parts/PopupMenu.h"
#include "grid/FlexGrid.h"
#include "grid/GridSelection.h"
#include "grid/Twips.h"
#include "session/Session.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QScrollBar>

namespace KOVAVSFDataGridLib {

GridWindow::GridWindow(VSFlexGrid &grid, GridToolbar &toolbar) : m_grid(grid), m_toolbar(toolbar) {}

int GridWindow::Cols() const
{
    return m_grid.Cols();
}

QStringList GridWindow::Headings() const
{
    return m_grid.Headings();
}

int GridWindow::ColWidth(int col) const
{
    return m_grid.ColWidth(col);
}

void GridWindow::PutColWidth(int col, int twips)
{
    m_grid.PutColWidth(col, twips);
}

void GridWindow::ResetColWidths()
{
    m_grid.ResetColWidths();
}

int GridWindow::widthOfColumns() const
{
    int sum = 0;
    for (int col = 0; col < m_grid.Cols(); ++col)
        sum += m_grid.ColWidthInUse(col);
    return sum;
}

int GridWindow::width() const
{
    return Twips::fromPixels(m_grid.width(), m_grid);
}

void GridWindow::refreshRecords()
{
    m_grid.Refresh();
}

int GridWindow::Row() const
{
    return m_grid.Row();
}

int GridWindow::Rows() const
{
    return m_grid.Rows();
}

void GridWindow::PutRow(int row)
{
    m_grid.PutRow(row);
}

void GridWindow::PutCol(int col)
{
    m_grid.PutCol(col);
}

int GridWindow::currentCol() const
{
    return m_grid.ShownCol();
}

MarkedCells GridWindow::markedCells() const
{
    GridSelection selected = selectedCells(m_grid);
    return {selected.firstRow, selected.lastRow, std::move(selected.columns)};
}

std::vector<int> GridWindow::shownColumns() const
{
    return KOVAVSFDataGridLib::shownColumns(m_grid);
}

void GridWindow::putOnClipboard(std::unique_ptr<QMimeData> data)
{
    QGuiApplication::clipboard()->setMimeData(data.release());
}

void GridWindow::keepInView(const std::function<void()> &change)
{
    const int col = m_grid.Col();
    const int x = m_grid.horizontalScrollBar()->value();
    const int y = m_grid.verticalScrollBar()->value();
    change();
    if (m_grid.Row() > 0 && col < m_grid.Cols())
        m_grid.PutCol(col);
    m_grid.horizontalScrollBar()->setValue(x);
    m_grid.verticalScrollBar()->setValue(y);
}

void GridWindow::setPressed(const QString &key, bool on)
{
    m_toolbar.setButtonPressed(key, on);
}

void GridWindow::refreshCommands()
{
    for (const Command *command : Command::all()) {
        if (command->button && command->whyNot)
            m_toolbar.setButtonReason(command->key, m_session->whyNot(*command));
    }
    if (m_menu)
        m_menu->refresh();
}

} // namespace KOVAVSFDataGridLib
