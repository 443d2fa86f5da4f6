#include "control/commands/ShownStatement.h"

#include "control/face/KOVAVSFDataGridPrivate.h"
#include "grid/FlexGrid.h"

#include <QtCore/QPointer>

namespace KOVAVSFDataGridLib {

qint32 GetShowAllFieldsFlag(qint32 showModel)
{
    return showModel == KOVAVSFDataGrid::ModelAll ? 1 : 0;
}

void ShownStatement::rememberAsPrevious() const
{
    m_hub.shared.previousShowStatement = m_current;
}

bool ShownStatement::OpenShowSQL(const QString &strSQL)
{
    const QPointer<KOVAVSFDataGrid> alive(&m_hub.q);
    VSFlexGrid &grid = *m_hub.parts.vsfgDataGrid;
    const QStringList headingsBefore = grid.Headings();
    // What a filter manager was set up for stays right when another control sets another type meanwhile.
    if (strSQL.isEmpty() || m_hub.open(strSQL, m_hub.filterManager().DBType()) != ControlHub::Opening::Done)
        return false;
    m_current = strSQL;
    m_hub.showPage(1);
    if (!alive)
        return false;
    // Widths belong to fields; the layout that follows gives each its own again.
    if (grid.Headings() != headingsBefore)
        grid.ResetColWidths();
    m_hub.commands.singleRecord.refillIfShown();
    m_hub.q.Refresh();
    return alive;
}

bool ShownStatement::reload(const QString &statement, Previous previous)
{
    if (statement.isEmpty())
        return false;
    if (previous == Previous::Keep)
        rememberAsPrevious();
    m_hub.columns().SaveColumnWidths(0);
    const QString filterBefore = m_hub.sqlFilter;
    const QPointer<KOVAVSFDataGrid> alive(&m_hub.q);
    m_hub.q.PutSQLFilter(statement);
    if (!alive)
        return false;
    const QString filter = m_hub.sqlFilter; // a handler may change it while the statement is opened
    if (OpenShowSQL(filter))
        return true;
    if (alive)
        m_hub.q.PutSQLFilter(filterBefore);
    return false;
}

bool ShownStatement::reloadFiltered(const QString &statement, Previous previous)
{
    return reload(statement, previous) &&
           record(m_current, colShowSQLSentences::NoPartField(), colShowSQLSentences::NoSort());
}

bool ShownStatement::record(const QString &statement, const QString &partFields, const QString &orderFields)
{
    return m_hub.columns().RecordShowSQL(statement, GetShowAllFieldsFlag(m_hub.showModel), 0, partFields,
                                         orderFields, m_hub.connectionString);
}

} // namespace KOVAVSFDataGridLib
