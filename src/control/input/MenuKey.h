#pragma once

class QKeyEvent;
class QPoint;
class QTableView;

namespace KOVAVSFDataGridLib {

// Whether the key asks for a menu: the menu key, or Shift and F10.
bool isMenuKey(const QKeyEvent &event);
// Where such a menu belongs: below the current cell, on the screen.
QPoint menuPlace(const QTableView &grid);

} // namespace KOVAVSFDataGridLib
