#pragma once

#include "session/LoadRequest.h"
#include "session/ResultSet.h"

#include <functional>
#include <memory>

namespace ADODB {
class Notifications;
}

namespace KOVAVSFDataGridLib {

struct ColumnCommand;
struct Command;
struct WindowRules;
enum class Needs;
enum class Record;
class ColumnLayout;
class ConnectionFieldReader;
class EditedRecord;
class HostEvents;
class Pages;
class Questions;
class SessionWindow;
class SharedHistory;
class ShownColumns;
class ShownStatement;
class StatementReader;
class clsFilterManagement;
class colShowSQLSentences;
struct SharedValues;

// How the user has chosen a command.
enum class ChosenBy { Button, MenuItem };

// One open result and all operations on it. It knows its window, its user and its host only by their
// interfaces. It runs the commands; what they work on is in the objects that it owns, each with its own
// header.
//
// If its window is destroyed while a command runs, the session outlives it: callers hold it by shared_ptr.
// After detach() it asks and shows nothing any more, has no result, and every command ends on its own.
//
// While a question is open or a statement is being read, the host may do anything,
// even load another result. After a wait, a command uses a ResultWatch to check
// whether its result is still there, and ends silently if it isn't. It then makes
// its changes under a Hold, so that the host is notified of all of them at once.
class Session : public std::enable_shared_from_this<Session>
{
public:
    // Opens a statement to replace the shown one; throws ADODB::Error. By
    // default uses a new connection. In a session that works on a lent
    // result, the opener has already replaced that result when it returns.
    using Opener =
        std::function<ResultSet::Opened(const QString &statement, const ResultSet::Progress &progress)>;

    // All but `opener` must live until detach(). `adodc` forwards the recordset's notifications; a session
    // that only borrows its result has none.
    Session(SessionWindow &window, Questions &questions, HostEvents &host, const WindowRules &rules,
            ADODB::Adodc *adodc, Opener opener = {});
    ~Session();
    Q_DISABLE_COPY_MOVE(Session)

    // Call it before the window is destroyed. The session releases its result without notifications.
    void detach();
    bool isDetached() const { return m_isDetached; }

    SessionWindow &window() const { return *m_window; }
    Questions &questions() const { return *m_questions; }
    HostEvents &host() const { return *m_host; }
    const WindowRules &rules() const { return m_rules; }
    // Delays notifications of the host while the session changes.
    ADODB::Notifications &notifications() const { return *m_notifications; }

    // --- What the commands work on.

    ResultSet &result() { return m_result; }
    // The statement of the result, and how it is replaced.
    ShownStatement &shown() const { return *m_shown; }
    // Opens a statement without changing what is shown.
    StatementReader &statementReader() const { return *m_statementReader; }
    // Reads the names and types of fields.
    ConnectionFieldReader &fieldReader() const { return *m_fieldReader; }
    Pages &pages() const { return *m_pages; }
    // The edits of the current record.
    EditedRecord &record() const { return *m_record; }
    ShownColumns &fields() const { return *m_fields; }
    ColumnLayout columns() const;
    // The history of statements with everything that belongs to it, and its two most used parts.
    SharedHistory &sharedHistory() const { return *m_history; }
    clsFilterManagement &filterManager() const;
    colShowSQLSentences &history() const;

    // --- Commands. A command that fails ends silently after the user was shown what he should know.

    // Why a command can't run now, as a text for the user; empty if it can.
    QString whyNot(const Command &command);
    QString whyNot(const ColumnCommand &command, int col);
    // Runs the command with this key, even if its button is disabled; ends silently if it can't run. From the
    // menu, it needs an open result, and leaves the single-record view first if its item says so.
    void run(const QString &key, ChosenBy by = ChosenBy::Button);
    // Runs a column command on a column (from 1); ends silently if it can't run.
    void runOnColumn(const ColumnCommand &command, int col);
    bool canRunOnColumn(const ColumnCommand &command, int col);
    // Runs a function like a command: errors of the data end it, and buttons and status are updated.
    void perform(const std::function<void()> &command);
    bool isRunning() const { return m_running > 0; }
    // Whether there is a history; one that was lent can be taken away at any time.
    bool isUsable() const;

    // Closes the result and clears its history.
    void clear();

    LoadRequest texts;
    SharedValues &shared;

private:
    bool makeReady(const Command &command);
    bool makeReady(Needs needs, Record record);

    SessionWindow *m_window;
    Questions *m_questions;
    HostEvents *m_host;
    const WindowRules &m_rules;
    const std::unique_ptr<ADODB::Notifications> m_ownNotifications; // for a session without a data control
    ADODB::Notifications *m_notifications;
    ResultSet m_result;
    const std::unique_ptr<ConnectionFieldReader> m_fieldReader;
    const std::unique_ptr<StatementReader> m_statementReader;
    const std::unique_ptr<SharedHistory> m_history;
    const std::unique_ptr<ShownStatement> m_shown;
    const std::unique_ptr<ShownColumns> m_fields;
    const std::unique_ptr<Pages> m_pages;
    const std::unique_ptr<EditedRecord> m_record;
    int m_running = 0; // nested commands
    bool m_isDetached = false;
};

} // namespace KOVAVSFDataGridLib
