#include "session/editing/EditedRecord.h"

#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "query/SharedValues.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/pages/Pages.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool hasNoValue(ADODB::Recordset &recordset)
{
    for (int i = 0; i < recordset.Fields().Count(); ++i) {
        if (recordset.Fields().Item(i).Value().isValid())
            return false;
    }
    return true;
}

bool hasWritableField(const ADODB::Recordset &recordset)
{
    const ADODB::Fields &fields = recordset.Fields();
    for (int i = 0; i < fields.Count(); ++i) {
        if (fields.Item(i).Attributes() & (ADODB::adFldUpdatable | ADODB::adFldUnknownUpdatable))
            return true;
    }
    return false;
}

// The user or a time limit has ended the wait for the server.
bool isWithoutAnswer(const ADODB::Error &error)
{
    return error.SQLState() == "HY008"_L1 || error.SQLState().startsWith("HYT"_L1);
}

// Throws `inDoubt` if that can't be determined now.
bool isFound(ADODB::Recordset &recordset, const ADODB::Error &inDoubt)
{
    try {
        return recordset.FindAttempt();
    } catch (const ADODB::Error &error) {
        if (error.is(ADODB::dbErrPerhapsSaved)) // it contains the reason
            throw;
    }
    throw ADODB::Error(inDoubt);
}

} // namespace

EditedRecord::EditedRecord(Session &session) : m_session(session) {}

bool EditedRecord::isEmpty() const
{
    return hasNoValue(*m_session.result().recordset());
}

void EditedRecord::cancelChanges()
{
    ADODB::Recordset &recordset = *m_session.result().recordset();
    recordset.CancelUpdate();
    if (recordset.RecordCount() == 0 && m_session.window().isSingleRecordShown())
        m_session.window().showAllRecords(); // there is no single record to show
    m_session.window().refreshSingleRecord();
}

void EditedRecord::saveChanges()
{
    const ResultWatch watch(m_session);
    ADODB::Recordset &recordset = *watch.recordset();
    const bool isNew = recordset.EditMode() == ADODB::adEditAdd;
    if (isNew && hasNoValue(recordset))
        return cancelChanges();
    if (m_isReadOnly)
        throw ADODB::Error(ADODB::adErrFeatureNotAvailable, SessionMessages::ReadOnlySince);
    change([](ADODB::Recordset &changed) { changed.Update(); }, SessionMessages::SavedAfterLoss,
           SessionMessages::NotSavedAfterLoss);
    if (!watch.isUntouched()) // the control was destroyed during the save
        return;
    if (isNew)
        m_session.pages().refillAtRecord(recordset.AbsolutePosition());
    else
        m_session.window().refreshRecords();
    m_session.window().refreshSingleRecord();
}

void EditedRecord::remove()
{
    change([](ADODB::Recordset &recordset) { recordset.Delete(); }, SessionMessages::DeletedAfterLoss,
           SessionMessages::NotDeletedAfterLoss);
}

// If the connection was lost during the attempt, its outcome is unknown. Then the record is read again
// through a new connection, and the user is informed of the outcome.
void EditedRecord::change(const std::function<void(ADODB::Recordset &)> &attempt, const QString &isDone,
                          const QString &isNotDone)
{
    const ResultWatch watch(m_session);
    try {
        attempt(*watch.recordset());
    } catch (const ADODB::Error &inDoubt) {
        if (!inDoubt.is(ADODB::dbErrInDoubt) || isWithoutAnswer(inDoubt) || !watch.isUntouched())
            throw;
        if (!isFound(*watch.recordset(), inDoubt))
            throw ADODB::Error(ADODB::dbErrFailed, isNotDone, inDoubt.Source(), inDoubt.SQLState(),
                               inDoubt.NativeError());
        if (watch.isUntouched())
            m_session.window().showNote(isDone);
    }
}

bool EditedRecord::commitEdit()
{
    const ResultWatch watch(m_session);
    const std::optional<QString> failure = m_session.window().commitEdit();
    if (!failure)
        return watch.isUntouched();
    m_session.questions().show(*failure);
    if (watch.isUntouched())
        m_session.window().focusEdit();
    return false;
}

bool EditedRecord::hasUnsavedChanges() const
{
    if (!m_session.result().isOpen())
        return false;
    const ADODB::EditModeEnum mode = m_session.result().recordset()->EditMode();
    return mode == ADODB::adEditInProgress ||
           (mode == ADODB::adEditAdd && !hasNoValue(*m_session.result().recordset()));
}

