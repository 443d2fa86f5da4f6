#pragma once

class QAction;

namespace KOVAVSFDataGridLib {

struct Command;

// Gives a menu item that repeats a toolbar button that button's picture, and shows its shortcut beside the
// caption. The shortcut itself stays the button's.
void dressAsButton(QAction &item, const Command &command);

} // namespace KOVAVSFDataGridLib
