#pragma once

#include "ado/Notifications.h"
#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/ResultSet.h"
#include "session/WindowRules.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/KeptWidths.h"
#include "session/statement/ConnectionFieldReader.h"

#include <functional>
#include <memory>
#include <optional>

namespace KOVAVSFDataGridLib {

struct ColumnCommand;
struct Command;
struct ConditionRequest;
enum class Needs;
enum class Record;
class HostEvents;
class Questions;
class StatementTrail;
class SessionWindow;

// What the user has chosen a command by.
enum class ChosenBy { Button, MenuItem };

// Where a page button leads.
enum class PageStep { First, Previous, Next, Last };

// What the host asked for, as the properties of its control.
struct SessionTexts
{
    QString connectionString;
    QString sqlShow;
    QString sqlPartDisplay;
    QString sqlFilter;
    QString sqlSort;
    QString passQurryFilter;
    QString picField;
    QString recordSource;
    StatementSource tableType = FromTable;
};

// The condition that the user built last, and what it was built from; see ConditionRequest.
struct BuiltCondition
{
    QString condition;
    QString built;
};

// A condition that the user made by choosing values of a column.
struct ChosenValues
{
    QString field;     // as statements write it
    QString condition; // as the statement that is shown has it
    QString built;     // see ValuesAnswer
};

// One open result and all that can be done with it: its pages, its history of statements, the layout of its
// columns, and the commands. It shows itself in a window, asks its user questions and reports to a host, and
// knows of the three no more than their interfaces.
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
    ResultSet &result() { return m_result; }
    ConnectionFieldReader &reader() { return m_reader; }
    // What reports to the host wait for while the session changes.
    ADODB::Notifications &notifications() { return *m_notifications; }
    ColumnLayout columns();

    // Made on first use.
    clsFilterManagement &filterManager() { return *sharedFilterManager(); }
    const std::shared_ptr<clsFilterManagement> &sharedFilterManager();
    // For a session that works on another one's history; null makes it one without any, in which no command
    // does anything.
    void setFilterManager(std::shared_ptr<clsFilterManagement> manager);
    bool isFilterManager(const std::shared_ptr<clsFilterManagement> &manager) const
    {
        return m_filter == manager;
    }
    // What the user's way through the history has left; shared with a session that works on the same history.
    StatementTrail &trail() { return *sharedTrail(); }
    const std::shared_ptr<StatementTrail> &sharedTrail();
    void setTrail(std::shared_ptr<StatementTrail> trail) { m_trail = std::move(trail); }
    // Whether the history has a statement to go back to.
    bool canGoBack() const { return m_filter && m_filter->SQLManager().Count() > 1; }
    colShowSQLSentences &history() { return filterManager().SQLManager(); }

    // --- Commands. A command that fails ends silently after the user was shown what he should know.

    // Why a command can't run on what is shown now, for the user to read; empty when it can.
    QString whyNot(const Command &command);
    // The same for a kind of statement that a command would derive, and for one of the history.
    QString whyNot(DerivationStep step);
    QString whyNoHistory() const;
    // Runs the command of a key, whether or not its button is enabled; one that can't run ends silently. One
    // chosen from the menu needs an open result and shows many records again where its item says so.
    void run(const QString &key, ChosenBy by = ChosenBy::Button);
    // Runs a column's command on a column, from 1; one that can't run ends silently.
    void runOnColumn(const ColumnCommand &command, int col);
    bool canRunOnColumn(const ColumnCommand &command, int col);
    // Runs what belongs to no command as one: errors of the data end it, buttons and status follow it.
    void perform(const std::function<void()> &command);
    bool isRunning() const { return m_running > 0; }
    // The whole load, from the host's texts to the first entry of the history. Whether it succeeded and its
    // result is still open: the host can close it as soon as it hears of it.
    bool load();
    // Makes the page typed into the page box the one that is shown.
    void goToTypedPage(const QString &text);

    // --- The shown statement.

