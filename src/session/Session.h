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

// What the user has chosen a command by.
enum class ChosenBy { Button, MenuItem };

// One open result and all that can be done with it. It shows itself in a window, asks its user questions and
// reports to a host, and knows of the three no more than their interfaces. It runs the commands; what they
// work on is in the objects that it owns, each with a header of its own.
//
// A session outlives its window for as long as a command runs: whoever calls it holds it by shared_ptr. After
// detach() it asks and shows nothing any more, has no result, and every command ends by itself.
//
// While a question is open or a statement is being read the host may do anything, even load another result. A
// command that has waited looks with a ResultWatch whether the result that it works on is still there, and
// ends silently when it isn't. What it changes then, it changes under a Hold; the host hears of it all at
// once.
class Session : public std::enable_shared_from_this<Session>
{
public:
    // How a statement is opened in place of the one that is shown; throws ADODB::Error, and what its own
    // opening needs. By default through a connection of its own. The opener of a session that works on a
    // lent result has replaced that result when it returns.
    using Opener =
        std::function<ResultSet::Opened(const QString &statement, const ResultSet::Progress &progress)>;

    // All but `opener` must live until detach(). `adodc` passes the recordset's notifications on; a session
    // that only borrows its result has none.
    Session(SessionWindow &window, Questions &questions, HostEvents &host, const WindowRules &rules,
            ADODB::Adodc *adodc, Opener opener = {});
    ~Session();
    Q_DISABLE_COPY_MOVE(Session)

    // The window is about to go. The session releases its result without a word.
    void detach();
    bool isDetached() const { return m_isDetached; }

    SessionWindow &window() const { return *m_window; }
    Questions &questions() const { return *m_questions; }
    HostEvents &host() const { return *m_host; }
    const WindowRules &rules() const { return m_rules; }
    // What reports to the host wait for while the session changes.
    ADODB::Notifications &notifications() const { return *m_notifications; }

    // --- What the commands work on.

    ResultSet &result() { return m_result; }
    // The statement of the result, and how another one takes its place.
    ShownStatement &shown() const { return *m_shown; }
    // Opens a statement beside what is shown.
    StatementReader &statementReader() const { return *m_statementReader; }
    // Reads the names and types of fields.
    ConnectionFieldReader &fieldReader() const { return *m_fieldReader; }
    Pages &pages() const { return *m_pages; }
    // What was written into the current record.
    EditedRecord &record() const { return *m_record; }
    ShownColumns &fields() const { return *m_fields; }
    ColumnLayout columns() const;
    // The history of statements with all that belongs to it, and its two parts that commands ask most.
    SharedHistory &sharedHistory() const { return *m_history; }
    clsFilterManagement &filterManager() const;
    colShowSQLSentences &history() const;

    // --- Commands. A command that fails ends silently after the user was shown what he should know.

    // Why a command can't run on what is shown now, for the user to read; empty when it can.
    QString whyNot(const Command &command);
    QString whyNot(const ColumnCommand &command, int col);
    // Runs the command of a key, whether or not its button is enabled; one that can't run ends silently. One
    // chosen from the menu needs an open result and shows many records again where its item says so.
    void run(const QString &key, ChosenBy by = ChosenBy::Button);
    // Runs a column's command on a column, from 1; one that can't run ends silently.
    void runOnColumn(const ColumnCommand &command, int col);
    bool canRunOnColumn(const ColumnCommand &command, int col);
    // Runs what belongs to no command as one: errors of the data end it, buttons and status follow it.
    void perform(const std::function<void()> &command);
    bool isRunning() const { return m_running > 0; }
    // Whether there is a history to work on; one that was lent can be taken away at any time.
    bool isUsable() const;

    // Closes the result and forgets its history.
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
    const std::unique_ptr<ADODB::Notifications> m_ownNotifications; // of a session without a data control
    ADODB::Notifications *m_notifications;
    ResultSet m_result;
    const std::unique_ptr<ConnectionFieldReader> m_fieldReader;
    const std::unique_ptr<StatementReader> m_statementReader;
    const std::unique_ptr<SharedHistory> m_history;
    const std::unique_ptr<ShownStatement> m_shown;
    const std::unique_ptr<ShownColumns> m_fields;
    const std::unique_ptr<Pages> m_pages;
    const std::unique_ptr<EditedRecord> m_record;
    int m_running = 0; // commands, one inside the other
    bool m_isDetached = false;
};

} // namespace KOVAVSFDataGridLib
