#pragma once

#include <memory>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

class Session;

// Remembers which result a command works on. While a question is open or a statement is being read, the host
// may put another one in its place, or destroy the control; the command then ends. The session lives at least
// as long as this object.
class ResultWatch
{
public:
    explicit ResultWatch(Session &session);

    // False when the host meanwhile opened or closed a result or destroyed the control.
    bool isUntouched() const;
    // The result that was there; it lives as long as this object. Null when there was none.
    const std::shared_ptr<ADODB::Recordset> &recordset() const { return m_recordset; }

private:
    const std::shared_ptr<Session> m_session;
    const std::shared_ptr<ADODB::Recordset> m_recordset;
    const bool m_wasOpen;
};

} // namespace KOVAVSFDataGridLib
