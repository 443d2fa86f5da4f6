#pragma once

#include "../../KovaExport.h"

#include <functional>

class KOVAVSFDataGrid;
class QWidget;

namespace KOVAVSFDataGridLib {

// Makes a pane that shows the value of the grid's current cell whole, as long as the pane is visible: long
// texts with their line breaks, JSON and XML, pictures, bytes. It belongs to `parent`, for example a
// QDockWidget of the host's. When the user asks for a value with F3 or a double click, the grid calls
// `bring`, which makes the pane visible, and gives it the keyboard; no window opens. A grid has one such
// pane: the last that was made and still lives.
KOVA_EXPORT QWidget *newValuePane(KOVAVSFDataGrid &grid, QWidget *parent, std::function<void()> bring);

} // namespace KOVAVSFDataGridLib
