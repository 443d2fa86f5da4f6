#include "control/commands/CommandTables.h"

#include "control/commands/FieldCommands.h"
#include "control/commands/FilterCommands.h"
#include "control/commands/FullScreenCommand.h"
#include "control/commands/HistoryCommands.h"
#include "control/commands/PageCommands.h"
#include "control/commands/RecordCommands.h"
#include "control/commands/SortByDialog.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/parts/GridToolbar.h"

#include <algorithm>
#include <span>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void selectShowFields(ControlHub &hub)
{
    QString statement;
    SelectShowFields(hub, statement);
}

void sortByDialog(ControlHub &hub)
{
    QString sort;
    bool ok = false;
    SortByDialog(hub, sort, ok);
}

void showSingleRecord(ControlHub &hub)
{
    if (!hub.commands.statement.current().trimmed().isEmpty())
        hub.commands.singleRecord.ShowSingleRecord();
}

void showAllRecords(ControlHub &hub)
{
    hub.commands.singleRecord.ShowAllRecords();
}

// Only where many records are shown already, so that the single record stays.
void filterByDialog(ControlHub &hub)
{
    if (!hub.parts.Toolbar1->isButtonVisible(u"AllRecord"_s))
        showAllRecords(hub);
    FilterByDialog(hub);
}

const ToolbarCommand ToolbarCommands[] = {
    {u"All"_s, Needs::Records, Record::IsListedAnew, ShowAllFields},
    {u"Part"_s, Needs::Records, Record::IsListedAnew, ShowPartFields},
    {u"SingleRecord"_s, Needs::Records, Record::Stays, showSingleRecord},
    {u"AllRecord"_s, Needs::Records, Record::IsLeft, showAllRecords},
    {u"Filter"_s, Needs::Nothing, Record::IsLeft, filterByDialog},
    {u"Sort"_s, Needs::Nothing, Record::IsLeft, sortByDialog},
    {u"First"_s, Needs::Nothing, Record::IsLeft, [](ControlHub &hub) { GotoPage(hub, 1); }},
    {u"Previous"_s, Needs::Nothing, Record::IsLeft, [](ControlHub &hub) { GotoPage(hub, 2); }},
    {u"Next"_s, Needs::Nothing, Record::IsLeft, [](ControlHub &hub) { GotoPage(hub, 3); }},
    {u"Last"_s, Needs::Nothing, Record::IsLeft, [](ControlHub &hub) { GotoPage(hub, 4); }},
    {u"FullScreen"_s, Needs::Records, Record::IsLeft, ShowFullScreen},
    {u"ToPreview"_s, Needs::Nothing, Record::IsLeft, GotoPreviewSQL},
    {u"ToOrigin"_s, Needs::Nothing, Record::IsLeft, GotoOriginSQL},
    {u"FromResult"_s, Needs::Nothing, Record::Stays,
     [](ControlHub &hub) { hub.commands.toggleFromResult(); }},
    {u"CompressView"_s, Needs::Nothing, Record::Stays, [](ControlHub &hub) { hub.q.SeeCompressView(); }},
    {u"ToFullTable"_s, Needs::Nothing, Record::IsLeft, ShowFullTable},
    {u"SelField"_s, Needs::Nothing, Record::IsLeft, selectShowFields},
    {u"QuickFilter"_s, Needs::Records, Record::IsLeft, QuickFilter},
};

// The indexes left out are separators.
const MenuCommand MenuCommands[] = {
    {1, Record::IsListedAnew, ShowAllFields},
    {2, Record::IsListedAnew, ShowPartFields},
    {4, Record::IsLeft, ShowFullScreen},
    {5, Record::Stays, showSingleRecord},
    {6, Record::IsLeft, showAllRecords},
    {8, Record::Stays, InsertRecord},
    {9, Record::Stays, DeleteRecord},
    {11, Record::IsLeft,
     [](ControlHub &hub) {
         hub.commands.singleRecord.leave();
         FilterByDialog(hub);
     }},
    {12, Record::IsLeft,
     [](ControlHub &hub) {
         hub.commands.singleRecord.leave();
         sortByDialog(hub);
     }},
    {14, Record::IsLeft, FilterBySelectedCell},
    {15, Record::IsLeft, ShowFullTable},
};

template<typename Command, typename Key>
const Command *find(std::span<const Command> commands, Key Command::*key, const Key &wanted)
{
    const auto found = std::ranges::find(commands, wanted, key);
    return found == commands.end() ? nullptr : &*found;
}

} // namespace

const ToolbarCommand *toolbarCommand(const QString &key)
{
    return find(std::span<const ToolbarCommand>(ToolbarCommands), &ToolbarCommand::key, key);
}

const MenuCommand *menuCommand(int index)
{
    return find(std::span<const MenuCommand>(MenuCommands), &MenuCommand::index, index);
}

} // namespace KOVAVSFDataGridLib
