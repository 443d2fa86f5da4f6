#pragma once

#include "control/commands/ControlHub.h"
#include "query/clsFilterManagement.h"

#include <memory>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

// Asking the filter manager for a statement already changes what it remembers: going back removes entries of
// the history. Unless the statement was then shown, this puts everything back as it was.
class FilterManagerRollback
{
public:
    explicit FilterManagerRollback(ControlHub &hub);
    ~FilterManagerRollback();
    Q_DISABLE_COPY_MOVE(FilterManagerRollback)

    // What was asked for is shown; nothing is put back.
    void keepChanges() { m_keepsChanges = true; }
    // False when the host opened or closed a result meanwhile (from an event, or behind a dialog). A command
    // then has lost its ground and ends.
    bool isResultUntouched() const;

private:
    ControlHub &m_hub;
    const clsFilterManagement m_before;
    const std::shared_ptr<ADODB::Recordset> m_recordset;
    const bool m_wasOpen;
    bool m_keepsChanges = false;
};

} // namespace KOVAVSFDataGridLib
