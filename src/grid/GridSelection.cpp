#include "grid/GridSelection.h"

#include "grid/FlexGrid.h"

#include <QtWidgets/QHeaderView>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

int fixedCols(const FlexGrid &grid)
{
    return grid.Cols() - grid.model()->columnCount();
}

} // namespace

std::vector<int> shownColumns(const FlexGrid &grid)
{
    std::vector<int> columns;
    for (int visual = 0; visual < grid.model()->columnCount(); ++visual) {
        const int section = grid.horizontalHeader()->logicalIndex(visual);
        if (!grid.isColumnHidden(section))
            columns.push_back(section + fixedCols(grid));
    }
    return columns;
}

GridSelection selectedCells(const FlexGrid &grid)
{
    const QItemSelection selection = grid.selectionModel()->selection();
    GridSelection cells;
    if (selection.isEmpty()) {
        if (grid.Row() < 1)
            return cells;
        cells.firstRow = cells.lastRow = grid.Row();
        cells.columns = {grid.ShownCol()};
    } else {
        cells.firstRow = grid.Rows();
        for (const QItemSelectionRange &range : selection) {
            cells.firstRow = std::min(cells.firstRow, range.top() + 1);
            cells.lastRow = std::max(cells.lastRow, range.bottom() + 1);
        }
        cells.columns = shownColumns(grid);
        std::erase_if(cells.columns, [&](int col) {
            const int section = col - fixedCols(grid);
            return std::ranges::none_of(selection, [=](const QItemSelectionRange &range) {
                return section >= range.left() && section <= range.right();
            });
        });
    }
    cells.lastRow = std::min(cells.lastRow, grid.UsedRows() - 1);
    return cells;
}

} // namespace KOVAVSFDataGridLib
