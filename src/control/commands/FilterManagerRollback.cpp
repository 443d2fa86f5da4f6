#include "control/commands/FilterManagerRollback.h"

#include "control/face/KOVAVSFDataGridPrivate.h"

namespace KOVAVSFDataGridLib {

FilterManagerRollback::FilterManagerRollback(ControlHub &hub)
    : m_hub(hub),
      m_result(hub),
      m_manager(hub.filterManagerToShare()),
      m_before(*m_manager),
      m_connectionString(hub.connectionString)
{
}

FilterManagerRollback::~FilterManagerRollback()
{
    if (!m_keepsChanges && isResultUntouched())
        *m_manager = m_before;
}

bool FilterManagerRollback::isResultUntouched() const
{
    return m_result.isUntouched() && m_hub.filter == m_manager &&
           m_hub.connectionString == m_connectionString;
}

} // namespace KOVAVSFDataGridLib
