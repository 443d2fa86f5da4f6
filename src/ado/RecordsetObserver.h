#pragma once

#include "Enums.h"

namespace ADODB {

// Called when a recordset changes; see Recordset::AddObserver. An observer must not throw unless stated
// otherwise.
class RecordsetObserver
{
public:
    // The current record is about to be saved or left.
    // Text that the user is still typing can be written to its fields now.
    // May throw Error; the record is then neither saved nor left.
    virtual void willLeaveRecord() {}
    // The current record moved, or a move stopped at the beginning or end. Opening is reported as adRsnMove.
    virtual void moveComplete(EventReasonEnum reason) = 0;
    // One record changed: adRsnAddNew, adRsnUpdate, adRsnDelete, adRsnUndoUpdate, adRsnUndoAddNew,
    // adRsnFirstChange.
    virtual void recordChangeComplete(EventReasonEnum reason) = 0;
    // The whole set changed: adRsnRequery after it was opened, adRsnClose after it was closed.
    virtual void recordsetChangeComplete(EventReasonEnum reason) = 0;

protected:
    ~RecordsetObserver() = default;
};

} // namespace ADODB
