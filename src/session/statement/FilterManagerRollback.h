#pragma once

#include "query/clsFilterManagement.h"
#include "session/ResultWatch.h"

#include <memory>

namespace KOVAVSFDataGridLib {

// Asking the filter manager for a statement changes its state: going back removes entries of the history.
// This restores the previous state unless the statement was then shown.
class FilterManagerRollback
{
public:
    explicit FilterManagerRollback(Session &session);
    ~FilterManagerRollback();
    Q_DISABLE_COPY_MOVE(FilterManagerRollback)

    // The session's filter manager. This object keeps it alive, even if the host loads another result during
    // a dialog of the filter manager.
    clsFilterManagement &manager() const { return *m_manager; }
    // The statement is shown; nothing is restored.
    void keepChanges() { m_keepsChanges = true; }
    // Like ResultWatch::isUntouched, but also false if the host has set another connection since.
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
