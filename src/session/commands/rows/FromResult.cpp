#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/statement/ShownStatement.h"

// Toggles whether "Filter" filters the shown statement or the first one.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration fromResultCommand({
    .key = CommandKeys::FromResult,
    .shortcut = u"Ctrl+R"_s,
    .button = {{.place = 302,
                .caption = Command::tr("在结果中筛选"),
                .toolTip = Command::tr("按下时在当前结果中继续筛选，弹起时从最初的结果筛选"),
                .isToggle = true,
                .isCaptioned = true}},
    .record = Record::Stays,
    .run = [](Session &session) { session.shown().toggleFromResult(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
