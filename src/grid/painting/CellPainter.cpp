#include "grid/painting/CellPainter.h"

#include "grid/cells/FlexGridModel.h"
#include "grid/painting/CellDelegate.h"
#include "grid/painting/CellSpans.h"
#include "grid/painting/DelegatesAndSpans.h"
#include "grid/painting/GlyphBatch.h"

#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

// Styles that paint the text of a special cell like that of a plain one, in the palette's colours. Others
// paint special cells in their own way, so they must paint all of it.
bool drawsTextPlainly(const QStyle &style)
{
    const QByteArrayView name = style.metaObject()->className();
    return name == "QFusionStyle" || name == "QWindowsStyle";
}

void fill(QPainter &painter, const QRegion &region, const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush)
        return;
    for (const QRect &area : region)
        painter.fillRect(area, brush);
}

QPalette::ColorGroup colourGroup(const QStyleOption &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Normal : QPalette::Inactive;
}

} // namespace

// One paint event.
class CellPainter::Frame
{
public:
    Frame(QTableView &view, const FlexGridModel &model, GlyphTable &glyphs,
          const QStyleOptionViewItem &option, const QPoint &offset, const QModelIndex &hover,
          const QRect &part, int shift);

    void paint(const QRegion &dirty, const QBrush &paper);

private:
    using Span = CellSpans::Span;

    void paintStrip(const QRegion &dirty, const QBrush &paper);
    void paintRows(const QRect &dirty);
    void paintCells(const QRect &dirty);
    void paintLines(const QRect &dirty);
    void enterRow(int visualRow);
    void paintRow(int visualRow, Span columns);
    void paintSelection(int row, std::size_t begin, Span columns);
    void paintCell(int row, const Column &column, const QString &text, bool isNull);
    void placeText(const QString &text, const Column &column, bool isSelected, bool isNull);
    bool isSelected(int row, int section) const;
    // Drawn alone: the current cell, and the one under the mouse.
    bool isSpecial(int row, int section) const;

    QTableView &m_view;
    const FlexGridModel &m_model;
    GlyphTable &m_glyphs;
    QStyleOptionViewItem m_option; // for the row being painted
    QStyleOptionViewItem m_cell;   // for a cell in it that is not plain
    const QPoint m_offset;
    const CellSpans m_spans;
    const QModelIndex m_hover;
    const QModelIndex m_current; // the cell with the focus frame
    QPainter m_painter;
    GlyphBatch m_texts;       // of the strip being painted
    GlyphBatch m_textsBefore; // of the one before
    GlyphLine m_line;
    std::vector<Column> m_columns; // visible, starting with m_firstColumn
    int m_firstColumn = 0;
    int m_firstRow = 0;
    int m_lastRow = -1;
    std::vector<bool> m_isPainted; // visible cells, row by row
    QItemSelection m_selection;
    const int m_gridSize;
    const int m_margin;
    const bool m_isPlainStyle;
};

CellPainter::Frame::Frame(QTableView &view, const FlexGridModel &model, GlyphTable &glyphs,
                          const QStyleOptionViewItem &option, const QPoint &offset, const QModelIndex &hover,
                          const QRect &part, int shift)
    : m_view(view),
      m_model(model),
      m_glyphs(glyphs),
      m_option(option),
      m_cell(option),
      m_offset(offset),
      m_spans(view, shift),
      m_hover(hover),
      m_current(view.hasFocus() || view.viewport()->hasFocus() ? view.currentIndex() : QModelIndex()),
      m_painter(view.viewport()),
      m_selection(view.selectionModel()->selection()),
      m_gridSize(view.showGrid() ? 1 : 0),
      m_margin(view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, &view) + 1),
      m_isPlainStyle(drawsTextPlainly(*view.style()))
{
    m_cell.palette.setCurrentColorGroup(option.state & QStyle::State_Enabled ? QPalette::Normal
                                                                             : QPalette::Disabled);
    const QRect all = part.translated(offset);
    if (shift != 0)
        m_painter.setClipRect(part);
    const Span rows = m_spans.rowsIn(all);
    const Span columns = m_spans.columnsIn(all);
    m_firstRow = rows.first;
    m_lastRow = rows.last;
    m_firstColumn = columns.first;
    const QHeaderView &header = *view.horizontalHeader();
    for (int visual = columns.first; visual <= columns.last; ++visual) {
        const int section = header.logicalIndex(visual);
        const int left = view.columnViewportPosition(section) + offset.x() + shift +
                         (m_gridSize > 0 && view.isRightToLeft() ? 1 : 0);
        const bool isNumeric = model.source().isNumeric(section + model.fixedCols());
        m_columns.push_back({section, left, header.sectionSize(section) - m_gridSize, isNumeric});
    }
    if (!m_columns.empty() && m_lastRow >= m_firstRow)
        m_isPainted.resize(m_columns.size() * static_cast<std::size_t>(m_lastRow - m_firstRow + 1));
}

