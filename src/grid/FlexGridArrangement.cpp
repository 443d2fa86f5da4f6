#include "grid/FlexGrid.h"

#include "grid/ColumnOrder.h"
#include "grid/FlexHeader.h"
#include "grid/Twips.h"
#include "grid/cells/FlexGridModel.h"
#include "grid/painting/CellDelegate.h"

#include <QtCore/QScopedValueRollback>
#include <QtCore/QtMath>
#include <QtWidgets/QStyle>

#include <algorithm>

// The order of columns, the marks of their headings, and their fitting widths.
namespace KOVAVSFDataGridLib {

namespace {

constexpr int sampledRows = 200; // in total, besides the visible ones
constexpr int widestShare = 2;   // of the grid's width: a half
constexpr int leastFittingTwips = 300;

} // namespace

QStringList FlexGrid::ColumnOrder() const
{
    const QStringList headings = Headings();
    QStringList order;
    for (int visual = 0; visual < headings.size(); ++visual)
        order.append(headings.at(horizontalHeader()->logicalIndex(visual)));
    return order;
}

QStringList FlexGrid::OrderWith(const QStringList &names) const
{
    QStringList arranged;
    for (const int place : arrangedColumns(names, m_order))
        arranged.append(names.at(place));
    return mergedOrder(ColumnOrder(), arranged);
}

void FlexGrid::ArrangeColumns(const QStringList &order, int frozen)
{
    m_order = order.isEmpty() ? QStringList() : mergedOrder(order, m_order);
    m_frozenNames.clear();
    applyArrangement();
    m_frozenCols = std::clamp(frozen, 0, m_model->columnCount());
    if (m_frozenCols > 0)
        keepOrder();
    Refresh();
    Q_EMIT ColumnsArranged();
}

// Columns that are not there now keep their places among the others.
void FlexGrid::keepOrder()
{
    const QStringList shown = ColumnOrder();
    m_order = mergedOrder(shown, m_order);
    const qsizetype frozen = std::min<qsizetype>(m_frozenCols, shown.size());
    m_frozenNames = frozen > 0 ? m_order.first(m_order.indexOf(shown.at(frozen - 1)) + 1) : QStringList();
}

// Between two results there may be cells without headings.
void FlexGrid::applyArrangement()
{
    const QStringList headings = Headings();
    const std::vector<int> places = arrangedColumns(headings, m_order);
    const QScopedValueRollback<bool> arranging(m_isArranging, true);
    QHeaderView &header = *horizontalHeader();
    m_frozenCols = 0;
    for (int visual = 0; visual < static_cast<int>(places.size()); ++visual) {
        const int place = places[static_cast<std::size_t>(visual)];
        header.moveSection(header.visualIndex(place), visual);
        // One that came back between two frozen ones is frozen as well.
        if (m_frozenNames.contains(headings.at(place)))
            m_frozenCols = visual + 1;
    }
}

void FlexGrid::onSectionMoved()
{
    if (m_isArranging)
        return;
    keepOrder();
    Refresh();
    Q_EMIT ColumnsArranged();
}

int FlexGrid::FittingColWidth(int col) const
{
    checkCol(col);
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1) + 1;
    // Not the rounded widths: a text is cut if a fraction of a pixel is missing.
    const QFontMetricsF metrics(font(), this);
    int width = 0;
    const auto measure = [&](int row) {
        const QString text = CellDelegate::shownText(m_model->shownText(row, col));
        width = std::max(width, qCeil(metrics.horizontalAdvance(text)) + margin);
    };
    const int rows = UsedRows() - 1;
    const int first = std::max(TopRow(), 1);
    const int inView = viewport()->height() / std::max(verticalHeader()->defaultSectionSize(), 1) + 1;
    for (int row = first; row <= std::min(rows, first + inView); ++row)
        measure(row);
    const int step = std::max(rows / sampledRows, 1);
    for (int row = 1; row <= rows; row += step)
        measure(row);
    if (col >= m_model->fixedCols())
        width = std::max(width, static_cast<FlexHeader *>(horizontalHeader())->fittingWidth(section(col)));
    const int widest = std::max(viewport()->width() / widestShare, 1);
    return std::max(Twips::fromPixels(std::min(width, widest), *this), leastFittingTwips);
}

ADODB::DisplayFormat FlexGrid::ColFormat(int col) const
{
    checkCol(col);
    return HeadingFormat(m_model->source().text(0, col));
}

void FlexGrid::PutColFormat(int col, const ADODB::DisplayFormat &format)
{
    checkCol(col);
    PutHeadingFormat(m_model->source().text(0, col), format);
}

ADODB::DisplayFormat FlexGrid::HeadingFormat(const QString &heading) const
{
    return m_model->formats().value(heading);
}

void FlexGrid::PutHeadingFormat(const QString &heading, const ADODB::DisplayFormat &format)
{
    QHash<QString, ADODB::DisplayFormat> formats = m_model->formats();
    formats.insert(heading, format);
    if (format.isNone())
        formats.remove(heading);
    m_model->setFormats(formats);
}

bool FlexGrid::ShowsNulls() const
{
    return m_model->showsNulls();
}

void FlexGrid::PutShowsNulls(bool on)
{
    m_model->setShowsNulls(on);
    viewport()->update();
}

void FlexGrid::PutHeadingMarks(const std::vector<HeadingMark> &marks)
{
    m_model->setHeadingMarks(marks);
}

void FlexGrid::PutHasColumnMenus(bool on)
{
    m_hasColumnMenus = on;
    horizontalHeader()->setSectionsMovable(on);
    horizontalHeader()->viewport()->update();
}

QPoint FlexGrid::ColumnMenuPlace(int col) const
{
    checkCol(col);
    const auto &header = static_cast<const FlexHeader &>(*horizontalHeader());
    const QRect heading = header.headingRect(section(col)) & header.viewport()->rect();
    return header.viewport()->mapToGlobal(heading.bottomLeft());
}

int FlexGrid::ColumnOfHeadingAt(const QPoint &position) const
{
    const int found = static_cast<const FlexHeader &>(*horizontalHeader()).headingAt(position);
    return found < 0 ? 0 : found + m_model->fixedCols();
}

} // namespace KOVAVSFDataGridLib
