#include "session/statement/StatementReader.h"

#include "ado/Error.h"
#include "ado/recordset/RecordsSoFar.h"
#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"

#include <QtCore/QScopedValueRollback>

namespace KOVAVSFDataGridLib {

namespace {

// Data that a statement can't work with are its own fault too: SQLSTATE class 22.
bool isAboutStatement(const ADODB::Error &error)
{
    const bool isElse =
        error.is(ADODB::dbErrFailed) || error.is(ADODB::dbErrAuthFailed) || error.is(ADODB::dbErrCancelled);
    return !isElse || error.SQLState().startsWith(QLatin1StringView("22"));
}

} // namespace

StatementReader::StatementReader(Session &session, Session::Opener opener)
    : m_session(session), m_opener(std::move(opener))
{
}

ResultSet::Opened StatementReader::open(const QString &statement, AllDBType dbType)
{
    const QScopedValueRollback<bool> opening(m_session.shared.isOpening, true);
    const auto progress = m_session.window().beginOpening();
    const auto shouldContinue = [&](qint64 rowsRead, const ADODB::Recordset &recordset) {
        if (progress && rowsRead > 0)
            progress->showOpening(recordset);
        if (const auto expected = ADODB::estimatedRecords(recordset); progress && expected)
            progress->expect(*expected);
        // Called after a cancel too, so that windows are painted until the server has responded.
        const bool isWanted = !progress || progress->shouldContinue(rowsRead);
        m_isCancelled |= !isWanted;
        return !m_session.isDetached() && !m_isCancelled;
    };
    return m_opener ? m_opener(statement, shouldContinue)
                    : ResultSet::open(m_session.texts.connectionString, statement, dbType, shouldContinue);
}

StatementReader::Reading StatementReader::read(const QString &statement, AllDBType dbType, QString *refusal)
{
    if (m_session.shared.isOpening) // one statement at a time in a process
        return {};
    const ResultWatch watch(m_session);
    m_isCancelled = false;
    m_isRefused = false;
    QString failure;
    try {
        Reading reading{.opened = open(statement, dbType)};
        // The opener has already replaced a lent result.
        const bool isInPlace = m_session.rules().worksOnLentResult || watch.isUntouched();
        reading.outcome = isInPlace ? Outcome::Done : Outcome::Overtaken;
        return reading;
    } catch (const ADODB::Error &error) {
        failure = error.Description();
        m_isRefused = !m_isCancelled && isAboutStatement(error);
    } catch (const std::exception &error) {
        qWarning("A statement could not be opened: %s", error.what());
        failure = QString::fromUtf8(error.what());
    }
    if (refusal)
        *refusal = failure;
    else if (m_isCancelled)
        reportCancelled();
    else
        reportError(failure);
    return {.outcome = m_isCancelled ? Outcome::Cancelled : Outcome::Failed};
}

std::optional<ResultSet::Opened> StatementReader::read(const QString &statement, QString *refusal)
{
    if (statement.isEmpty())
        return std::nullopt;
    // The filter manager's type, because another control may have set another shared one meanwhile.
    Reading reading =
        read(m_session.history().LineOf(statement), m_session.filterManager().DBType(), refusal);
    return reading.outcome == Outcome::Done ? std::move(reading.opened) : std::nullopt;
}

// The user knows that he has cancelled, so a note is enough.
void StatementReader::reportCancelled()
{
    if (!m_session.isDetached())
        m_session.window().showNote(SessionMessages::OpeningCancelled);
}

void StatementReader::reportError(const QString &description)
{
    if (m_session.rules().reportsOpenErrors)
        m_session.questions().show(SessionMessages::OpenErrorPrefix + description);
}

} // namespace KOVAVSFDataGridLib
