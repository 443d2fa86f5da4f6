#pragma once

#include "language/Text.h"

#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

class Session;

// What has to hold before a command runs.
enum class Needs { Nothing, Records };
// What becomes of the record that is being edited: it is left alone; it is listed again, so that a value
// being typed is taken first; or it is left for another one, so that it is saved first.
enum class Record { Stays, IsListedAgain, IsLeft };

// A button of the toolbar.
struct ButtonTexts
{
    int place; // buttons stand in this order; each hundred is a group
    Text caption;
    Text toolTip;
    bool isToggle = false;
    // Whether the caption is written beside the picture where there is room: pictures that are alike.
    bool isCaptioned = false;
};

// A menu inside a popup menu.
enum class MenuGroup { None, CopyAs };

// An item of a popup menu; the indexes that no command has are separators.
struct MenuItemTexts
{
    int index = 0; // from 1; 0 for a command that the menu doesn't have
    Text caption = {};
    // Chosen here, the command shows many records again first.
    bool leavesSingleRecord = false;
    MenuGroup group = MenuGroup::None;
    // The button without which it can't be used either, where that isn't the command's own.
    QString enabledAs = {};
    // Whether it needs a current cell with a text.
    bool needsText = false;
};

// One thing that a user can do with a result. A command is a static Registration in a source file of its own;
// toolbar, menus and shortcuts are made of what is registered.
struct Command
{
    // Makes its texts.
    static constexpr TextTable tr{"KOVAVSFDataGridLib::Command"};

    QString key;                // also the name of its icon
    QString shortcut;           // in the form that QKeySequence reads
    QString otherShortcut = {}; // a second one, of a command without a button
    std::optional<ButtonTexts> button = {};
    MenuItemTexts menu = {};
    // Whether the full-screen viewer has it, and where in its menu.
    bool isInViewer = false;
    MenuItemTexts viewerMenu = {};
    Needs needs = Needs::Nothing;
    Record record = Record::IsLeft;
    void (*run)(Session &session);
    // Why it can't run on what is shown now, for the user to read; empty when it can. Null when it always
    // can.
    QString (*whyNot)(Session &session) = nullptr;
    // Whether what a menu item switches is on. Null for all others.
    bool (*isOn)(Session &session) = nullptr;

    struct Registration
    {
        explicit Registration(Command command);
    };

    // Null when there is no such command.
    static const Command *find(const QString &key);
    // The command of an index, from 1, in the menu or in the viewer's, and the highest index there.
    static const Command *findMenuItem(MenuItemTexts Command::*menu, int index);
    static int lastMenuIndex(MenuItemTexts Command::*menu);
    // All commands: those with buttons in their order, then the others.
    static const std::vector<const Command *> &all();
};

} // namespace KOVAVSFDataGridLib
