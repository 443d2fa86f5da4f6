#include "ado/Error.h"
#include "ado/Recordset.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/statement/LoadedTable.h"
#include "sql/StatementLines.h"

#include <QtCore/QScopedValueRollback>

// How another statement takes the place of the one that is shown.

namespace KOVAVSFDataGridLib {

void Session::rememberStatement() const
{
    if (m_rules.remembersForDialogs)
        SharedValues::instance().previousShowStatement = m_statement;
}

ResultSet::Opened Session::openStatement(const QString &statement, AllDBType dbType)
{
    const QScopedValueRollback<bool> opening(shared.isOpening, true);
    const auto progress = m_window->beginOpening();
    const auto shouldContinue = [&](qint64 rowsRead, const ADODB::Recordset &recordset) {
        if (progress && rowsRead > 0)
            progress->showOpening(recordset);
        // Asked after a cancel as well, so that windows are painted until the server has answered it.
        const bool isWanted = !progress || progress->shouldContinue(rowsRead);
        m_isCancelled |= !isWanted;
        return !m_isDetached && !m_isCancelled;
    };
    return m_opener ? m_opener(statement, shouldContinue)
                    : ResultSet::open(texts.connectionString, statement, dbType, shouldContinue);
}

Session::Reading Session::readResult(const QString &statement, AllDBType dbType,
                                     std::optional<ResultSet::Opened> &opened, QString *refusal)
{
    if (shared.isOpening) // one statement at a time in a process
        return Reading::Failed;
    const ResultWatch watch(*this);
    m_isCancelled = false;
    QString failure;
    try {
        opened = openStatement(statement, dbType);
        // The opener has replaced a lent result already.
        return m_rules.worksOnLentResult || watch.isUntouched() ? Reading::Done : Reading::Overtaken;
    } catch (const ADODB::Error &error) {
        failure = error.Description();
    } catch (const std::exception &error) {
        qWarning("A statement could not be opened: %s", error.what());
        failure = QString::fromUtf8(error.what());
    }
    if (refusal)
        *refusal = failure;
    else if (!m_isCancelled)
        reportOpenError(failure);
    else
        return reportCancelled();
    return m_isCancelled ? Reading::Cancelled : Reading::Failed;
}

// The user knows what he did.
Session::Reading Session::reportCancelled()
{
    if (!m_isDetached)
        m_window->showNote(SessionMessages::OpeningCancelled);
    return Reading::Cancelled;
}

void Session::reportOpenError(const QString &description)
{
    if (m_rules.reportsOpenErrors)
        m_questions->show(SessionMessages::OpenErrorPrefix + description);
}

std::optional<ResultSet::Opened> Session::read(const QString &statement, QString *refusal)
{
    std::optional<ResultSet::Opened> opened;
    // What a filter manager was set up for stays right when another control sets another type meanwhile.
    if (statement.isEmpty() ||
        readResult(history().LineOf(statement), filterManager().DBType(), opened, refusal) != Reading::Done)
        return std::nullopt;
    return opened;
}

std::optional<ResultSet::Opened> Session::readForReload(const QString &statement, bool isRemembered,
                                                        QString *refusal)
{
    if (statement.isEmpty())
        return std::nullopt;
    if (isRemembered)
        rememberStatement();
    columns().SaveColumnWidths();
    if (!m_rules.writesFilter)
        return read(statement, refusal);
    const ResultWatch watch(*this);
    const auto manager = m_filter;
    const QString filterBefore = texts.sqlFilter;
    writeFilter(statement); // the host hears of it at once, because it may write another statement
    if (!watch.isUntouched() || !isFilterManager(manager))
        return std::nullopt; // it has put another result in this one's place, or closed it
    auto opened = read(texts.sqlFilter, refusal);
    if (!opened && !m_isDetached)
        writeFilter(filterBefore);
    return opened;
}

void Session::show(const ResultSet::Opened &opened)
{
    const QStringList headingsBefore = m_window->Headings();
    if (m_rules.worksOnLentResult)
        m_result.borrow(opened);
    else
        m_result.replaceBy(opened);
    m_statement = opened.recordset->Source();
    m_reader.remember(texts.connectionString, m_statement, m_result.recordset()->Fields());
    m_isRequeried = true;
    showPage(1);
    // Widths belong to fields; the layout that follows gives each its own again.
    if (m_rules.alwaysResetsWidths || m_window->Headings() != headingsBefore)
        m_window->ResetColWidths();
    m_window->refreshSingleRecord();
    m_window->scrollAsOpened();
    m_host->refresh();
}

bool Session::reloadFiltered(const QString &statement, bool isRemembered, QString *refusal)
{
    const auto opened = readForReload(statement, isRemembered, refusal);
    if (!opened) {
        const bool isLeftToCaller = refusal && !refusal->isEmpty();
        if (!m_rules.reportsOpenErrors && isUsable() && !isLeftToCaller && !m_isCancelled)
            m_questions->show(SessionMessages::ReadFailed);
        return false;
    }
    const ADODB::Notifications::Hold hold(*m_notifications);
    show(*opened);
    record(m_statement);
    return true;
}

bool Session::addCondition(const QString &condition, QString &statement)
{
    if (!m_rules.narrowsShown)
        return history().GetNextSQLByFilter(condition, statement);
    if (filterManager().LastUseFilter() != m_statement)
        filterManager().LetNewSQLStr(m_statement);
    return filterManager().LetNewFilter(condition, statement);
}

void Session::record(const QString &statement, const QString &partFields, const QString &orderFields)
{
    columns().RecordShowSQL(statement, m_fieldView, false, partFields, orderFields, texts.connectionString);
}

bool Session::replaceResult(const ResultSet::Opened &opened)
{
    {
        const ADODB::Notifications::Hold hold(*m_notifications);
        m_result.replaceBy(opened);
        m_window->ResetColWidths();
        showPage(1);
    }
    return m_result.recordset() == opened.recordset && m_result.isOpen();
}

ConditionRequest Session::conditionRequest()
{
    QString filtered = m_statement;
    if (!m_rules.narrowsShown)
        history().GetLatestSQL(filtered);
    return {.connectionString = texts.connectionString,
            .dbType = filterManager().DBType(),
            .tableType = texts.tableType,
            .sqlShow = joinStatementLines(texts.sqlShow),
            .connection = m_result.connection(),
            .result = history().GetFilteredResult(),
            .condition = history().GetConditionOf(filtered),
            .table = loadedTable(*this)};
}

void Session::writeFilter(const QString &statement)
{
    texts.sqlFilter = statement;
    m_host->filterWritten();
}

void Session::borrow(const ResultSet::Opened &opened, const QString &statement, int page)
{
    m_result.borrow(opened);
    m_statement = statement;
    m_isRequeried = false;
    setPage(page);
    fillPage();
}

} // namespace KOVAVSFDataGridLib
