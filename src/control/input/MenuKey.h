#pragma once

class QKeyEvent;
class QPoint;
class QTableView;

namespace KOVAVSFDataGridLib {

// Whether the key opens a menu: the menu key, or Shift+F10.
bool isMenuKey(const QKeyEvent &event);
// The position for such a menu: below the current cell, in screen coordinates.
QPoint menuPlace(const QTableView &grid);

} // namespace KOVAVSFDataGridLib
