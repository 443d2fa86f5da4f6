#include "session/columns/ColumnCommand.h"

#include <algorithm>
#include <deque>

namespace KOVAVSFDataGridLib {

namespace {

std::deque<ColumnCommand> &registeredColumnCommands()
{
    static std::deque<ColumnCommand> commands; // a deque, because the addresses must not change
    return commands;
}

} // namespace

ColumnCommand::Registration::Registration(ColumnCommand command)
{
    Q_ASSERT_X(!find(command.key), "ColumnCommand", "two commands have the same key");
    registeredColumnCommands().push_back(std::move(command));
}

const std::vector<const ColumnCommand *> &ColumnCommand::all()
{
    static const std::vector<const ColumnCommand *> sorted = [] {
        std::vector<const ColumnCommand *> commands;
        for (const ColumnCommand &command : registeredColumnCommands())
            commands.push_back(&command);
        std::ranges::sort(commands, {}, &ColumnCommand::place);
        return commands;
    }();
    return sorted;
}

const ColumnCommand *ColumnCommand::find(const QString &key)
{
    const auto found = std::ranges::find(registeredColumnCommands(), key, &ColumnCommand::key);
    return found == registeredColumnCommands().end() ? nullptr : &*found;
}

} // namespace KOVAVSFDataGridLib
