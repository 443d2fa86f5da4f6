#include "session/history/HistorySteps.h"

#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "query/clsFilterManagement.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/editing/EditedRecord.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/statement/FilterManagerRollback.h"
#include "session/statement/ShownStatement.h"
#include "session/statement/StatementReader.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

using StepBack = bool (colShowSQLSentences::*)(QString &PassFilter, QString *PassKey);

// An entry without a part statement was shown with the part fields chosen before it, because a filter of the
// first statement keeps them. Later choices don't apply to it.
void markPartFieldsOf(Session &session, const clsShowSQLSentence &entry)
{
    QString partStatement;
    const auto note = session.sharedHistory().trail().noteOf(entry);
    if (note && !entry.GetCurrUsePartFieldSQL(partStatement))
        session.history().SetPartFields(note->partFields);
}

// Shows the open result of the latest entry with the entry's settings.
void showAsEntry(Session &session, const clsShowSQLSentence *entry)
{
    if (entry)
        markPartFieldsOf(session, *entry);
    session.fields().setView(entry && entry->IsShowAllFields == AllFieldsShown ? FieldView::All
                                                                               : FieldView::Part);
    session.fields().layOut();
    if (session.window().isSingleRecordShown())
        session.window().showAllRecords();
}

// The entries after `position`, followed by those already ahead.
std::vector<clsShowSQLSentence> entriesAfter(Session &session, qsizetype position)
{
    const colShowSQLSentences &history = session.history();
    std::vector<clsShowSQLSentence> entries;
    for (qsizetype i = position + 1; i <= history.Count(); ++i)
        entries.push_back(*history.Item(i));
    std::ranges::copy(session.sharedHistory().trail().ahead(history), std::back_inserter(entries));
    return entries;
}

// Answers whether that was shown; `refusal` is what the database says against it.
bool showEntry(Session &session, qsizetype position, StepBack stepBack, QString &refusal)
{
    FilterManagerRollback rollback(session);
    std::vector<clsShowSQLSentence> left = entriesAfter(session, position);
    while (session.history().Count() > position + 1)
        session.history().Remove(session.history().Count());
    QString statement;
    QString key;
    if (!(session.history().*stepBack)(statement, &key))
        return false;
    const auto opened = session.shown().readForReload(statement, true, &refusal);
    if (!opened)
        return false;
    const ADODB::Notifications::Hold hold(session.notifications());
    session.shown().show(*opened);
    rollback.keepChanges();
    session.sharedHistory().trail().setAhead(session.history(), std::move(left));
    session.sharedHistory().trail().replaceNote(session.history(), opened->recordset->RecordCount());
    showAsEntry(session, session.history().Item(key));
    return true;
}

// A database can refuse what it has shown before. What was shown before that is the way out then; the refused
// statement is ahead.
void goBackTo(Session &session, qsizetype position, StepBack stepBack)
{
    const ResultWatch watch(session);
    const auto manager = session.sharedHistory().manager();
    const StatementReader &reader = session.statementReader();
    QString firstRefusal;
    for (; position >= 1; --position) {
        QString refusal;
        if (showEntry(session, position, stepBack, refusal) || session.isDetached() || !watch.isUntouched() ||
            !session.sharedHistory().isManager(manager))
            return;
        if (firstRefusal.isEmpty())
            firstRefusal = refusal;
        if (refusal.isEmpty() || !reader.isRefused())
            break;
    }
    if (firstRefusal.isEmpty())
        return;
    if (reader.isCancelled())
        session.statementReader().reportCancelled();
    else
        session.statementReader().reportError(firstRefusal);
}

bool addAgain(colShowSQLSentences &history, const clsShowSQLSentence &entry)
{
    QString key = entry.SQLKey;
    if (!history.AddAllSQLMess(entry.SQLFields, entry.SQLWhere, entry.SQLOrder, entry.OrgSQL, entry.ShowSQL,
                               entry.IsShowAllFields, entry.AllFields, entry.PartFields, entry.OrderFields,
                               entry.CurrPartFields, entry.CurrOrderFields, &key))
        return false;
    history.Item(key)->SortedSQL = entry.SortedSQL;
    return true;
}

} // namespace

std::vector<HistoryStep> historySteps(Session &session)
{
    if (session.sharedHistory().isManager(nullptr))
        return {};
    const colShowSQLSentences &history = session.history();
    const StatementTrail &trail = session.sharedHistory().trail();
    std::vector<HistoryStep> steps;
    int step = -static_cast<int>(history.Count());
    const auto add = [&](const clsShowSQLSentence &entry) {
        steps.push_back({++step, entry.ShowSQL, trail.noteOf(entry)});
    };
    std::ranges::for_each(history, add);
    if (!steps.empty())
        std::ranges::for_each(trail.ahead(history), add);
    std::ranges::reverse(steps);
    return steps;
}

void goBack(Session &session, qsizetype steps)
{
    const qsizetype count = session.history().Count();
    // Going back one step from the first statement shows it again.
    if (steps >= 1 && (steps < count || steps == 1))
        goBackTo(session, std::max<qsizetype>(1, count - steps), &colShowSQLSentences::GetPreviewSQL);
}

void goToOrigin(Session &session)
{
    goBackTo(session, 1, &colShowSQLSentences::GetFirstSQL);
}

void goForward(Session &session, qsizetype steps)
{
    FilterManagerRollback rollback(session);
    std::vector<clsShowSQLSentence> ahead = session.sharedHistory().trail().ahead(session.history());
    if (steps < 1 || steps > std::ssize(ahead))
        return;
    const auto opened =
        session.shown().readForReload(ahead[static_cast<std::size_t>(steps - 1)].ShowSQL, true);
    if (!opened)
        return;
    const ADODB::Notifications::Hold hold(session.notifications());
    session.shown().show(*opened);
    colShowSQLSentences &history = session.history();
    for (qsizetype i = 0; i < steps; ++i)
        addAgain(history, ahead[static_cast<std::size_t>(i)]);
    history.SetConnString(session.texts.connectionString);
    history.GetCurrSQLFieldsStatus();
    rollback.keepChanges();
    ahead.erase(ahead.begin(), ahead.begin() + steps);
    session.sharedHistory().trail().setAhead(history, std::move(ahead));
    session.sharedHistory().trail().replaceNote(history, opened->recordset->RecordCount());
    showAsEntry(session, history.Item(history.Count()));
}

void goToStep(Session &session, int steps)
{
    session.perform([&] {
        const ResultWatch watch(session);
        session.pages().returnToShownRecord();
        if (!session.sharedHistory().whyNone().isEmpty() || !session.record().save() || !watch.isUntouched())
            return;
        if (steps < 0)
            goBack(session, -steps);
        else if (steps > 0)
            goForward(session, steps);
    });
}

} // namespace KOVAVSFDataGridLib
