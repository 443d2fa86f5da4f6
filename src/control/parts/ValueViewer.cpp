#include "control/parts/ValueViewer.h"

#include "forms/value/ValueDialog.h"
#include "forms/value/ValuePane.h"
#include "grid/FlexGrid.h"
#include "session/commands/view/ShowValue.h"

#include <QtCore/QItemSelectionModel>

#include <utility>

namespace KOVAVSFDataGridLib {

namespace {

ShownValue shownValue(const CellValue &value)
{
    return {value.field, value.place, value.isNull, value.isBinary, value.text, value.bytes};
}

} // namespace

ValueViewer::ValueViewer(VSFlexGrid &grid) : QObject(&grid), m_grid(grid)
{
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &ValueViewer::followNow);
    connect(grid.selectionModel(), &QItemSelectionModel::currentChanged, this, &ValueViewer::follow);
    connect(grid.model(), &QAbstractItemModel::modelReset, this, &ValueViewer::follow);
}

ValueViewer::~ValueViewer() = default;

ValueViewer *ValueViewer::of(const QWidget &control)
{
    const auto *const grid = control.findChild<VSFlexGrid *>();
    return grid ? grid->findChild<ValueViewer *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

void ValueViewer::setPane(ValuePane &pane, std::function<void()> bring)
{
    m_pane = &pane;
    m_bring = std::move(bring);
    connect(&pane, &ValuePane::shown, this, &ValueViewer::follow);
}

// Its parent is the window, because the grid may be hidden while a single record is shown.
ValueDialog *ValueViewer::window() const
{
    return m_grid.parentWidget()->findChild<ValueDialog *>(QString(), Qt::FindDirectChildrenOnly);
}

void ValueViewer::show(const CellValue &value)
{
    if (m_pane)
        m_bring();
    if (ValuePane *const pane = m_pane.data()) {
        pane->put(shownValue(value));
        return pane->focusValue();
    }
    ValueDialog *shown = window();
    if (!shown)
        shown = new ValueDialog(m_grid.parentWidget());
    shown->show(shownValue(value));
}

void ValueViewer::followNow()
{
    ValueDialog *const shown = window();
    ValuePane *pane = m_pane.data();
    if (pane && !pane->isVisible())
        pane = nullptr;
    if (!m_session || (!pane && !(shown && shown->isVisible())))
        return;
    const auto value = currentValue(*m_session);
    if (value && shown)
        shown->replace(shownValue(*value));
    if (value && pane)
        pane->put(shownValue(*value));
    else if (pane)
        pane->clear(); // a window keeps its value
}

} // namespace KOVAVSFDataGridLib
