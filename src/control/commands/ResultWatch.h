#pragma once

#include "control/commands/ControlHub.h"

#include <QtCore/QPointer>

#include <memory>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

// Remembers which result a command works on. Whenever the host is told of something, or a dialog is open, it
// may put another one in its place; the command has lost its ground then, and ends.
class ResultWatch
{
public:
    explicit ResultWatch(ControlHub &hub);

    // False when the host meanwhile opened or closed a result or destroyed the control.
    bool isUntouched() const;
    // The result that was there; it lives as long as this object. Null when there was none.
    const std::shared_ptr<ADODB::Recordset> &recordset() const { return m_recordset; }

private:
    ControlHub &m_hub;
    const QPointer<KOVAVSFDataGrid> m_control;
    const std::shared_ptr<ADODB::Recordset> m_recordset;
    const bool m_wasOpen;
};

} // namespace KOVAVSFDataGridLib