// Strip by strip, because a text is blended with the pixels below it: they are still in the processor's cache
// then. A text that is higher than its row also covers the next one.
void CellPainter::Frame::paint(const QRegion &dirty, const QBrush &paper)
{
    const bool hasCells = !m_columns.empty() && m_lastRow >= m_firstRow;
    QRegion rest = dirty;
    for (int row = m_firstRow; hasCells && row <= m_lastRow;) {
        const Span strip = m_spans.strip({row, m_lastRow}, m_glyphs.height());
        const QRect area = m_spans.rectOf(strip).translated(0, m_offset.y());
        row = strip.last + 1;
        paintStrip(dirty & area, paper);
        rest -= area;
        m_textsBefore.draw(m_painter, m_glyphs);
        std::swap(m_texts, m_textsBefore);
    }
    fill(m_painter, rest, paper);
    m_textsBefore.draw(m_painter, m_glyphs);
}

// Each step for all rectangles before the next: a cell that intersects several is painted with the first one.
void CellPainter::Frame::paintStrip(const QRegion &dirty, const QBrush &paper)
{
    fill(m_painter, dirty, paper);
    for (const QRect &area : dirty)
        paintRows(area);
    for (const QRect &area : dirty)
        paintCells(area);
    for (const QRect &area : dirty)
        paintLines(area);
}

void CellPainter::Frame::enterRow(int visualRow)
{
    const int row = m_view.verticalHeader()->logicalIndex(visualRow);
    m_option.features.setFlag(QStyleOptionViewItem::Alternate,
                              m_view.alternatingRowColors() && visualRow % 2 != 0);
    m_option.rect.setTop(m_view.rowViewportPosition(row) + m_offset.y());
    m_option.rect.setHeight(m_view.rowHeight(row) - m_gridSize);
}

void CellPainter::Frame::paintRows(const QRect &dirty)
{
    const QRect area = m_spans.clipped(dirty);
    if (!area.isValid())
        return;
    const Span rows = m_spans.rowsIn(area);
    for (int visualRow = rows.first; visualRow <= rows.last; ++visualRow) {
        enterRow(visualRow);
        m_option.rect.setLeft(area.left());
        m_option.rect.setRight(area.right());
        m_view.style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &m_option, &m_painter, &m_view);
    }
}

void CellPainter::Frame::paintCells(const QRect &dirty)
{
    const QRect area = m_spans.clipped(dirty);
    if (!area.isValid())
        return;
    const Span rows = m_spans.rowsIn(area);
    const Span columns = m_spans.columnsIn(area);
    for (int visualRow = rows.first; visualRow <= rows.last; ++visualRow)
        paintRow(visualRow, columns);
}

