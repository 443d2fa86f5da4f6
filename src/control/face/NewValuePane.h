#pragma once

#include "../../KovaExport.h"

#include <functional>

class KOVAVSFDataGrid;
class QWidget;

namespace KOVAVSFDataGridLib {

// Creates a pane that shows the complete value of the grid's current cell while it is visible: long texts
// with their line breaks, JSON and XML, pictures, bytes. Its owner is `parent`, for example a QDockWidget of
// the host. When the user asks for a value with F3 or a double click, the grid calls `bring`, which must make
// the pane visible, and moves the focus to it; no window opens then. In the pane, Escape and F3 give the
// focus back to the grid. A grid uses only one pane: the last one that was created and still exists.
KOVA_EXPORT QWidget *newValuePane(KOVAVSFDataGrid &grid, QWidget *parent, std::function<void()> bring);

} // namespace KOVAVSFDataGridLib
