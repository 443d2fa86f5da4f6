#pragma once

#include "Enums.h"

namespace ADODB {

// Called when a recordset changes; see Recordset::AddObserver. An observer must not throw where nothing else
// is said.
class RecordsetObserver
{
public:
    // The current record is about to be saved or left: what somebody is still typing for it can be written
    // into its fields now. It may throw Error; the record then stays the current one, and
    // is not saved.
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
