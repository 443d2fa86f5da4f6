#pragma once

#include "query/clsFilterManagement.h"

#include <QtCore/QString>

#include <memory>

namespace KOVAVSFDataGridLib {

class Session;
class StatementTrail;

// The history of a session's statements: the filter manager that has it, and what the user's way through it
// left. Two sessions can work on the same.
class SharedHistory
{
public:
    explicit SharedHistory(Session &session);
    ~SharedHistory();
    Q_DISABLE_COPY_MOVE(SharedHistory)

    // Made on first use.
    const std::shared_ptr<clsFilterManagement> &manager();
    // For a session that works on another one's history; null makes it one without any, in which no command
    // does anything.
    void setManager(std::shared_ptr<clsFilterManagement> manager);
    bool isManager(const std::shared_ptr<clsFilterManagement> &manager) const { return m_manager == manager; }
    // One without a history, which asks this session's user and reads fields as it does.
    std::unique_ptr<clsFilterManagement> newManager() const;

    StatementTrail &trail() { return *sharedTrail(); }
    const std::shared_ptr<StatementTrail> &sharedTrail();
    void setTrail(std::shared_ptr<StatementTrail> trail) { m_trail = std::move(trail); }
    // Notes how many records the statement shows.
    void noteShownResult();

    // Whether there is a statement to go back to.
    bool canGoBack() const;
    // Why no command can work on the history now, for the user to read; empty when they can.
    QString whyNone() const;
    // The same for a kind of statement that a command would derive.
    QString whyNot(DerivationStep step) const;
    // The same for the part fields.
    QString whyNoPartFields() const;

    // The user can't be asked any more.
    void detach();
    void clear();

private:
    Session &m_session;
    std::shared_ptr<clsFilterManagement> m_manager;
    std::shared_ptr<StatementTrail> m_trail;
};

} // namespace KOVAVSFDataGridLib