    const QString &statement() const { return m_statement; }
    void setStatement(const QString &statement) { m_statement = statement; }
    // Leaves the statement shown for the dialogs of the process to find.
    void rememberStatement() const;
    // Whether another statement has been opened since the result was lent; see borrow().
    bool isRequeried() const { return m_isRequeried; }

    // Reads a statement beside what is shown. Nothing when it is empty or can't be read, which the user has
    // been shown, or when something else was put in the result's place meanwhile. If `refusal` is given, the
    // database's words go there and not to the user.
    std::optional<ResultSet::Opened> read(const QString &statement, QString *refusal = nullptr);
    // The same after keeping column widths, and the statement in SQLFilter. `isRemembered` as in
    // rememberStatement.
    std::optional<ResultSet::Opened> readForReload(const QString &statement, bool isRemembered,
                                                   QString *refusal = nullptr);
    // Shows what was read in place of what is shown, from its first page on.
    void show(const ResultSet::Opened &opened);
    // Both for a statement with one more condition, which becomes the latest entry of the history.
    bool reloadFiltered(const QString &statement, bool isRemembered, QString *refusal = nullptr);
    // The statement shown with one more condition; false when none can be derived.
    bool addCondition(const QString &condition, QString &statement);
    // Makes the statement the latest entry of the history and lays its columns out as all or part fields.
    void record(const QString &statement, const QString &partFields = colShowSQLSentences::NoPartField(),
                const QString &orderFields = colShowSQLSentences::NoSort());
    // Puts a result that was read for it in place of the one that is open and shows its first page. False
    // when the host, which hears of it at once, has put something else there.
    bool replaceResult(const ResultSet::Opened &opened);
    // What a user has to know to build a condition for what is shown.
    ConditionRequest conditionRequest();
    // Writes SQLFilter.
    void writeFilter(const QString &statement);
    // Takes over a result that another session has opened, without owning it.
    void borrow(const ResultSet::Opened &opened, const QString &statement, int page);

    FieldView fieldView() const { return m_fieldView; }
    // What a host writes; nothing changes by it.
    void putFieldView(FieldView view)
    {
        m_fieldView = view;
        m_lacksPartFields = false;
    }
    // Shows that all or the part fields are shown.
    void setFieldView(FieldView view);
    void layOutColumns();

    // Shares the grid's width among the columns that are shown; not while a single record is.
    void compressColumns();
    // The widths before the columns were last fitted.
    KeptWidths &keptWidths() { return m_keptWidths; }

    // Keeps a filter's condition for the dialogs of the process; an empty one empties SQLFilter as well.
    void setLastFilter(const QString &condition);
    bool isFromResult() const { return m_isFromResult; }
    void toggleFromResult();

    // --- Pages and records.

    // From 1; 0 when no page can be shown.
    int page() const { return m_page; }
    int recordsOnPage(int page) const;
    // The record of a row of the current page, from 1.
    qint64 recordOfRow(qint64 row) const;
    // The row of a record on the current page; 0 when the page doesn't have it.
    int rowOfRecord(qint64 record) const;
    // 0-based; -1 when the result has no picture field.
    int pictureField() const { return m_pictureField; }
    // Makes a page the current one, as far as there is one.
    void setPage(qint64 page);
    // Shows the current page. Throws ADODB::Error, and changes nothing, when an edit can't be saved.
    void fillPage();
    // Both; false when the page can't be left, which the user has been shown.
    bool showPage(qint64 page);
    // Shows a page of the result as it is laid out.
    void turnToPage(qint64 page);
    void stepPage(PageStep step);
    // Shows the records once more after some were added or removed, and makes a record current (0: none).
    void refillAtRecord(qint64 record);

    // Looks into the open result, since other controls write the shared values as well.
    bool hasRecords() const;
    // Makes the record that is shown current the result's, where a host has walked past the first or the
    // last.
    void returnToShownRecord();
    // Takes number of records and position into the shared values.
    void updateRecordPosition();
    void storeRecordCount();

