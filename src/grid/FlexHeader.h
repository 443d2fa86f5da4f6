#pragma once

#include "grid/HeadingMark.h"

#include <QtWidgets/QHeaderView>

namespace KOVAVSFDataGridLib {

class FlexGrid;

// The headings of a flex grid. Signals for presses and clicks are sent after the header has processed the
// event, because a listener may delete the grid. A heading that does not fit is elided and shown in full by
// a tool tip; the headings of an empty grid are one plain area.
//
// A heading shows its column's marks at its right end, and on hover an arrow for its column's menu. The
// headings of frozen columns don't scroll.
class FlexHeader final : public QHeaderView
{
    Q_OBJECT

public:
    FlexHeader(Qt::Orientation orientation, FlexGrid &grid);

    // Where a heading is painted, and the section at a position (-1 if none), including frozen ones.
    QRect headingRect(int logicalIndex) const;
    int headingAt(const QPoint &position) const;
    // The pixels at which a heading's text, the mark of a sort and the arrow of its menu are seen together.
    int fittingWidth(int logicalIndex) const;
    // Follows only the current cell of the grid's. Qt would ask for each heading at each painting whether all
    // of its cells are selected, and to find out visit every row.
    void setSelectionModel(QItemSelectionModel *selectionModel) override;

protected:
    QSize sectionSizeFromContents(int logicalIndex) const override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const override;
    void paintEvent(QPaintEvent *event) override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    QRect sectionRect(int logicalIndex) const;
    void showHeadingTip(const QPoint &position, const QPoint &place);
    HeadingMark markOf(int logicalIndex) const;
    int margin() const;
    int arrowWidth() const;
    QRect arrowRect(int logicalIndex) const;
    bool hasArrow(int logicalIndex) const;
    int arrowAt(const QPoint &position) const;
    void setHovered(int logicalIndex);
    int shiftAt(const QPoint &position) const;
    int frozenEdgeAt(const QPoint &position) const;

    FlexGrid &m_grid;
    QMetaObject::Connection m_current;
    int m_hovered = -1;
    int m_pressedArrow = -1;
    int m_resized = -1; // the frozen section being resized
    int m_resizeStart = 0;
    int m_resizeSize = 0;
    int m_pressShift = 0; // offset from the visible position of a frozen heading to the header's own
};

} // namespace KOVAVSFDataGridLib
