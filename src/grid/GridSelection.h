#pragma once

#include <vector>

namespace KOVAVSFDataGridLib {

class FlexGrid;

// Some of the columns in consecutive rows, in the grid's own numbers.
struct GridSelection
{
    int firstRow = 1;
    int lastRow = 0; // included; less than firstRow if nothing is selected
    std::vector<int> columns;
};

// The visible data columns, in display order.
std::vector<int> shownColumns(const FlexGrid &grid);
// The selection, without hidden columns and unused rows; the current cell if nothing is selected.
GridSelection selectedCells(const FlexGrid &grid);

} // namespace KOVAVSFDataGridLib
