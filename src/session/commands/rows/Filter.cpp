#include "ado/Recordset.h"
#include "query/clsFilterManagement.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/commands/rows/FilterByDialog.h"
#include "session/history/SharedHistory.h"
#include "session/pages/Pages.h"
#include "session/statement/FilterManagerRollback.h"
#include "session/statement/ShownConditions.h"
#include "session/statement/ShownStatement.h"

// Asks the host for a condition with the event QurryFilter, and then the user with the filter dialog unless
// the host has handled it.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// The current cell's value, if it can be typed as a single line.
QString currentValue(Session &session, int row, int col)
{
    const ADODB::Recordset &recordset = *session.result().recordset();
    const qint64 record = session.pages().recordOfRow(row);
    constexpr qsizetype longest = 100; // characters
    if (row == 0 || record < 1 || record > recordset.RecordCount() || recordset.IsNull(record, col - 1))
        return {};
    const QString text = recordset.CellText(record, col - 1);
    return text.size() <= longest && !text.contains(u'\n') ? text : QString();
}

// What the dialog begins with: the conditions in force that the new one replaces and the field that was asked
// for; without both, the current cell.
void beginWhereUserIs(Session &session, ConditionRequest &request, const QString &field)
{
    request.field = field;
    if (!field.isEmpty() || !request.replaced.empty())
        return;
    const int col = session.window().currentCol();
    if (col == 0)
        return;
    request.field = session.window().Headings().value(col - 1);
    request.value = currentValue(session, session.window().Row(), col);
}

// The conditions that give way to the next one.
std::vector<ConditionInForce> replacedConditions(Session &session)
{
    if (session.rules().narrowsShown || session.shown().isFromResult())
        return {};
    return conditionsInForce(session);
}

// Shows the records that meet a condition, of which `made` is new. If the database rejects it, its message is
// stored in `refusal` if that is given, and otherwise shown to the user.
bool filterBy(Session &session, FilterManagerRollback &rollback, const QString &condition,
              const QString &made, QString *refusal)
{
    session.shown().setLastFilter(condition);
    QString statement;
    const QString added = session.rules().trimsCondition ? condition.trimmed() : condition;
    if (added.trimmed().isEmpty() || !session.shown().addCondition(added, statement, made) ||
        !session.shown().reloadFiltered(statement, true, refusal))
        return false;
    rollback.keepChanges();
    return true;
}

// Asks until the database accepts the condition or the user cancels.
void askUser(Session &session, FilterManagerRollback &rollback, const QString &field,
             std::vector<ConditionInForce> replaced)
{
    ConditionRequest request = session.shown().conditionRequest();
    request.replaced = std::move(replaced);
    beginWhereUserIs(session, request, field);
    do {
        const QString condition = session.questions().askCondition(request);
        if (!rollback.isResultUntouched())
            return;
        request.refusal.clear();
        if (filterBy(session, rollback, condition, request.builtCondition, &request.refusal)) {
            if (!request.builtCondition.isEmpty())
                session.shown().noteBuilt({request.builtCondition, request.built});
            session.questions().noteConditionUsed(request);
        }
    } while (!request.refusal.isEmpty() && rollback.isResultUntouched());
}

// Asks the host, and then the user unless the host has handled it. Does neither if there is no statement to
// filter, and stops if the host replaces the result.
void askHost(Session &session, FilterManagerRollback &rollback, const QString &field)
{
    std::vector<ConditionInForce> replaced =
        replacedConditions(session); // before the history is stepped back

    session.texts.passQurryFilter.clear();
    QString base;
    colShowSQLSentences &history = rollback.manager().SQLManager();
    if (!(session.shown().isFromResult() ? history.GetLatestSQL(base) : history.GetFirstSQL(base)))
        return;
    constexpr qint32 leftToTheDialog = 1;
    qint32 cancel = leftToTheDialog;
    session.host().askFilter(cancel, base);
    if (!rollback.isResultUntouched())
        return;
    if (cancel == leftToTheDialog)
        askUser(session, rollback, field, std::move(replaced));
    else
        filterBy(session, rollback, session.texts.passQurryFilter, session.texts.passQurryFilter, nullptr);
}

} // namespace

void filterByDialog(Session &session, const QString &field)
{
    FilterManagerRollback rollback(session);
    if (session.rules().asksHostForCondition)
        askHost(session, rollback, field);
    else
        askUser(session, rollback, field, {});
}

namespace {

const Command::Registration filterCommand({
    .key = CommandKeys::Filter,
    .shortcut = u"Ctrl+Shift+F"_s,
    .button = {{.place = 300,
                .caption = Command::tr("筛选"),
                .toolTip = Command::tr("按条件筛选记录"),
                .isCaptioned = true}},
    .menu = {11, Command::tr("筛选(&F)"), true},
    .isInViewer = true,
    .needs = Needs::Records,
    .run = [](Session &session) { filterByDialog(session); },
    .whyNot = [](Session &session) { return session.sharedHistory().whyNot(DerivationStep::Condition); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
