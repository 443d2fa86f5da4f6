#include "session/SessionWindow.h"
#include "session/commands/ShowFields.h"

// Shows the part fields alone.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool hasPartStatement(const colShowSQLSentences &history)
{
    const clsShowSQLSentence *latest = history.Item(history.Count());
    QString partStatement;
    return latest && latest->GetCurrUsePartFieldSQL(partStatement);
}

// Without a part statement "All" is pressed, and nothing else changes.
void showPartFields(Session &session)
{
    session.columns().SaveColumnWidths();
    FilterManagerRollback rollback(session);
    QString statement;
    if (hasPartStatement(session.history()))
        statement = rollback.manager().GetCurrentSQL20(PartFieldsStatement);
    if (statement.isEmpty())
        session.window().setPressed(CommandKeys::All, true);
    else
        showFields(session, statement, FieldView::Part, rollback);
}

const Command::Registration registration({
    .key = CommandKeys::Part,
    .shortcut = u"Ctrl+2"_s,
    .button = {{101, u"部分字段"_s, u"只显示选定的部分字段"_s, true}},
    .menu = {2, u"部分字段(&P)"_s},
    .isInViewer = true,
    .viewerMenu = {2, u"显示部分字段(&P)"_s},
    .needs = Needs::Records,
    .record = Record::IsListedAgain,
    .run = showPartFields,
    .whyNot = [](Session &session) { return session.whyNoHistory(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
