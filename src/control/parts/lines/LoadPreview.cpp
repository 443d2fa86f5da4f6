#include "control/parts/lines/LoadPreview.h"

#include "ado/Recordset.h"
#include "ado/recordset/RecordsSoFar.h"
#include "grid/FlexGrid.h"
#include "grid/Twips.h"
#include "grid/cells/RecordWindow.h"
#include "query/SharedValues.h"
#include "session/layout/ColumnLayout.h"

#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

// Milliseconds. The first is long enough to avoid flicker in fast loads; the user should see something a
// tenth of a second after the first record.
constexpr qint64 patience = 30;
constexpr qint64 growthInterval = 100;

// The positions of the scroll bars.
QPoint placeOf(const VSFlexGrid &view)
{
    return {view.horizontalScrollBar()->value(), view.verticalScrollBar()->value()};
}

std::unique_ptr<RecordWindow> cellsOf(const std::shared_ptr<const ADODB::Recordset> &records)
{
    const qint64 count = std::min<qint64>(records->RecordCount(), SharedValues::recordCap); // the first page
    return std::make_unique<RecordWindow>(records, 1, static_cast<int>(count));
}

// With the layout that the result will have: fields that were shown before keep their positions and widths,
// others share the whole width if possible.
void layOutColumns(VSFlexGrid &view, const VSFlexGrid &grid)
{
    if (view.Headings() == grid.Headings()) {
        for (int col = 0; col < view.Cols(); ++col) {
            view.PutColWidth(col, grid.ColWidth(col));
            view.PutColFormat(col, grid.ColFormat(col));
        }
        view.ArrangeColumns(grid.ColumnOrder(), grid.FrozenCols());
        return;
    }
    const int columns = view.Cols() - 1;
    const auto share = ColumnLayout::shareOfWidth(Twips::fromPixels(view.width(), view), columns);
    if (!share || *share < FlexGrid::defaultColWidth)
        return;
    for (int col = 1; col <= columns; ++col)
        view.PutColWidth(col, static_cast<int>(*share));
}

void showMore(VSFlexGrid &view, const VSFlexGrid &grid,
              const std::shared_ptr<const ADODB::Recordset> &records)
{
    const bool isEndInView = view.RowIsVisible(view.Rows() - 1);
    view.setGeometry(grid.geometry()); // the window may have been resized
    view.ShowMore(cellsOf(records));
    if (isEndInView)
        view.repaint();
}

} // namespace

LoadPreview::LoadPreview(VSFlexGrid &grid) : m_grid(&grid) {}

LoadPreview::~LoadPreview()
{
    delete m_view;
}

QAbstractScrollArea *LoadPreview::view() const
{
    return m_view;
}

void LoadPreview::update(const ADODB::Recordset &opening)
{
    if (!m_sinceFirst.isValid())
        m_sinceFirst.start();
    VSFlexGrid *const grid = m_grid;
    VSFlexGrid *const view = m_view;
    const bool isDue = view ? m_sinceShown.hasExpired(growthInterval) : m_sinceFirst.hasExpired(patience);
    if (!isDue || !grid || !grid->isVisible())
        return;
    const auto records = ADODB::recordsSoFar(opening);
    if (!records)
        return;
    if (view)
        showMore(*view, *grid, records);
    else
        show(*grid, records);
    m_sinceShown.start();
}

void LoadPreview::show(const VSFlexGrid &grid, const std::shared_ptr<const ADODB::Recordset> &records)
{
    auto *const view = new VSFlexGrid(grid.parentWidget());
    m_view = view;
    view->setObjectName(QStringLiteral("vsfgOpening"));
    view->setFocusPolicy(Qt::NoFocus); // the focus must not move
    view->setFont(grid.font());
    view->setPalette(grid.palette());
    view->setStyleSheet(grid.styleSheet());
    view->setFrameStyle(grid.frameStyle());
    view->setAccessibleName(grid.accessibleName());
    view->setGeometry(grid.geometry());
    view->Show(cellsOf(records));
    layOutColumns(*view, grid);
    view->show();
    view->raise();
    view->horizontalScrollBar()->setValue(grid.horizontalScrollBar()->value());
    m_placeAtFirst = placeOf(*view);
    view->repaint();
}

std::optional<QPoint> LoadPreview::scrolledTo() const
{
    const VSFlexGrid *const view = m_view;
    return view && placeOf(*view) != m_placeAtFirst ? std::optional(placeOf(*view)) : std::nullopt;
}

} // namespace KOVAVSFDataGridLib