void CellPainter::Frame::paintRow(int visualRow, Span columns)
{
    enterRow(visualRow);
    const int row = m_view.verticalHeader()->logicalIndex(visualRow);
    const std::size_t begin = static_cast<std::size_t>(visualRow - m_firstRow) * m_columns.size();
    if (m_isPlainStyle && !m_selection.isEmpty())
        paintSelection(row, begin, columns);
    for (int visual = columns.first; visual <= columns.last; ++visual) {
        const auto place = static_cast<std::size_t>(visual - m_firstColumn);
        const Column &column = m_columns[place];
        if (column.width <= 0 || m_isPainted[begin + place])
            continue;
        m_isPainted[begin + place] = true;
        const int col = column.section + m_model.fixedCols();
        const QString text = m_model.shownText(row + 1, col);
        const bool isNull = text.isEmpty() && m_model.isShownNull(row + 1, col);
        paintCell(row, column, isNull ? CellDelegate::nullText() : text, isNull);
    }
}

// Selected cells side by side get one panel. The lines between them are drawn over it.
void CellPainter::Frame::paintSelection(int row, std::size_t begin, Span columns)
{
    QRect panel;
    const auto paintPanel = [&] {
        if (panel.isEmpty())
            return;
        m_cell.rect = panel;
        m_cell.features = m_option.features;
        m_cell.state.setFlag(QStyle::State_Selected, true);
        m_cell.state.setFlag(QStyle::State_MouseOver, false);
        m_cell.state.setFlag(QStyle::State_HasFocus, false);
        m_view.style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &m_cell, &m_painter, &m_view);
        panel = QRect();
    };
    for (int visual = columns.first; visual <= columns.last; ++visual) {
        const auto place = static_cast<std::size_t>(visual - m_firstColumn);
        const Column &column = m_columns[place];
        if (column.width <= 0)
            continue;
        if (m_isPainted[begin + place] || !isSelected(row, column.section) || isSpecial(row, column.section))
            paintPanel();
        else
            panel |= QRect(column.left, m_option.rect.top(), column.width, m_option.rect.height());
    }
    paintPanel();
}

void CellPainter::Frame::paintCell(int row, const Column &column, const QString &text, bool isNull)
{
    const auto isThis = [&](const QModelIndex &index) {
        return index.row() == row && index.column() == column.section;
    };
    const bool selected = isSelected(row, column.section);
    if (isSpecial(row, column.section) || (selected && !m_isPlainStyle)) {
        m_cell.rect = QRect(column.left, m_option.rect.top(), column.width, m_option.rect.height());
        m_cell.features = m_option.features;
        m_cell.state.setFlag(QStyle::State_Selected, selected);
        m_cell.state.setFlag(QStyle::State_MouseOver, isThis(m_hover));
        m_cell.state.setFlag(QStyle::State_HasFocus, isThis(m_current));
        m_cell.index = m_model.index(row, column.section);
        if (!m_isPlainStyle) {
            m_view.style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &m_cell, &m_painter, &m_view);
            m_view.itemDelegate()->paint(&m_painter, m_cell, m_cell.index);
            return;
        }
        // The style's item without a text; it is more than a panel only if it has the focus.
        if (isThis(m_current))
            m_view.style()->drawControl(QStyle::CE_ItemViewItem, &m_cell, &m_painter, &m_view);
        else
            m_view.style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &m_cell, &m_painter, &m_view);
    }
    if (!text.isEmpty())
        placeText(text, column, selected, isNull);
}

void CellPainter::Frame::placeText(const QString &text, const Column &column, bool isSelected, bool isNull)
{
    const QRect &row = m_option.rect;
    const qreal room = column.width - 2 * m_margin;
    const QString shown = CellDelegate::shownText(text);
    m_glyphs.layOut(shown, room, m_option.direction, m_line);
    // Not even the ellipsis fits.
    if (m_line.width > column.width)
        return;
    const bool isAtRight = column.isNumeric != (m_option.direction == Qt::RightToLeft);
    const qreal left = column.left + m_margin + (isAtRight ? room - m_line.width : 0);
    const int top = row.top() + row.height() / 2 - m_glyphs.height() / 2;
    if (m_model.textMarker() && !isNull) {
        const PlacedText placed{shown, QRectF(left, row.top(), m_line.width, row.height()), m_option.font,
                                isSelected};
        paintTextMarks(m_painter, m_option.palette, placed, column.section + m_model.fixedCols(),
                       m_model.textMarker());
    }
    const QPalette::ColorRole role = isSelected ? QPalette::HighlightedText : QPalette::Text;
    const QColor colour = m_option.palette.color(colourGroup(m_option), role);
    m_texts.add(m_line, {left, top + m_glyphs.ascent()}, isNull ? CellDelegate::pale(colour) : colour);
}

