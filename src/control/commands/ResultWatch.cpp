#include "control/commands/ResultWatch.h"

#include "control/face/KOVAVSFDataGridPrivate.h"

namespace KOVAVSFDataGridLib {

ResultWatch::ResultWatch(ControlHub &hub)
    : m_hub(hub), m_control(&hub.q), m_recordset(hub.result.recordset()), m_wasOpen(hub.result.isOpen())
{
}

bool ResultWatch::isUntouched() const
{
    return m_control && m_hub.result.isOpen() == m_wasOpen && m_hub.result.recordset() == m_recordset;
}

} // namespace KOVAVSFDataGridLib
