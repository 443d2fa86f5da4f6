#pragma once

#include "session/commands/Command.h"

class QMenu;

namespace KOVAVSFDataGridLib {

// The menu for the items of a group: one inside `menu`, made on first use, or `menu` itself.
QMenu &menuOfGroup(QMenu &menu, MenuGroup group);

} // namespace KOVAVSFDataGridLib
