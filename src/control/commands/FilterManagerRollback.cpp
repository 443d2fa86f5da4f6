#include "control/commands/FilterManagerRollback.h"

#include "control/KOVAVSFDataGridPrivate.h"

namespace KOVAVSFDataGridLib {

FilterManagerRollback::FilterManagerRollback(ControlHub &hub)
    : m_hub(hub),
      m_control(&hub.q),
      m_manager(hub.filterManagerToShare()),
      m_before(*m_manager),
      m_connectionString(hub.connectionString),
      m_recordset(hub.result.recordset()),
      m_wasOpen(hub.result.isOpen())
{
}

FilterManagerRollback::~FilterManagerRollback()
{
    if (!m_keepsChanges && isResultUntouched())
        *m_manager = m_before;
}

bool FilterManagerRollback::isResultUntouched() const
{
    return m_control && m_hub.filter == m_manager && m_hub.connectionString == m_connectionString &&
           m_hub.result.isOpen() == m_wasOpen && m_hub.result.recordset() == m_recordset;
}

} // namespace KOVAVSFDataGridLib
