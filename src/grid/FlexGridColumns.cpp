#include "grid/FlexGrid.h"

#include "grid/Twips.h"
#include "grid/cells/FlexGridModel.h"
#include "grid/painting/CellDelegate.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QHeaderView>

#include <algorithm>

// The columns' widths, exact in twips, and the view's sections, in pixels.
namespace KOVAVSFDataGridLib {

int FlexGrid::ColWidth(int col) const
{
    checkCol(col);
    return m_widths[static_cast<std::size_t>(col)];
}

void FlexGrid::PutColWidth(int col, int twips)
{
    checkCol(col);
    m_widths[static_cast<std::size_t>(col)] = std::max(twips, useDefaultWidth);
    applyWidth(col);
    // Moves the view's current cell to a visible column, and back when the current column is shown again.
    if (currentIndex().isValid() && currentIndex().column() != nearestShownSection(section(m_col)))
        makeCurrent(m_row, m_col);
}

int FlexGrid::ColWidthInUse(int col) const
{
    const int width = ColWidth(col);
    if (col < m_model->fixedCols() && width == useDefaultWidth)
        return Twips::fromPixels(verticalHeader()->width(), *this);
    return width == useDefaultWidth ? defaultColWidth : width;
}

void FlexGrid::ResetColWidths()
{
    m_widths.assign(m_widths.size(), useDefaultWidth);
    applyWidths();
}

int FlexGrid::ShownCol() const
{
    return nearestShownSection(section(m_col)) + m_model->fixedCols();
}

int FlexGrid::nearestShownSection(int section) const
{
    for (int distance = 0; distance < m_model->columnCount(); ++distance) {
        for (const int candidate : {section + distance, section - distance}) {
            if (candidate >= 0 && candidate < m_model->columnCount() && !isColumnHidden(candidate))
                return candidate;
        }
    }
    return section;
}

void FlexGrid::applyWidths()
{
    const QScopedValueRollback<bool> applying(m_isApplyingWidths, true);
    horizontalHeader()->setDefaultSectionSize(Twips::toPixels(defaultColWidth, *this));
    for (int col = 0; col < Cols(); ++col)
        applyWidth(col);
}

void FlexGrid::applyWidth(int col)
{
    const QScopedValueRollback<bool> applying(m_isApplyingWidths, true);
    const int width = m_widths[static_cast<std::size_t>(col)];
    if (col < m_model->fixedCols()) {
        // By default, the row headings are as wide as their numbers.
        verticalHeader()->setVisible(width != 0);
        if (width > 0)
            verticalHeader()->setFixedWidth(Twips::toPixels(width, *this));
        return;
    }
    setColumnHidden(section(col), width == 0);
    if (width != 0)
        setColumnWidth(section(col), Twips::toPixels(ColWidthInUse(col), *this));
}

// The last visible column takes all of the remaining width.
bool FlexGrid::isStretched(int section) const
{
    if (!horizontalHeader()->stretchLastSection())
        return false;
    for (int behind = section + 1; behind < m_model->columnCount(); ++behind) {
        if (!isColumnHidden(behind))
            return false;
    }
    return true;
}

void FlexGrid::onSectionResized(int section, int size)
{
    if (m_isApplyingWidths || isStretched(section))
        return;
    const int col = section + m_model->fixedCols();
    const int twips = Twips::fromPixels(size, *this);
    m_widths[static_cast<std::size_t>(col)] = twips;
    Q_EMIT ColWidthChanged(col, twips);
}

void FlexGrid::PutTextMarker(TextMarker marker)
{
    m_model->setTextMarker(std::move(marker));
    viewport()->update();
}

bool FlexGrid::IsTextCut(int row, int col) const
{
    checkRow(row);
    checkCol(col);
    const QModelIndex index = m_model->index(row - 1, section(col));
    const QString text = m_model->shownText(row, col);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    return index.isValid() &&
           (CellDelegate::shownText(text) != text ||
            itemDelegateForIndex(index)->sizeHint(option, index).width() > columnWidth(index.column()));
}

} // namespace KOVAVSFDataGridLib
