#pragma once

class QRect;
class QTableView;

namespace KOVAVSFDataGridLib {

// Draws a frame around the current cell where others are selected with it, so that it can be distinguished
// from them. To be called while the viewport is painted. Nothing outside `part` of it is drawn on.
void paintCurrentCellFrame(const QTableView &view, const QRect &part);

} // namespace KOVAVSFDataGridLib