// Why the record could not be saved; no value if it was saved or had no changes.
std::optional<EditedRecord::Failure> EditedRecord::trySave()
{
    if (!m_session.result().isOpen())
        return {};
    const ADODB::EditModeEnum mode = m_session.result().recordset()->EditMode();
    if (mode != ADODB::adEditAdd && mode != ADODB::adEditInProgress)
        return {};
    try {
        const ADODB::Notifications::Hold hold(m_session.notifications());
        saveChanges();
        return {};
    } catch (const ADODB::Error &error) {
        return failureOf(error);
    }
}

EditedRecord::Failure EditedRecord::failureOf(const ADODB::Error &error)
{
    const bool isPerhapsSaved = error.is(ADODB::dbErrPerhapsSaved);
    if (isPerhapsSaved || error.is(ADODB::dbErrInDoubt)) // it may have been saved nevertheless
        return {error.Description(), false, isPerhapsSaved};
    return {SessionMessages::NotSavedPrefix + error.Description(), error.is(ADODB::dbErrConcurrency)};
}

bool EditedRecord::save()
{
    if (m_session.shared.isWaiting)
        return false;
    const ResultWatch watch(m_session);
    if (!commitEdit())
        return false;
    const std::optional<Failure> failure = trySave();
    if (!failure || !watch.isUntouched())
        return watch.isUntouched();
    if (failure->isPerhapsSaved) {
        const bool isWanted = m_session.questions().ask(SessionMessages::AskSaveAgain.arg(failure->text),
                                                        SessionMessages::AskSaveAgainTitle);
        if (!isWanted || !watch.isUntouched())
            return false;
        watch.recordset()->ForgetAttempt();
        return save();
    }
    if (!failure->isChangedByOthers)
        m_session.questions().show(failure->text);
    else if (m_session.questions().offerNewValues(failure->text, {}) && watch.isUntouched())
        showNewValues();
    return false;
}

bool EditedRecord::leaveResult()
{
    if (m_session.shared.isWaiting) // for actions on this result itself
        return false;
    const ResultWatch watch(m_session);
    for (;;) {
        std::optional<Failure> failure;
        if (const std::optional<QString> refused = m_session.window().commitEdit())
            failure = Failure{*refused};
        else
            failure = trySave();
        if (!failure || !watch.isUntouched())
            return watch.isUntouched();
        const Unsaved choice = m_session.questions().askUnsaved(failure->text, failure->isChangedByOthers);
        if (!watch.isUntouched())
            return false;
        if (choice == Unsaved::ShowNewValues)
            showNewValues();
        if (choice == Unsaved::SaveAgain && failure->isPerhapsSaved)
            watch.recordset()->ForgetAttempt();
        if (choice == Unsaved::Discard)
            cancel();
        if (choice != Unsaved::SaveAgain)
            return choice == Unsaved::Discard;
    }
}

std::optional<QString> EditedRecord::saveSilently()
{
    if (std::optional<QString> refused = m_session.window().commitEdit())
        return refused;
    const std::optional<Failure> failure = trySave();
    return failure ? std::optional(failure->text) : std::nullopt;
}

void EditedRecord::setReadOnly(bool on)
{
    m_isReadOnly = on;
    m_session.window().refreshCommands();
    m_session.window().refreshStatus();
}

QString EditedRecord::whyNotWritten() const
{
    if (m_isReadOnly)
        return SessionMessages::ReadOnly;
    return m_session.result().isOpen() ? m_session.result().recordset()->WhyReadOnly() : QString();
}

QString EditedRecord::whyNotAdded() const
{
    QString reason = whyNotWritten();
    if (!reason.isEmpty() || !m_session.result().isOpen())
        return reason;
    return hasWritableField(*m_session.result().recordset()) ? QString() : SessionMessages::NothingToAdd;
}

bool EditedRecord::canAddRecords() const
{
    return m_session.result().isOpen() && whyNotAdded().isEmpty();
}

void EditedRecord::cancel()
{
    const ADODB::Notifications::Hold hold(m_session.notifications());
    m_session.window().cancelEdit();
    if (m_session.result().isOpen())
        cancelChanges();
}

} // namespace KOVAVSFDataGridLib
