#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/commands/FilterByDialog.h"
#include "session/statement/FilterManagerRollback.h"

// Asks the host for a condition by its event QurryFilter, and the user by the filter dialog unless the host
// took over.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Shows the records that meet a condition. What the database says against it goes to `refusal` where one is
// given, else to the user.
void filterBy(Session &session, FilterManagerRollback &ground, const QString &condition, QString *refusal)
{
    session.setLastFilter(condition);
    QString statement;
    const QString added = session.rules().trimsCondition ? condition.trimmed() : condition;
    if (!added.trimmed().isEmpty() && session.addCondition(added, statement) &&
        session.reloadFiltered(statement, true, refusal))
        ground.keepChanges();
}

// Asks until the database takes the condition or the user cancels.
void askUser(Session &session, FilterManagerRollback &ground, const QString &field)
{
    ConditionRequest request = session.conditionRequest();
    request.field = field;
    do {
        const QString condition = session.questions().askCondition(request);
        if (!ground.isResultUntouched())
            return;
        request.refusal.clear();
        filterBy(session, ground, condition, &request.refusal);
    } while (!request.refusal.isEmpty() && ground.isResultUntouched());
}

// Asks the host, and the user unless the host takes over. Neither when there is no statement to filter, or
// when the host puts another result in its place.
void askHost(Session &session, FilterManagerRollback &ground, const QString &field)
{
    session.texts.passQurryFilter.clear();
    QString base;
    colShowSQLSentences &history = ground.manager().SQLManager();
    if (!(session.isFromResult() ? history.GetLatestSQL(base) : history.GetFirstSQL(base)))
        return;
    constexpr qint32 leftToTheDialog = 1;
    qint32 cancel = leftToTheDialog;
    session.host().askFilter(cancel, base);
    if (!ground.isResultUntouched())
        return;
    if (cancel == leftToTheDialog)
        askUser(session, ground, field);
    else
        filterBy(session, ground, session.texts.passQurryFilter, nullptr);
}

} // namespace

void filterByDialog(Session &session, const QString &field)
{
    FilterManagerRollback rollback(session);
    if (session.rules().asksHostForCondition)
        askHost(session, rollback, field);
    else
        askUser(session, rollback, field);
}

namespace {

const Command::Registration registration({
    .key = CommandKeys::Filter,
    .shortcut = u"Ctrl+Shift+F"_s,
    .button = {{300, u"筛选"_s, u"按条件筛选记录"_s}},
    .menu = {11, u"筛选(&F)"_s, true},
    .isInViewer = true,
    .needs = Needs::Records,
    .run = [](Session &session) { filterByDialog(session); },
    .whyNot = [](Session &session) { return session.whyNot(DerivationStep::Condition); },
});

// Whether "Filter" filters what is shown rather than the first statement.
const Command::Registration fromResult({
    .key = CommandKeys::FromResult,
    .shortcut = u"Ctrl+R"_s,
    .button = {{302, u"在结果中筛选"_s, u"按下时在当前结果中继续筛选，弹起时从最初的结果筛选"_s, true}},
    .record = Record::Stays,
    .run = [](Session &session) { session.toggleFromResult(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
