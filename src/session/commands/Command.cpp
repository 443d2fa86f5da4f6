#include "session/commands/Command.h"

#include <algorithm>
#include <deque>
#include <limits>

namespace KOVAVSFDataGridLib {

namespace {

std::deque<Command> &registeredCommands()
{
    static std::deque<Command> commands; // a deque, because the addresses must not change
    return commands;
}

int placeOf(const Command &command)
{
    return command.button ? command.button->place : std::numeric_limits<int>::max();
}

template<typename Predicate>
const Command *findIf(Predicate predicate)
{
    const auto found = std::ranges::find_if(registeredCommands(), predicate);
    return found == registeredCommands().end() ? nullptr : &*found;
}

} // namespace

Command::Registration::Registration(Command command)
{
    registeredCommands().push_back(std::move(command));
}

const Command *Command::find(const QString &key)
{
    return findIf([&](const Command &command) { return command.key == key; });
}

const Command *Command::findMenuItem(MenuItemTexts Command::*menu, int index)
{
    return index < 1 ? nullptr
                     : findIf([=](const Command &command) { return (command.*menu).index == index; });
}

int Command::lastMenuIndex(MenuItemTexts Command::*menu)
{
    int last = 0;
    for (const Command &command : registeredCommands())
        last = std::max(last, (command.*menu).index);
    return last;
}

const std::vector<const Command *> &Command::all()
{
    static const std::vector<const Command *> sorted = [] {
        std::vector<const Command *> commands;
        for (const Command &command : registeredCommands())
            commands.push_back(&command);
        std::ranges::stable_sort(commands, {}, [](const Command *command) { return placeOf(*command); });
        return commands;
    }();
    return sorted;
}

} // namespace KOVAVSFDataGridLib
