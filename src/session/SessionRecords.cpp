#include "ado/Error.h"
#include "ado/Recordset.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"

// What was written into the current record: saved or forgotten.

namespace KOVAVSFDataGridLib {

namespace {

bool hasNoValue(ADODB::Recordset &recordset)
{
    for (int i = 0; i < recordset.Fields().Count(); ++i) {
        if (recordset.Fields().Item(i).Value().isValid())
            return false;
    }
    return true;
}

} // namespace

bool Session::isRecordEmpty()
{
    return hasNoValue(*m_result.recordset());
}

void Session::cancelChanges()
{
    ADODB::Recordset &recordset = *m_result.recordset();
    recordset.CancelUpdate();
    if (recordset.RecordCount() == 0 && m_window->isSingleRecordShown())
        m_window->showAllRecords(); // there is no single record to show
    m_window->refreshSingleRecord();
}

void Session::saveChanges()
{
    const ResultWatch watch(*this);
    ADODB::Recordset &recordset = *watch.recordset();
    const bool isNew = recordset.EditMode() == ADODB::adEditAdd;
    if (isNew && hasNoValue(recordset))
        return cancelChanges();
    recordset.Update();
    if (!watch.isUntouched()) // the control went while it was saved
        return;
    if (isNew)
        refillAtRecord(recordset.AbsolutePosition());
    else
        m_window->refreshRecords();
    m_window->refreshSingleRecord();
}

bool Session::commitEdit()
{
    const auto alive = shared_from_this();
    const ResultWatch watch(*this);
    const std::optional<QString> failure = m_window->commitEdit();
    if (!failure)
        return watch.isUntouched();
    m_questions->show(*failure);
    if (watch.isUntouched())
        m_window->focusEdit();
    return false;
}

bool Session::hasUnsavedChanges() const
{
    if (!m_result.isOpen())
        return false;
    const ADODB::EditModeEnum mode = m_result.recordset()->EditMode();
    return mode == ADODB::adEditInProgress ||
           (mode == ADODB::adEditAdd && !hasNoValue(*m_result.recordset()));
}

// Why the record could not be saved; nothing when it was, or has nothing to be saved.
std::optional<Session::Failure> Session::trySave()
{
    if (!m_result.isOpen())
        return {};
    const ADODB::EditModeEnum mode = m_result.recordset()->EditMode();
    if (mode != ADODB::adEditAdd && mode != ADODB::adEditInProgress)
        return {};
    try {
        const ADODB::Notifications::Hold hold(*m_notifications);
        saveChanges();
        return {};
    } catch (const ADODB::Error &error) {
        return Failure{SessionMessages::NotSavedPrefix + error.Description(),
                       error.is(ADODB::dbErrConcurrency)};
    }
}

bool Session::saveRecord()
{
    if (shared.isWaiting)
        return false;
    const auto alive = shared_from_this();
    const ResultWatch watch(*this);
    if (!commitEdit())
        return false;
    const std::optional<Failure> failure = trySave();
    if (failure && watch.isUntouched()) {
        if (!failure->isChangedByOthers)
            m_questions->show(failure->text);
        else if (m_questions->offerNewValues(failure->text, {}) && watch.isUntouched())
            showNewValues();
    }
    return !failure && watch.isUntouched();
}

bool Session::leaveResult()
{
    if (shared.isWaiting) // for what is done to this very result
        return false;
    const auto alive = shared_from_this();
    const ResultWatch watch(*this);
    for (;;) {
        std::optional<Failure> failure;
        if (const std::optional<QString> refused = m_window->commitEdit())
            failure = Failure{*refused};
        else
            failure = trySave();
        if (!failure || !watch.isUntouched())
            return watch.isUntouched();
        const Unsaved choice = m_questions->askUnsaved(failure->text, failure->isChangedByOthers);
        if (!watch.isUntouched())
            return false;
        if (choice == Unsaved::ShowNewValues)
            showNewValues();
        if (choice == Unsaved::Discard)
            cancelRecord();
        if (choice != Unsaved::SaveAgain)
            return choice == Unsaved::Discard;
    }
}

std::optional<QString> Session::saveSilently()
{
    const auto alive = shared_from_this();
    const ResultWatch watch(*this);
    if (std::optional<QString> refused = m_window->commitEdit())
        return refused;
    const std::optional<Failure> failure = trySave();
    return failure ? std::optional(failure->text) : std::nullopt;
}

void Session::setReadOnly(bool on)
{
    m_isReadOnly = on;
    m_window->refreshCommands();
}

QString Session::whyNotWritten() const
{
    if (m_isReadOnly)
        return SessionMessages::ReadOnly;
    return m_result.isOpen() ? m_result.recordset()->WhyReadOnly() : QString();
}

bool Session::canAddRecords() const
{
    if (!m_result.isOpen() || !whyNotWritten().isEmpty())
        return false;
    const ADODB::Fields &fields = m_result.recordset()->Fields();
    for (int i = 0; i < fields.Count(); ++i) {
        if (fields.Item(i).Attributes() & (ADODB::adFldUpdatable | ADODB::adFldUnknownUpdatable))
            return true;
    }
    return false;
}

void Session::cancelRecord()
{
    const ADODB::Notifications::Hold hold(*m_notifications);
    m_window->cancelEdit();
    if (m_result.isOpen())
        cancelChanges();
}

} // namespace KOVAVSFDataGridLib
