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
    .button = {{200, u"单条记录"_s, u"以列表方式查看当前记录"_s}},
    .menu = {5, u"单条记录(&R)"_s},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = showSingleRecord,
});

const Command::Registration allRecord({
    .key = CommandKeys::AllRecord,
    .shortcut = u"Ctrl+4"_s,
    .button = {{201, u"全部记录"_s, u"返回全部记录"_s}},
    .menu = {6, u"全部记录(&R)"_s},
    .needs = Needs::Records,
    .run = [](Session &session) { session.window().showAllRecords(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
