#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ShownColumns.h"
#include "session/statement/ShowStatement.h"
#include "session/statement/ShownStatement.h"

// Shows the latest statement without its condition.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void showFullTable(Session &session)
{
    QString latest;
    QString key;
    QString statement;
    if (!session.history().GetLatestSQL(latest, &key) || latest.isEmpty() ||
        !session.filterManager().GetRequirePartSQL(latest, PartsWithoutCondition, statement))
        return;
    const bool showsAll = session.history().Item(key)->IsShowAllFields == AllFieldsShown;
    showStatement(session, statement, [&] {
        session.fields().setView(showsAll ? FieldView::All : FieldView::Part);
        session.shown().addToHistory(statement);
    });
}

const Command::Registration toFullTableCommand({
    .key = CommandKeys::ToFullTable,
    .shortcut = u"Ctrl+0"_s,
    .button = {{.place = 502,
                .caption = Command::tr("整表"),
                .toolTip = Command::tr("清除筛选条件，显示整个表"),
                .isCaptioned = true}},
    .menu = {15, Command::tr("显示整表(&T)")},
    .isInViewer = true,
    .viewerMenu = {5, Command::tr("显示整表(&T)")},
    .run = showFullTable,
    .whyNot = [](Session &session) { return session.sharedHistory().whyNone(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
