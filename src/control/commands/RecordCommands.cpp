#include "control/commands/RecordCommands.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/commands/PageCommands.h"
#include "control/commands/ResultWatch.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/parts/GridTexts.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

bool isAdding(ADODB::Recordset &recordset)
{
    return recordset.EditMode() == ADODB::adEditAdd;
}

bool hasNoValue(ADODB::Recordset &recordset)
{
    for (int i = 0; i < recordset.Fields().Count(); ++i) {
        if (recordset.Fields().Item(i).Value().isValid())
            return false;
    }
    return true;
}

void cancel(ControlHub &hub)
{
    const ResultWatch watch(hub);
    watch.recordset()->CancelUpdate();
    if (!watch.isUntouched())
        return;
    if (watch.recordset()->RecordCount() == 0)
        hub.commands.singleRecord.leave(); // there is no single record to show
    hub.commands.singleRecord.refillIfShown();
}

// Throws ADODB::Error when the database refuses.
void save(ControlHub &hub)
{
    const ResultWatch watch(hub);
    ADODB::Recordset &recordset = *watch.recordset();
    const bool isNew = isAdding(recordset);
    if (isNew && hasNoValue(recordset))
        return cancel(hub);
    recordset.Update();
    if (!watch.isUntouched())
        return;
    if (isNew)
        RefillAtRecord(hub, recordset.AbsolutePosition());
    else
        hub.parts.vsfgDataGrid->Refresh();
    if (watch.isUntouched())
        hub.commands.singleRecord.refillIfShown();
}

// The answer is meant for the record that was current when the question came up, and for no other that the
// host has made current meanwhile.
bool askToDelete(ControlHub &hub)
{
    const ResultWatch watch(hub);
    const qint64 position = watch.recordset()->AbsolutePosition();
    return Messages::ask(&hub.q, GridTexts::AskDelete, GridTexts::AskDeleteTitle, QMessageBox::Question,
                         QMessageBox::No) &&
           watch.isUntouched() && watch.recordset()->AbsolutePosition() == position;
}

void deleteCurrentRecord(ControlHub &hub)
{
    const ResultWatch watch(hub);
    ADODB::Recordset &recordset = *watch.recordset();
    hub.commands.singleRecord.editor().close();
    if (isAdding(recordset)) {
        CancelRecord(hub);
        return;
    }
    const qint64 position = recordset.AbsolutePosition();
    recordset.Delete(ADODB::adAffectCurrent);
    if (!watch.isUntouched())
        return;
    const qint64 next = std::min(position, recordset.RecordCount());
    if (next < 1)
        recordset.MoveFirst(); // off the deleted record: nothing is left
    if (!watch.isUntouched())
        return;
    RefillAtRecord(hub, next);
    if (next >= 1 && watch.isUntouched())
        recordset.PutAbsolutePosition(next);
    if (!watch.isUntouched())
        return;
    if (next < 1)
        hub.commands.singleRecord.leave();
    hub.parts.vsfgDataGrid->Refresh();
}

} // namespace

bool SaveRecord(ControlHub &hub)
{
    const ResultWatch watch(hub);
    if (!hub.commands.singleRecord.editor().take())
        return false;
    if (!hub.result.isOpen())
        return true;
    const ADODB::EditModeEnum mode = watch.recordset()->EditMode();
    if (mode != ADODB::adEditAdd && mode != ADODB::adEditInProgress)
        return true;
    try {
        save(hub);
        return watch.isUntouched();
    } catch (const ADODB::Error &error) {
        if (watch.isUntouched())
            Messages::tell(&hub.q, GridTexts::NotSavedPrefix + error.Description());
        return false;
    }
}

void CancelRecord(ControlHub &hub)
{
    hub.commands.singleRecord.editor().close();
    if (hub.result.isOpen())
        cancel(hub);
}

void InsertRecord(ControlHub &hub)
{
    if (!hub.result.isOpen() || !hub.commands.singleRecord.editor().take())
        return;
    const ResultWatch watch(hub);
    ADODB::Recordset &recordset = *watch.recordset();
    if (recordset.EditMode() == ADODB::adEditInProgress && !SaveRecord(hub))
        return;
    try {
        if (isAdding(recordset) && !hasNoValue(recordset))
            save(hub);
        if (watch.isUntouched())
            recordset.AddNew();
        if (watch.isUntouched())
            hub.commands.singleRecord.ShowSingleRecord();
    } catch (const ADODB::Error &error) {
        if (watch.isUntouched() && (isAdding(recordset) || error.is(ADODB::dbErrCancelled)))
            Messages::tell(&hub.q, GridTexts::InsertCancelled);
    }
}

void DeleteRecord(ControlHub &hub)
{
    if (!hub.result.isOpen() || (!hub.hasRecords() && !isAdding(*hub.result.recordset())) ||
        !askToDelete(hub))
        return;
    const ResultWatch watch(hub);
    try {
        deleteCurrentRecord(hub);
    } catch (const ADODB::Error &error) {
        // Not every refusal is a constraint: the file may be read-only, the record changed by somebody else.
        if (watch.isUntouched())
            Messages::tellWithCause(&hub.q, GridTexts::DeleteRefused, error.Description());
    }
}

} // namespace KOVAVSFDataGridLib
