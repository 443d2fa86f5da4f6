#pragma once

#include "query/clsFilterManagement.h"

#include <QtCore/QString>

#include <memory>

namespace KOVAVSFDataGridLib {

class Session;
class StatementTrail;

// The history of a session's statements: the filter manager with the statements, and the trail of the user's
// steps. Two sessions can share it.
class SharedHistory
{
public:
    explicit SharedHistory(Session &session);
    ~SharedHistory();
    Q_DISABLE_COPY_MOVE(SharedHistory)

    // Created on first use.
    const std::shared_ptr<clsFilterManagement> &manager();
    // For a session that works on another one's history.
    // Null removes it, and commands then do nothing.
    void setManager(std::shared_ptr<clsFilterManagement> manager);
    bool isManager(const std::shared_ptr<clsFilterManagement> &manager) const { return m_manager == manager; }
    // A new one without a history, with this session's user for questions and the same field reader.
    std::unique_ptr<clsFilterManagement> newManager() const;

    StatementTrail &trail() { return *sharedTrail(); }
    const std::shared_ptr<StatementTrail> &sharedTrail();
    void setTrail(std::shared_ptr<StatementTrail> trail) { m_trail = std::move(trail); }
    // Remembers how many records the statement shows.
    void noteShownResult();

    // Whether there is a previous statement.
    bool canGoBack() const;
    // Why no command can use the history now, as a text for the user; empty if they can.
    QString whyNone() const;
    // The same for the kind of statement that a command would derive.
    QString whyNot(DerivationStep step) const;
    // The same for all fields, and for the part fields.
    QString whyNoAllFields() const;
    QString whyNoPartFields() const;

    // The user can no longer be asked.
    void detach();
    void clear();

private:
    Session &m_session;
    std::shared_ptr<clsFilterManagement> m_manager;
    std::shared_ptr<StatementTrail> m_trail;
};

} // namespace KOVAVSFDataGridLib
