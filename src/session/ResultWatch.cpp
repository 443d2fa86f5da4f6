#include "session/ResultWatch.h"

#include "session/Session.h"

namespace KOVAVSFDataGridLib {

ResultWatch::ResultWatch(Session &session)
    : m_session(session.shared_from_this()),
      m_recordset(session.result().recordset()),
      m_wasOpen(session.result().isOpen())
{
}

bool ResultWatch::isUntouched() const
{
    return !m_session->isDetached() && m_session->result().isOpen() == m_wasOpen &&
           m_session->result().recordset() == m_recordset;
}

} // namespace KOVAVSFDataGridLib