bool CellPainter::Frame::isSpecial(int row, int section) const
{
    return (m_hover.row() == row && m_hover.column() == section) ||
           (m_current.row() == row && m_current.column() == section);
}

bool CellPainter::Frame::isSelected(int row, int section) const
{
    return std::ranges::any_of(m_selection, [&](const QItemSelectionRange &range) {
        return row >= range.top() && row <= range.bottom() && section >= range.left() &&
               section <= range.right();
    });
}

void CellPainter::Frame::paintLines(const QRect &dirty)
{
    const QRect area = m_spans.clipped(dirty);
    if (!m_view.showGrid() || !area.isValid())
        return;
    const int hint = m_view.style()->styleHint(QStyle::SH_Table_GridLineColor, &m_option, &m_view);
    const QColor colour = QColor::fromRgba(static_cast<QRgb>(hint));
    const auto paintLine = [&](const QRect &line, int start) {
        if (m_view.gridStyle() == Qt::SolidLine)
            return m_painter.fillRect(line, colour);
        QPen pen(colour, m_gridSize, m_view.gridStyle());
        pen.setDashOffset(start); // so that the dashes of neighbouring areas go on
        m_painter.setPen(pen);
        m_painter.drawLine(line.topLeft(), line.bottomRight());
    };
    const Span rows = m_spans.rowsIn(area);
    for (int visual = rows.first; visual <= rows.last; ++visual) {
        const int row = m_view.verticalHeader()->logicalIndex(visual);
        const int y = m_view.rowViewportPosition(row) + m_offset.y() + m_view.rowHeight(row) - m_gridSize;
        paintLine({area.left(), y, area.width(), m_gridSize}, area.left());
    }
    const Span columns = m_spans.columnsIn(area);
    for (int visual = columns.first; visual <= columns.last; ++visual) {
        const Column &column = m_columns[static_cast<std::size_t>(visual - m_firstColumn)];
        const int x = m_view.isRightToLeft() ? column.left - m_gridSize : column.left + column.width;
        if (column.width > 0)
            paintLine({x, area.top(), m_gridSize, area.height()}, area.top());
    }
}

CellPainter::CellPainter(QTableView &view, const FlexGridModel &model) : m_view(view), m_model(model) {}

CellPainter::~CellPainter() = default;

bool CellPainter::canPaint(const QRect &dirty) const
{
    return m_view.model() == &m_model && m_view.selectionModel() && !m_view.rootIndex().isValid() &&
           !m_view.verticalHeader()->sectionsHidden() && !m_view.style()->inherits("QStyleSheetStyle") &&
           qobject_cast<const CellDelegate *>(m_view.itemDelegate()) && !hasDelegateOrSpan(m_view, dirty);
}

void CellPainter::paint(const QStyleOptionViewItem &option, const QRegion &dirty, const QPoint &offset,
                        const QModelIndex &hover, const QBrush &paper)
{
    prepareGlyphs(option.font);
    Frame(m_view, m_model, *m_glyphs, option, offset, hover, m_view.viewport()->rect(), 0)
        .paint(dirty, paper);
}

void CellPainter::paintShifted(const QStyleOptionViewItem &option, const QRegion &dirty, const QRect &part,
                               int shift, const QModelIndex &hover)
{
    prepareGlyphs(option.font);
    Frame(m_view, m_model, *m_glyphs, option, {}, hover, part, shift)
        .paint(dirty & part, m_view.palette().brush(QPalette::Base));
}

void CellPainter::prepareGlyphs(const QFont &font)
{
    if (!m_glyphs || m_glyphs->font() != font)
        m_glyphs = std::make_unique<GlyphTable>(font);
}

} // namespace KOVAVSFDataGridLib
