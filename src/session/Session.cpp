#include "session/Session.h"

#include "ado/Adodc.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "session/HostEvents.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/TypedPage.h"
#include "session/columns/ColumnCommand.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/history/StatementTrail.h"

namespace KOVAVSFDataGridLib {

Session::Session(SessionWindow &window, Questions &questions, HostEvents &host, const WindowRules &rules,
                 ADODB::Adodc *adodc, Opener opener)
    : m_window(&window),
      m_questions(&questions),
      m_host(&host),
      m_rules(rules),
      m_opener(std::move(opener)),
      m_adodc(adodc),
      m_result(adodc),
      m_reader(m_result),
      m_notifications(adodc ? &adodc->notifications() : &m_ownNotifications)
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
    m_notifications = &m_ownNotifications;
    m_isDetached = true;
    if (m_filter && !m_rules.worksOnLentResult)
        m_filter->SetFieldChooser(nullptr);
    m_result.borrow({}); // which closes it, unless the host holds it as well
}

ColumnLayout Session::columns()
{
    return ColumnLayout(*m_window, history());
}

const std::shared_ptr<clsFilterManagement> &Session::sharedFilterManager()
{
    if (!m_filter)
        m_filter = newFilterManager();
    return m_filter;
}

std::unique_ptr<clsFilterManagement> Session::newFilterManager()
{
    return std::make_unique<clsFilterManagement>(&m_reader, m_questions);
}

void Session::setFilterManager(std::shared_ptr<clsFilterManagement> manager)
{
    m_filter = std::move(manager);
}

const std::shared_ptr<StatementTrail> &Session::sharedTrail()
{
    if (!m_trail || !m_trail->isOf(m_filter))
        m_trail = std::make_shared<StatementTrail>(m_filter);
    return m_trail;
}

void Session::noteShownResult()
{
    if (m_filter && m_result.isOpen())
        trail().addNote(history(), m_result.recordset()->RecordCount());
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

// False when what was typed can't be taken or saved, which the user has been shown, and when the host,
// notified of it, has taken away what the command was to work on.
bool Session::makeReady(const Command &command)
{
    const bool hasCommand = m_rules.hasAllCommands || command.isInViewer;
    if (!hasCommand || !isUsable() || !whyNot(command).isEmpty())
        return false;
    return makeReady(command.needs, command.record);
}

bool Session::makeReady(Needs needs, Record record)
{
    returnToShownRecord();
    const ResultWatch watch(*this);
    if (record == Record::IsListedAgain && !commitEdit())
        return false;
    if (record == Record::IsLeft && !saveRecord())
        return false;
    return watch.isUntouched() && (needs == Needs::Nothing || hasRecords());
}

bool Session::canRunOnColumn(const ColumnCommand &command, int col)
{
    return isUsable() && m_result.isOpen() && col > 0 && col < m_window->Cols() &&
           (!command.canRun || command.canRun(*this, col));
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
    const auto alive = shared_from_this();
    const ConnectionFieldReader::Command asCommand(m_reader);
    ++m_running;
    try {
        command();
    } catch (const ADODB::Error &) {
        // What the user should know has been reported.
    } catch (const std::exception &error) {
        qWarning("A command failed: %s", error.what());
    }
    --m_running;
    updateRecordPosition();
    noteShownResult();
    m_window->refreshCommands();
}

QString Session::whyNot(const Command &command)
{
    return command.whyNot ? command.whyNot(*this) : QString();
}

QString Session::whyNot(DerivationStep step)
{
    const QString noHistory = whyNoHistory();
    if (!noHistory.isEmpty() || !m_filter || !m_result.isOpen())
        return noHistory;
    return history().WhyNot(step);
}

// Another connection string has emptied the history, and no load has come after it.
QString Session::whyNoHistory() const
{
    const bool isEmpty = m_filter && m_filter->SQLManager().Count() == 0;
    return isEmpty && m_result.isOpen() ? SessionMessages::LoadFirst : QString();
}

void Session::goToTypedPage(const QString &text)
{
    const std::optional<TypedPage> typed = TypedPage::read(text, m_rules.keepsTypedPage);
    if (!typed || !isUsable())
        return;
    perform([&] {
        returnToShownRecord();
        if (typed->number < 1) {
            m_questions->show(SessionMessages::NotAPageNumber);
        } else if (saveRecord()) {
            turnToPage(typed->number);
            if (m_rules.keepsTypedPage)
                m_window->showTypedPage(typed->text);
        }
    });
}

void Session::setFieldView(FieldView view)
{
    putFieldView(view);
    m_window->setPressed(view == FieldView::All ? CommandKeys::All : CommandKeys::Part, true);
}

void Session::layOutColumns()
{
    if (m_fieldView == FieldView::All)
        columns().ShowAllFieldColumns();
    else
        columns().ShowPartFieldColumns(PartWidths::Kept);
}

void Session::compressColumns()
{
    if (m_window->isSingleRecordShown() || !isUsable())
        return;
    const bool showsHidden = m_rules.compressShowsHidden && m_fieldView == FieldView::All;
    m_keptWidths.fit(*m_window, [&] { columns().fitColumns(m_rules.roundWidth, showsHidden); });
}

void Session::setLastFilter(const QString &condition)
{
    if (m_rules.remembersForDialogs)
        shared.lastFilter = condition;
    if (m_rules.writesFilter && condition.trimmed().isEmpty())
        writeFilter({});
}

void Session::toggleFromResult()
{
    m_isFromResult = !m_isFromResult;
    m_window->setPressed(CommandKeys::FromResult, m_isFromResult);
}

void Session::clear()
{
    m_reader.forget();
    if (m_filter)
        m_filter->ClearObject();
    m_filter.reset();
    m_result.release();
}

} // namespace KOVAVSFDataGridLib
