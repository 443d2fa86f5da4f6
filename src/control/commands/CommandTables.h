#pragma once

#include "control/commands/ControlHub.h"

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// What has to hold before a command runs.
enum class Needs { Nothing, Records };
// What becomes of the record that is being edited: it is left alone; it is listed anew, so that a value being
// typed is taken first; or it is left for another one, so that it is saved first.
enum class Record { Stays, IsListedAnew, IsLeft };

struct ToolbarCommand
{
    QString key;
    Needs needs;
    Record record;
    void (*run)(ControlHub &hub);
};

struct MenuCommand
{
    int index;
    Record record;
    void (*run)(ControlHub &hub);
};

// Null when no button has the key.
const ToolbarCommand *toolbarCommand(const QString &key);
// Null when no item has the index, as a separator has none.
const MenuCommand *menuCommand(int index);

} // namespace KOVAVSFDataGridLib
