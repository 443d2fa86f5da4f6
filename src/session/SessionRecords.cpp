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
    ADODB::Recordset &recordset = *m_result.recordset();
    const bool isNew = recordset.EditMode() == ADODB::adEditAdd;
    if (isNew && hasNoValue(recordset))
        return cancelChanges();
    recordset.Update();
    if (isNew)
        refillAtRecord(recordset.AbsolutePosition());
    else
        m_window->refreshRecords();
    m_window->refreshSingleRecord();
}

bool Session::saveRecord()
{
    const auto alive = shared_from_this();
    const ResultWatch watch(*this);
    if (!m_window->commitEdit())
        return false;
    if (!m_result.isOpen())
        return true;
    const ADODB::EditModeEnum mode = m_result.recordset()->EditMode();
    if (mode != ADODB::adEditAdd && mode != ADODB::adEditInProgress)
        return true;
    try {
        const ADODB::Notifications::Hold hold(*m_notifications);
        saveChanges();
    } catch (const ADODB::Error &error) {
        if (watch.isUntouched())
            m_questions->show(SessionMessages::NotSavedPrefix + error.Description());
        return false;
    }
    return watch.isUntouched();
}

void Session::cancelRecord()
{
    const ADODB::Notifications::Hold hold(*m_notifications);
    m_window->cancelEdit();
    if (m_result.isOpen())
        cancelChanges();
}

} // namespace KOVAVSFDataGridLib
