#pragma once

class QRect;
class QTableView;

namespace KOVAVSFDataGridLib {

// Paints a frame around the current cell if other cells are selected too, so that it can be distinguished.
// Call it while the viewport is being painted. Only `part` of the viewport is painted on.
void paintCurrentCellFrame(const QTableView &view, const QRect &part);

} // namespace KOVAVSFDataGridLib
