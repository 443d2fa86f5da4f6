#pragma once

#include <vector>

namespace KOVAVSFDataGridLib {

class FlexGrid;

// Some of the columns over some rows in sequence, in the grid's own numbers.
struct GridSelection
{
    int firstRow = 1;
    int lastRow = 0; // included; less than firstRow when nothing is selected
    std::vector<int> columns;
};

// The data columns that can be seen, in the order in which they are shown.
std::vector<int> shownColumns(const FlexGrid &grid);
// What is selected, without hidden columns and unused rows; the current cell when nothing is.
GridSelection selectedCells(const FlexGrid &grid);

} // namespace KOVAVSFDataGridLib
