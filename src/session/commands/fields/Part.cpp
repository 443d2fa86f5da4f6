#include "query/clsFilterManagement.h"
#include "session/SessionWindow.h"
#include "session/commands/fields/ShowFields.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/ShownColumns.h"

// Shows only the part fields.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool hasPartStatement(const colShowSQLSentences &history)
{
    const clsShowSQLSentence *latest = history.Item(history.Count());
    QString partStatement;
    return latest && latest->GetCurrUsePartFieldSQL(partStatement);
}

// Shows all fields.
void showAllInstead(Session &session, FilterManagerRollback &rollback)
{
    const QStringList all = session.columns().fieldsShownBy(FieldView::All);
    const bool areShown = session.fields().view() == FieldView::All && session.window().Headings() == all;
    if (!areShown && !session.columns().hasColumnsFor(all)) {
        showFields(session, rollback.manager().GetCurrentSQL20(AllFieldsStatement), FieldView::All, rollback);
        return;
    }
    session.fields().setView(FieldView::All);
    session.fields().layOut();
    session.window().refreshSingleRecord();
}

// Without a part statement all fields are shown.
void showPartFields(Session &session)
{
    session.columns().SaveColumnWidths();
    FilterManagerRollback rollback(session);
    QString statement;
    if (hasPartStatement(session.history()))
        statement = rollback.manager().GetCurrentSQL20(PartFieldsStatement);
    if (statement.isEmpty())
        showAllInstead(session, rollback);
    else
        showFields(session, statement, FieldView::Part, rollback);
}

const Command::Registration partCommand({
    .key = CommandKeys::Part,
    .shortcut = u"Ctrl+2"_s,
    .button = {{101, Command::tr("部分字段"), Command::tr("只显示选定的部分字段"), true}},
    .menu = {2, Command::tr("部分字段(&P)")},
    .isInViewer = true,
    .viewerMenu = {2, Command::tr("显示部分字段(&P)")},
    .needs = Needs::Records,
    .record = Record::IsListedAgain,
    .run = showPartFields,
    .whyNot = [](Session &session) { return session.sharedHistory().whyNoPartFields(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
