#pragma once

#include "language/Text.h"

#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

class Session;

// What a command needs to run.
enum class Needs { Nothing, Records };
// What happens to an edit of the current record: nothing; the record is listed again, so a value being typed
// is committed first; or the record is left, so it is saved first.
enum class Record { Stays, IsListedAgain, IsLeft };

// A button of the toolbar.
struct ButtonTexts
{
    int place; // determines the order of the buttons; each hundred is a group
    Text caption;
    Text toolTip;
    bool isToggle = false;
    // Whether the caption is shown beside the picture if there is room: for pictures that look alike.
    bool isCaptioned = false;
};

// A submenu of a popup menu.
enum class MenuGroup { None, CopyAs };

// An item of a popup menu. Indexes without a command are separators.
struct MenuItemTexts
{
    int index = 0; // from 1; 0 if the command is not in the menu
    Text caption = {};
    // If chosen here, the command leaves the single-record view first.
    bool leavesSingleRecord = false;
    MenuGroup group = MenuGroup::None;
    // The key of the button whose state it shares, unless that is the command's own.
    QString enabledAs = {};
    // Whether it needs a current cell with text.
    bool needsText = false;
};

// A command on a result. It is a static Registration in its own source file. Toolbar, menus and shortcuts are
// created from the registered commands.
struct Command
{
    // Makes its texts.
    static constexpr TextTable tr{"KOVAVSFDataGridLib::Command"};

    QString key;                // also the name of its icon
    QString shortcut;           // in the syntax of QKeySequence
    QString otherShortcut = {}; // a second one, for a command without a button
    std::optional<ButtonTexts> button = {};
    MenuItemTexts menu = {};
    // Whether the full-screen viewer has the command, and where in its menu.
    bool isInViewer = false;
    MenuItemTexts viewerMenu = {};
    Needs needs = Needs::Nothing;
    Record record = Record::IsLeft;
    void (*run)(Session &session);
    // Why it can't run now, as a text for the user;
    // empty if it can. Null if it always can.
    QString (*whyNot)(Session &session) = nullptr;
    // Whether the option that a menu item toggles is on. Null for other items.
    bool (*isOn)(Session &session) = nullptr;

    struct Registration
    {
        explicit Registration(Command command);
    };

    // Null if there is no such command.
    static const Command *find(const QString &key);
    // The command with an index (from 1) in the menu or in the viewer's, and the highest index there.
    static const Command *findMenuItem(MenuItemTexts Command::*menu, int index);
    static int lastMenuIndex(MenuItemTexts Command::*menu);
    // All commands: first those with buttons, in their order, then the others.
    static const std::vector<const Command *> &all();
};

} // namespace KOVAVSFDataGridLib
