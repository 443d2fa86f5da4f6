#include "session/statement/FilterManagerRollback.h"

#include "session/Session.h"
#include "session/history/SharedHistory.h"

namespace KOVAVSFDataGridLib {

FilterManagerRollback::FilterManagerRollback(Session &session)
    : m_session(session),
      m_result(session),
      m_manager(session.sharedHistory().manager()),
      m_before(*m_manager),
      m_connectionString(session.texts.connectionString)
{
}

FilterManagerRollback::~FilterManagerRollback()
{
    if (!m_keepsChanges && isResultUntouched())
        *m_manager = m_before;
}

bool FilterManagerRollback::isResultUntouched() const
{
    return m_result.isUntouched() && m_session.sharedHistory().isManager(m_manager) &&
           m_session.texts.connectionString == m_connectionString;
}

} // namespace KOVAVSFDataGridLib