    // Takes the value that is being typed into the current record. False when it doesn't fit, which the user
    // has been shown, or when the host has put something else in the result's place.
    bool commitEdit();
    // The same for all that was written into the record and its way into the database, so that it can be
    // left.
    bool saveRecord();
    // The same when the result is about to go: a user whose changes can't be saved chooses what becomes of
    // them. False when he stays.
    bool leaveResult();
    // The same for a control that is being destroyed, which can neither ask nor report. Answers why the
    // changes could not be saved, for the user to read.
    std::optional<QString> saveSilently();
    // Reads the current record again and shows what somebody else has written. What the user wrote into it
    // stays and is still not saved; he is shown where both changed the same field.
    void showNewValues();
    // Whether something was written into the current record that is not saved yet.
    bool hasUnsavedChanges() const;
    // Whether records can be neither added, changed nor deleted.
    bool isReadOnly() const { return m_isReadOnly; }
    // Why that is so for what is shown now, for the user to read: because the host wants it, or because the
    // result can't be written. Empty when it isn't so.
    QString whyNotWritten() const;
    void setReadOnly(bool on);
    // Whether the open result has a field that can be written.
    bool canAddRecords() const;
    // The same for a record that is known to be changed. Throws ADODB::Error when the database refuses.
    void saveChanges();
    // Forgets what was written into it.
    void cancelRecord();
    // Whether nobody wrote anything into the current record.
    bool isRecordEmpty();

    // Closes the result and forgets its history.
    void clear();

    SessionTexts texts;
    BuiltCondition lastBuilt;
    std::vector<ChosenValues> chosenValues; // of all statements so far, the latest last
    SharedValues &shared = SharedValues::instance();

private:
    enum class Reading { Done, Failed, Cancelled, Overtaken };

    std::unique_ptr<clsFilterManagement> newFilterManager();
    std::unique_ptr<clsFilterManagement> filterManagerForLoad();
    struct LoadedStatement
    {
        QString written; // SQLShow as it is, unless it has to be another statement
        QString line;    // what is run, and what others are derived from
    };
    std::optional<LoadedStatement> statementToOpen(clsFilterManagement &manager);
    Reading readResult(const QString &statement, AllDBType dbType, std::optional<ResultSet::Opened> &opened,
                       QString *refusal = nullptr);
    ResultSet::Opened openStatement(const QString &statement, AllDBType dbType);
    Reading reportCancelled();
    void reportOpenError(const QString &description);
    void showLoaded(const ResultSet::Opened &opened, const LoadedStatement &statement,
                    std::unique_ptr<clsFilterManagement> manager);
    void showLoadedFields();
    bool makeReady(const Command &command);
    // Whether what it works on is still there.
    bool isUsable() const { return !m_rules.worksOnLentResult || m_filter; }
    bool makeReady(Needs needs, Record record);
    void cancelChanges();
    void noteShownResult();
    struct Failure
    {
        QString text; // for the user to read
        bool isChangedByOthers = false;
    };
    std::optional<Failure> trySave();

    SessionWindow *m_window;
    Questions *m_questions;
    HostEvents *m_host;
    const WindowRules &m_rules;
    const Opener m_opener;
    const QPointer<ADODB::Adodc> m_adodc;
    ResultSet m_result;
    ConnectionFieldReader m_reader;
    ADODB::Notifications m_ownNotifications; // of a session without a data control
    ADODB::Notifications *m_notifications;
    std::shared_ptr<clsFilterManagement> m_filter;
    std::shared_ptr<StatementTrail> m_trail;
    QString m_statement;
    KeptWidths m_keptWidths;
    FieldView m_fieldView = FieldView::All;
    int m_page = 0;
    int m_pictureField = -1;
    int m_running = 0;          // commands, one inside the other
    bool m_isCancelled = false; // the last reading, by the user
    bool m_isFromResult = false;
    bool m_lacksPartFields = false; // all are shown for that alone; the next load shows part of its fields
    bool m_isRequeried = false;
    bool m_isDetached = false;
    bool m_isReadOnly = false;
};

} // namespace KOVAVSFDataGridLib
