#pragma once

#include <memory>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

class Session;

// Remembers the result that a command works on. While a question is open or a statement is being read, the
// host may replace the result or destroy the control; the command must then end. The session lives at least
// as long as this object.
class ResultWatch
{
public:
    explicit ResultWatch(Session &session);

    // False if the host has opened or closed a result or destroyed the control since then.
    bool isUntouched() const;
    // The result at the start, kept alive by this object. Null if there was none.
    const std::shared_ptr<ADODB::Recordset> &recordset() const { return m_recordset; }

private:
    const std::shared_ptr<Session> m_session;
    const std::shared_ptr<ADODB::Recordset> m_recordset;
    const bool m_wasOpen;
};

} // namespace KOVAVSFDataGridLib
