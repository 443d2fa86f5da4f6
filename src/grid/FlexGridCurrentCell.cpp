// The current cell of a FlexGrid: how it moves by program, mouse and key, and when that is signalled.
#include "grid/FlexGrid.h"
#include "grid/cells/FlexGridModel.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>

#include <utility>

namespace KOVAVSFDataGridLib {

void FlexGrid::PutRow(int row)
{
    checkRow(row);
    makeCurrent(row, m_col == 0 && row > 0 && Cols() > m_model->fixedCols() ? m_model->fixedCols() : m_col);
}

void FlexGrid::PutCol(int col)
{
    checkCol(col);
    makeCurrent(m_row, col);
}

// In the grid's terms, headings and hidden columns can be current, but in the view that would disable its
// keys. So the numbers are stored here, and the view uses the nearest visible column.
void FlexGrid::makeCurrent(int row, int col)
{
    const bool isCell = row > 0 && m_model->columnCount() > 0;
    notifyAfter([&] {
        setAutoScroll(false); // the visible part is changed only by TopRow
        setCurrentIndex(isCell ? m_model->index(row - 1, nearestShownSection(section(col))) : QModelIndex());
        setAutoScroll(true);
        m_row = row;
        m_col = col;
    });
}

void FlexGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    if (!current.isValid())
        return;
    m_col = current.column() + m_model->fixedCols();
    const int row = current.row() + 1;
    if (m_row != row) {
        m_row = row;
        if (m_isActing)
            m_hasNewRow = true;
        else
            Q_EMIT CurrentRowChanged(row);
    }
}

void FlexGrid::notifyAfter(const std::function<void()> &act)
{
    if (m_isActing)
        return act();
    m_isActing = true;
    act();
    m_isActing = false;
    const std::optional<int> clickedCol = std::exchange(m_clickedCol, std::nullopt);
    const QPointer<FlexGrid> alive(this);
    if (std::exchange(m_hasNewRow, false))
        Q_EMIT CurrentRowChanged(m_row);
    if (alive && clickedCol)
        Q_EMIT HeadingClicked(*clickedCol);
}

void FlexGrid::mousePressEvent(QMouseEvent *event)
{
    notifyAfter([&] {
        QTableView::mousePressEvent(event);
        // The view's cell does not change if it represents the current column, which is hidden.
        if (const QModelIndex cell = indexAt(event->position().toPoint());
            cell.isValid() && cell == currentIndex())
            m_col = cell.column() + m_model->fixedCols();
    });
}

void FlexGrid::mouseMoveEvent(QMouseEvent *event)
{
    notifyAfter([&] { QTableView::mouseMoveEvent(event); });
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    notifyAfter([&] { QTableView::mouseDoubleClickEvent(event); });
}

void FlexGrid::keyPressEvent(QKeyEvent *event)
{
    notifyAfter([&] { QTableView::keyPressEvent(event); });
}

QModelIndex FlexGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex target = QTableView::moveCursor(action, modifiers);
    const int lastUsed = UsedRows() - 2; // model rows exclude the headings
    if (!target.isValid() || target.row() <= lastUsed)
        return target;
    return lastUsed >= 0 ? target.siblingAtRow(lastUsed) : currentIndex();
}

int FlexGrid::RowSel() const
{
    const QModelIndex current = currentIndex();
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        if (range.contains(current))
            return (current.row() == range.top() ? range.bottom() : range.top()) + 1;
    }
    return m_row;
}

int FlexGrid::ColSel() const
{
    const QModelIndex current = currentIndex();
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        if (range.contains(current))
            return (current.column() == range.left() ? range.right() : range.left()) + m_model->fixedCols();
    }
    return m_col;
}

} // namespace KOVAVSFDataGridLib
