#include "session/commands/fields/ShowFields.h"

#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"

// Shows all fields.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void showAllFields(Session &session)
{
    session.columns().SaveColumnWidths();
    FilterManagerRollback rollback(session);
    showFields(session, rollback.manager().GetCurrentSQL20(AllFieldsStatement), FieldView::All, rollback);
}

const Command::Registration allCommand({
    .key = CommandKeys::All,
    .shortcut = u"Ctrl+1"_s,
    .button = {{100, Command::tr("全部字段"), Command::tr("显示全部字段"), true}},
    .menu = {1, Command::tr("全部字段(&A)")},
    .isInViewer = true,
    .viewerMenu = {1, Command::tr("显示全部字段(&A)")},
    .needs = Needs::Records,
    .record = Record::IsListedAgain,
    .run = showAllFields,
    .whyNot = [](Session &session) { return session.sharedHistory().whyNoAllFields(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
