#include "control/input/SelectionWatch.h"

#include "ado/Recordset.h"
#include "ado/values/DisplayFormat.h"
#include "control/parts/GridParts.h"
#include "control/parts/GridTexts.h"
#include "control/parts/lines/SummaryLine.h"
#include "grid/FlexGrid.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/records/LongWork.h"

#include <QtCore/QItemSelectionModel>

namespace KOVAVSFDataGridLib {

SelectionWatch::SelectionWatch(Session &session, GridParts &parts) : m_session(session), m_parts(parts)
{
    m_timer.setSingleShot(true);
    const VSFlexGrid &grid = *parts.vsfgDataGrid;
    connect(grid.selectionModel(), &QItemSelectionModel::selectionChanged, this, &SelectionWatch::begin);
    // If whole rows are selected, the current column is summarized.
    connect(grid.selectionModel(), &QItemSelectionModel::currentColumnChanged, this, &SelectionWatch::begin);
    connect(grid.model(), &QAbstractItemModel::modelReset, this, &SelectionWatch::begin);
    connect(&m_timer, &QTimer::timeout, this, &SelectionWatch::continueSumming);
}

void SelectionWatch::begin()
{
    m_summary.reset();
    m_recordset.reset();
    m_timer.start(0);
}

void SelectionWatch::continueSumming()
{
    if (!m_summary && !prepare())
        return clear();
    // Not kept alive between the steps, because its file must be closed when its owner closes it.
    const std::shared_ptr<ADODB::Recordset> recordset = m_recordset.lock();
    if (!recordset)
        return clear();
    m_summary->addNextCells();
    if (!m_summary->isDone()) {
        m_timer.start(0);
        return;
    }
    showSummary();
    m_summary.reset();
}

// Returns false unless several cells are selected.
bool SelectionWatch::prepare()
{
    if (!m_session.result().isOpen() || m_session.window().isSingleRecordShown())
        return false;
    MarkedCells marked = m_session.window().markedCells();
    m_rows = marked.lastRow - marked.firstRow + 1;
    const bool isWholeRows = marked.columns.size() > 1 && marked.columns == m_session.window().shownColumns();
    if (m_rows < 1 || (m_rows == 1 && (isWholeRows || marked.columns.size() < 2)))
        return false;
    m_column.clear();
    // A sum over different columns is meaningless.
    if (isWholeRows)
        marked.columns = {m_session.window().currentCol()};
    const ExportColumns columns = exportColumnsOf(m_session, marked.columns);
    if (columns.empty())
        return false;
    if (isWholeRows)
        m_column = columns.front().heading;
    m_recordset = m_session.result().recordset();
    m_summary = std::make_unique<SelectionSummary>(*m_session.result().recordset(), markedRecords(m_session),
                                                   columns);
    return true;
}

void SelectionWatch::showSummary()
{
    QList<SummaryLine::Item> items;
    if (m_rows > 1)
        items.append({GridTexts::SelectedRows, QString::number(m_rows)});
    const QString of = m_column.isEmpty() ? QString() : GridTexts::ColumnOfSummary.arg(m_column);
    items.append({of + GridTexts::CountOfCells, QString::number(m_summary->count())});
    if (m_summary->numbers() > 0) {
        const ADODB::DisplayFormat asInCells{.leastDecimals = m_summary->decimals()};
        // Zeros behind a rounded sum would look like exact decimals.
        const ADODB::DisplayFormat asComputed = m_summary->isSumExact() ? asInCells : ADODB::DisplayFormat{};
        const auto add = [&](const QString &caption, const QString &value,
                             const ADODB::DisplayFormat &format) {
            items.append({caption, value, format.applied(value)});
        };
        add(GridTexts::SumOfCells, m_summary->sum(), asComputed);
        add(GridTexts::AverageOfCells, m_summary->average(), asComputed);
        add(GridTexts::SmallestCell, m_summary->minimum(), asInCells);
        add(GridTexts::LargestCell, m_summary->maximum(), asInCells);
    } else if (m_summary->dates() > 0) {
        items.append({GridTexts::EarliestCell, m_summary->earliest()});
        items.append({GridTexts::LatestCell, m_summary->latest()});
    }
    m_parts.lblSummary->show(items);
    m_parts.layOutFoot();
    m_parts.describeGrid();
}

void SelectionWatch::clear()
{
    m_summary.reset();
    if (m_parts.lblSummary->isHidden())
        return;
    m_parts.lblSummary->show(QList<SummaryLine::Item>());
    m_parts.layOutFoot();
    m_parts.describeGrid();
}

} // namespace KOVAVSFDataGridLib
