#include "control/commands/FilterManagerRollback.h"

#include "control/KOVAVSFDataGridPrivate.h"

namespace KOVAVSFDataGridLib {

FilterManagerRollback::FilterManagerRollback(ControlHub &hub)
    : m_hub(hub),
      m_before(hub.filterManager()),
      m_recordset(hub.result.recordset()),
      m_wasOpen(hub.result.isOpen())
{
}

FilterManagerRollback::~FilterManagerRollback()
{
    if (!m_keepsChanges && isResultUntouched())
        m_hub.filterManager() = m_before;
}

bool FilterManagerRollback::isResultUntouched() const
{
    return m_hub.result.isOpen() == m_wasOpen && m_hub.result.recordset() == m_recordset;
}

} // namespace KOVAVSFDataGridLib
