#include "control/parts/lines/ShownOpening.h"

namespace KOVAVSFDataGridLib {

ShownOpening::ShownOpening(QWidget &window, std::function<QRect()> place, VSFlexGrid &grid,
                           std::shared_ptr<std::optional<QPoint>> scrolled)
    : m_line(window, std::move(place)), m_preview(grid), m_scrolled(std::move(scrolled))
{
    m_scrolled->reset();
}

ShownOpening::~ShownOpening()
{
    *m_scrolled = m_preview.scrolledTo();
    m_line.setScrolledView(nullptr); // it watches events, also those of a view that is being deleted
}

bool ShownOpening::shouldContinue(qint64 rowsDone)
{
    return m_line.shouldContinue(rowsDone);
}

void ShownOpening::showOpening(const ADODB::Recordset &opening)
{
    m_preview.update(opening);
    m_line.setScrolledView(m_preview.view());
}

} // namespace KOVAVSFDataGridLib
