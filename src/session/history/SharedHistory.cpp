#include "session/history/SharedHistory.h"

#include "ado/Recordset.h"
#include "session/Questions.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/WindowRules.h"
#include "session/history/StatementTrail.h"
#include "session/statement/ConnectionFieldReader.h"

namespace KOVAVSFDataGridLib {

SharedHistory::SharedHistory(Session &session) : m_session(session) {}

SharedHistory::~SharedHistory() = default;

const std::shared_ptr<clsFilterManagement> &SharedHistory::manager()
{
    if (!m_manager)
        m_manager = newManager();
    return m_manager;
}

std::unique_ptr<clsFilterManagement> SharedHistory::newManager() const
{
    return std::make_unique<clsFilterManagement>(&m_session.fieldReader(), &m_session.questions());
}

void SharedHistory::setManager(std::shared_ptr<clsFilterManagement> manager)
{
    m_manager = std::move(manager);
}

const std::shared_ptr<StatementTrail> &SharedHistory::sharedTrail()
{
    if (!m_trail || !m_trail->isOf(m_manager))
        m_trail = std::make_shared<StatementTrail>(m_manager);
    return m_trail;
}

void SharedHistory::noteShownResult()
{
    if (m_manager && m_session.result().isOpen())
        trail().addNote(m_manager->SQLManager(), m_session.result().recordset()->RecordCount());
}

bool SharedHistory::canGoBack() const
{
    return m_manager && m_manager->SQLManager().Count() > 1;
}

// Setting another connection string has cleared the history, and nothing was loaded since.
QString SharedHistory::whyNone() const
{
    const bool isEmpty = m_manager && m_manager->SQLManager().Count() == 0;
    return isEmpty && m_session.result().isOpen() ? SessionMessages::LoadFirst : QString();
}

QString SharedHistory::whyNot(DerivationStep step) const
{
    QString none = whyNone();
    if (!none.isEmpty() || !m_manager || !m_session.result().isOpen())
        return none;
    return m_manager->SQLManager().WhyNot(step);
}

QString SharedHistory::whyNoAllFields() const
{
    QString none = whyNone();
    if (!none.isEmpty() || !m_manager || !m_session.result().isOpen())
        return none;
    return m_manager->SQLManager().WhyNoAllFields();
}

QString SharedHistory::whyNoPartFields() const
{
    QString none = whyNone();
    if (!none.isEmpty() || !m_manager || !m_session.result().isOpen())
        return none;
    return m_manager->SQLManager().WhyNoPartFields();
}

void SharedHistory::detach()
{
    if (m_manager && !m_session.rules().worksOnLentResult)
        m_manager->SetFieldChooser(nullptr);
}

void SharedHistory::clear()
{
    if (m_manager)
        m_manager->ClearObject();
    m_manager.reset();
}

} // namespace KOVAVSFDataGridLib
