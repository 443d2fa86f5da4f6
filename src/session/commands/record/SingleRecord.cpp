#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"

// The current record as a list of its fields, and back to many records.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void showSingleRecord(Session &session)
{
    if (!session.statement().trimmed().isEmpty())
        session.window().showSingleRecord();
}

const Command::Registration singleRecord({
    .key = CommandKeys::SingleRecord,
    .shortcut = u"Ctrl+3"_s,
    .button = {{200, Command::tr("单条记录"), Command::tr("以列表方式查看当前记录")}},
    .menu = {5, Command::tr("单条记录(&R)")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = showSingleRecord,
});

const Command::Registration allRecord({
    .key = CommandKeys::AllRecord,
    .shortcut = u"Ctrl+4"_s,
    .button = {{201, Command::tr("全部记录"), Command::tr("返回全部记录")}},
    .menu = {6, Command::tr("全部记录(&R)")},
    .needs = Needs::Records,
    .run = [](Session &session) { session.window().showAllRecords(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
