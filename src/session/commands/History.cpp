#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/statement/FilterManagerRollback.h"

// One statement back, and back to the first; both show many records again.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

using StepBack = bool (colShowSQLSentences::*)(QString &PassFilter, QString *PassKey);

void goBack(Session &session, StepBack stepBack)
{
    FilterManagerRollback rollback(session);
    QString statement;
    QString key;
    if (!(session.history().*stepBack)(statement, &key))
        return;
    const auto opened = session.readForReload(statement, true);
    if (!opened)
        return;
    const ADODB::Notifications::Hold hold(session.notifications());
    session.show(*opened);
    rollback.keepChanges();
    const clsShowSQLSentence *entry = session.history().Item(key);
    session.setFieldView(entry && entry->IsShowAllFields == AllFieldsShown ? FieldView::All
                                                                           : FieldView::Part);
    session.layOutColumns();
    if (session.window().isSingleRecordShown())
        session.window().showAllRecords();
}

const Command::Registration toPreview({
    .key = u"ToPreview"_s,
    .shortcut = u"Alt+Left"_s,
    .button = {{500, u"后退"_s, u"返回上一步的结果"_s}},
    .isInViewer = true,
    .run = [](Session &session) { goBack(session, &colShowSQLSentences::GetPreviewSQL); },
    .whyNot = [](Session &session) { return session.whyNoHistory(); },
});

const Command::Registration toOrigin({
    .key = u"ToOrigin"_s,
    .shortcut = u"Alt+Home"_s,
    .button = {{501, u"最初"_s, u"返回最初的结果"_s}},
    .isInViewer = true,
    .run = [](Session &session) { goBack(session, &colShowSQLSentences::GetFirstSQL); },
    .whyNot = [](Session &session) { return session.whyNoHistory(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
