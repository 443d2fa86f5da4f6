#include "session/Session.h"

#include "ado/Adodc.h"
#include "ado/Error.h"
#include "ado/Notifications.h"
#include "query/SharedValues.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "session/columns/ColumnCommand.h"
#include "session/commands/Command.h"
#include "session/editing/EditedRecord.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/statement/ConnectionFieldReader.h"
#include "session/statement/ShownStatement.h"
#include "session/statement/StatementReader.h"

namespace KOVAVSFDataGridLib {

Session::Session(SessionWindow &window, Questions &questions, HostEvents &host, const WindowRules &rules,
                 ADODB::Adodc *adodc, Opener opener)
    : shared(SharedValues::instance()),
      m_window(&window),
      m_questions(&questions),
      m_host(&host),
      m_rules(rules),
      m_ownNotifications(std::make_unique<ADODB::Notifications>()),
      m_notifications(adodc ? &adodc->notifications() : m_ownNotifications.get()),
      m_result(adodc),
      m_fieldReader(std::make_unique<ConnectionFieldReader>(m_result)),
      m_statementReader(std::make_unique<StatementReader>(*this, std::move(opener))),
      m_history(std::make_unique<SharedHistory>(*this)),
      m_shown(std::make_unique<ShownStatement>(*this)),
      m_fields(std::make_unique<ShownColumns>(*this)),
      m_pages(std::make_unique<Pages>(*this, adodc)),
      m_record(std::make_unique<EditedRecord>(*this))
{
}

Session::~Session() = default;

void Session::detach()
{
    static SessionWindow nowhere;
    static Questions nobody;
    static HostEvents noHost;
    m_window = &nowhere;
    m_questions = &nobody;
    m_host = &noHost;
    m_notifications = m_ownNotifications.get();
    m_isDetached = true;
    m_history->detach();
    m_result.borrow({}); // closes it, unless the host owns it as well
}

ColumnLayout Session::columns() const
{
    return ColumnLayout(*m_window, history());
}

clsFilterManagement &Session::filterManager() const
{
    return *m_history->manager();
}

colShowSQLSentences &Session::history() const
{
    return filterManager().SQLManager();
}

void Session::run(const QString &key, ChosenBy by)
{
    const Command *const command = Command::find(key);
    if (!command)
        qWarning("No command has the key %s", qPrintable(key));
    const bool isMenuItem = by == ChosenBy::MenuItem;
    perform([&] {
        if (!command || (isMenuItem && !m_result.isOpen()) || !makeReady(*command))
            return;
        if (isMenuItem && command->menu.leavesSingleRecord && m_window->isSingleRecordShown())
            m_window->showAllRecords();
        command->run(*this);
    });
}

// False if the typed text does not fit or can't be saved, after a message to the user, or if the host was
// notified and has removed what the command was to work on.
bool Session::makeReady(const Command &command)
{
    const bool hasCommand = m_rules.hasAllCommands || command.isInViewer;
    if (!hasCommand || !isUsable() || !whyNot(command).isEmpty())
        return false;
    return makeReady(command.needs, command.record);
}

bool Session::makeReady(Needs needs, Record record)
{
    m_pages->returnToShownRecord();
    if (record == Record::IsListedAgain && !m_record->commitEdit())
        return false;
    if (record == Record::IsLeft && !m_record->save())
        return false;
    return needs == Needs::Nothing || m_result.hasRecords();
}

bool Session::canRunOnColumn(const ColumnCommand &command, int col)
{
    return isUsable() && m_result.isOpen() && col > 0 && col < m_window->Cols() &&
           (!command.canRun || command.canRun(*this, col)) && whyNot(command, col).isEmpty();
}

void Session::runOnColumn(const ColumnCommand &command, int col)
{
    perform([&] {
        if (canRunOnColumn(command, col) && makeReady(Needs::Nothing, command.record))
            command.run(*this, col);
    });
}

void Session::perform(const std::function<void()> &command)
{
    if (shared.isWaiting) // by the host, while another command waits for its server
        return;
    const auto alive = shared_from_this(); // the host may destroy the control while the command runs
    const ConnectionFieldReader::Command asCommand(*m_fieldReader);
    ++m_running;
    try {
        command();
    } catch (const ADODB::Error &) {
        // The user has already been informed.
    } catch (const std::bad_alloc &) {
        m_questions->show(SessionMessages::OutOfMemory);
    } catch (const std::exception &error) {
        qWarning("A command failed: %s", error.what());
    }
    --m_running;
    m_pages->updateRecordPosition();
    m_history->noteShownResult();
    m_window->refreshCommands();
}

bool Session::isUsable() const
{
    return !m_rules.worksOnLentResult || !m_history->isManager(nullptr);
}

QString Session::whyNot(const Command &command)
{
    return command.whyNot ? command.whyNot(*this) : QString();
}

QString Session::whyNot(const ColumnCommand &command, int col)
{
    const QString reason = command.step ? m_history->whyNot(*command.step) : QString();
    const bool isOnColumn =
        command.whyNot && isUsable() && m_result.isOpen() && col > 0 && col < m_window->Cols();
    return reason.isEmpty() && isOnColumn ? command.whyNot(*this, col) : reason;
}

void Session::clear()
{
    m_fieldReader->forget();
    m_history->clear();
    m_result.release();
}

} // namespace KOVAVSFDataGridLib
