#include "session/layout/ShownColumns.h"

#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "session/commands/CommandKeys.h"

namespace KOVAVSFDataGridLib {

ShownColumns::ShownColumns(Session &session) : m_session(session) {}

void ShownColumns::putView(FieldView view)
{
    m_view = view;
    m_lacksPartFields = false;
}

void ShownColumns::setView(FieldView view)
{
    putView(view);
    m_session.window().setPressed(view == FieldView::All ? CommandKeys::All : CommandKeys::Part, true);
}

void ShownColumns::showLoaded(const QString &partFields)
{
    const bool isPart = m_view == FieldView::Part || m_lacksPartFields;
    const bool lacksPartFields = isPart && partFields.trimmed().isEmpty();
    setView(isPart && !lacksPartFields ? FieldView::Part : FieldView::All);
    m_lacksPartFields = lacksPartFields;
}

void ShownColumns::layOut()
{
    if (m_view == FieldView::All)
        m_session.columns().ShowAllFieldColumns();
    else
        m_session.columns().ShowPartFieldColumns(PartWidths::Kept);
}

void ShownColumns::compress()
{
    if (m_session.window().isSingleRecordShown() || !m_session.isUsable())
        return;
    const WindowRules &rules = m_session.rules();
    const bool showsHidden = rules.compressShowsHidden && m_view == FieldView::All;
    m_keptWidths.fit(m_session.window(),
                     [&] { m_session.columns().fitColumns(rules.roundWidth, showsHidden); });
}

} // namespace KOVAVSFDataGridLib
