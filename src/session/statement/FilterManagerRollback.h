#pragma once

#include "query/clsFilterManagement.h"
#include "session/ResultWatch.h"

#include <memory>

namespace KOVAVSFDataGridLib {

// Asking the filter manager for a statement already changes what it remembers: going back removes entries of
// the history. Unless the statement was then shown, this puts everything back as it was.
class FilterManagerRollback
{
public:
    explicit FilterManagerRollback(Session &session);
    ~FilterManagerRollback();
    Q_DISABLE_COPY_MOVE(FilterManagerRollback)

    // The session's filter manager. It lives as long as this object, even when the host loads another result
    // from inside a dialog that the filter manager is showing.
    clsFilterManagement &manager() const { return *m_manager; }
    // What was asked for is shown; nothing is put back.
    void keepChanges() { m_keepsChanges = true; }
    // As ResultWatch::isUntouched; False as well when the host meanwhile gave another connection.
    bool isResultUntouched() const;

private:
    Session &m_session;
    const ResultWatch m_result;
    const std::shared_ptr<clsFilterManagement> m_manager;
    const clsFilterManagement m_before;
    const QString m_connectionString;
    bool m_keepsChanges = false;
};

} // namespace KOVAVSFDataGridLib
