#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/statement/ShownStatement.h"

// Shows the current record as a list of its fields.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void showSingleRecord(Session &session)
{
    if (!session.shown().text().trimmed().isEmpty())
        session.window().showSingleRecord();
}

const Command::Registration singleRecordCommand({
    .key = CommandKeys::SingleRecord,
    .shortcut = u"Ctrl+3"_s,
    .button = {{200, Command::tr("单条记录"), Command::tr("以列表方式查看当前记录")}},
    .menu = {5, Command::tr("单条记录(&R)")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = showSingleRecord,
});

} // namespace

} // namespace KOVAVSFDataGridLib
