#include "session/commands/fields/ShowFields.h"

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

const Command::Registration registration({
    .key = CommandKeys::All,
    .shortcut = u"Ctrl+1"_s,
    .button = {{100, u"全部字段"_s, u"显示全部字段"_s, true}},
    .menu = {1, u"全部字段(&A)"_s},
    .isInViewer = true,
    .viewerMenu = {1, u"显示全部字段(&A)"_s},
    .needs = Needs::Records,
    .record = Record::IsListedAgain,
    .run = showAllFields,
    .whyNot = [](Session &session) { return session.whyNoHistory(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
