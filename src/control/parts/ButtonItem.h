#pragma once

class QAction;
class QString;

namespace KOVAVSFDataGridLib {

// Gives a menu item that repeats a toolbar button that button's picture, and tells its shortcut beside the
// caption. The shortcut itself stays the button's.
void dressAsButton(QAction &item, const QString &key);

} // namespace KOVAVSFDataGridLib
