#include "session/statement/ShownStatement.h"

#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "query/SharedValues.h"
#include "query/conditions/ConditionParts.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "session/commands/CommandKeys.h"
#include "session/history/HistorySteps.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/statement/ConnectionFieldReader.h"
#include "session/statement/LoadedTable.h"
#include "session/statement/StatementReader.h"
#include "sql/StatementLines.h"

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

namespace {

template<typename Condition>
void forgetOldest(std::vector<Condition> &conditions, Session &session)
{
    if (conditions.size() <= ShownStatement::conditionsKept)
        return;
    const std::vector<HistoryStep> steps = historySteps(session);
    std::size_t surplus = conditions.size() - ShownStatement::conditionsKept;
    std::erase_if(conditions, [&](const Condition &made) {
        const bool isForgotten = surplus > 0 && std::ranges::none_of(steps, [&](const HistoryStep &step) {
                                     return step.statement.contains(made.condition);
                                 });
        surplus -= isForgotten ? 1 : 0;
        return isForgotten;
    });
}

} // namespace

ShownStatement::ShownStatement(Session &session) : m_session(session) {}

void ShownStatement::remember() const
{
    if (m_session.rules().remembersForDialogs)
        m_session.shared.previousShowStatement = m_text;
}

std::optional<ResultSet::Opened> ShownStatement::readForReload(const QString &statement, bool isRemembered,
                                                               QString *refusal)
{
    if (statement.isEmpty())
        return std::nullopt;
    if (isRemembered)
        remember();
    m_session.columns().SaveColumnWidths();
    if (!m_session.rules().writesFilter)
        return m_session.statementReader().read(statement, refusal);
    const ResultWatch watch(m_session);
    const auto manager = m_session.sharedHistory().manager();
    const QString filterBefore = m_session.texts.sqlFilter;
    writeFilter(statement); // notifies the host immediately, because it may set another statement
    if (!watch.isUntouched() || !m_session.sharedHistory().isManager(manager))
        return std::nullopt; // the host has replaced or closed the result
    auto opened = m_session.statementReader().read(m_session.texts.sqlFilter, refusal);
    if (!opened && !m_session.isDetached())
        writeFilter(filterBefore);
    return opened;
}

void ShownStatement::show(const ResultSet::Opened &opened)
{
    const QStringList headingsBefore = m_session.window().Headings();
    if (m_session.rules().worksOnLentResult)
        m_session.result().borrow(opened);
    else
        m_session.result().replaceBy(opened);
    m_text = opened.recordset->Source();
    m_session.fieldReader().remember(m_session.texts.connectionString, m_text,
                                     m_session.result().recordset()->Fields());
    m_isRequeried = true;
    m_session.pages().showPage(1);
    // Widths belong to fields; the layout that follows restores them.
    if (m_session.rules().alwaysResetsWidths || m_session.window().Headings() != headingsBefore)
        m_session.window().ResetColWidths();
    m_session.window().refreshSingleRecord();
    m_session.window().scrollAsOpened();
    m_session.host().refresh();
}

bool ShownStatement::reloadFiltered(const QString &statement, bool isRemembered, QString *refusal)
{
    const auto opened = readForReload(statement, isRemembered, refusal);
    if (!opened) {
        const bool isLeftToCaller = refusal && !refusal->isEmpty();
        if (!m_session.rules().reportsOpenErrors && m_session.isUsable() && !isLeftToCaller &&
            !m_session.statementReader().isCancelled())
            m_session.questions().show(SessionMessages::ReadFailed);
        return false;
    }
    const ADODB::Notifications::Hold hold(m_session.notifications());
    show(*opened);
    addToHistory(m_text);
    return true;
}

bool ShownStatement::addCondition(const QString &condition, QString &statement,
                                  const std::optional<QString> &made)
{
    // What is made now was not chosen by values, even where that was written in the same way.
    const Dialect dialect = dialectOf(m_session.filterManager().DBType(), m_session.result().engine());
    QStringList parts = textsOfParts(made.value_or(condition), dialect);
    for (QString &part : parts)
        part = comparableText(part, dialect);
    std::erase_if(m_chosenValues, [&](const ChosenValues &values) {
        return parts.contains(comparableText(values.condition, dialect));
    });
    if (!m_session.rules().narrowsShown)
        return m_session.history().GetNextSQLByFilter(condition, statement);
    if (m_session.filterManager().LastUseFilter() != m_text)
        m_session.filterManager().LetNewSQLStr(m_text);
    return m_session.filterManager().LetNewFilter(condition, statement);
}

void ShownStatement::noteBuilt(BuiltCondition condition)
{
    std::erase_if(m_builtConditions,
                  [&](const BuiltCondition &earlier) { return earlier.condition == condition.condition; });
    m_builtConditions.push_back(std::move(condition));
    forgetOldest(m_builtConditions, m_session);
}

void ShownStatement::noteChosen(ChosenValues values)
{
    std::erase_if(m_chosenValues, [&](const ChosenValues &earlier) {
        return earlier.field == values.field && earlier.condition == values.condition;
    });
    m_chosenValues.push_back(std::move(values));
    forgetOldest(m_chosenValues, m_session);
}

void ShownStatement::addToHistory(const QString &statement, const QString &partFields,
                                  const QString &orderFields)
{
    m_session.columns().RecordShowSQL(statement, m_session.fields().view(), false, partFields, orderFields,
                                      m_session.texts.connectionString);
    while (m_session.history().Count() > statementsKept)
        m_session.history().Remove(2);
}

bool ShownStatement::replaceResult(const ResultSet::Opened &opened)
{
    {
        const ADODB::Notifications::Hold hold(m_session.notifications());
        m_session.result().replaceBy(opened);
        m_session.window().ResetColWidths();
        m_session.pages().showPage(1);
    }
    return m_session.result().recordset() == opened.recordset && m_session.result().isOpen();
}

ConditionRequest ShownStatement::conditionRequest() const
{
    QString filtered = m_text;
    if (!m_session.rules().narrowsShown)
        m_session.history().GetLatestSQL(filtered);
    return {.connectionString = m_session.texts.connectionString,
            .dbType = m_session.filterManager().DBType(),
            .tableType = m_session.texts.tableType,
            .sqlShow = joinStatementLines(m_session.texts.sqlShow),
            .connection = m_session.result().connection(),
            .result = m_session.history().GetFilteredResult(),
            .condition = m_session.history().GetConditionOf(filtered),
            .table = loadedTable(m_session)};
}

void ShownStatement::writeFilter(const QString &statement)
{
    m_session.texts.sqlFilter = statement;
    m_session.host().filterWritten();
}

void ShownStatement::borrow(const ResultSet::Opened &opened, const QString &statement, int page)
{
    m_session.result().borrow(opened);
    m_text = statement;
    m_isRequeried = false;
    m_session.pages().setPage(page);
    m_session.pages().fillPage();
}

void ShownStatement::setLastFilter(const QString &condition)
{
    if (m_session.rules().remembersForDialogs)
        m_session.shared.lastFilter = condition;
    if (m_session.rules().writesFilter && condition.trimmed().isEmpty())
        writeFilter({});
}

void ShownStatement::toggleFromResult()
{
    m_isFromResult = !m_isFromResult;
    m_session.window().setPressed(CommandKeys::FromResult, m_isFromResult);
}

} // namespace KOVAVSFDataGridLib
