#pragma once

#include "grid/HeadingMark.h"

#include <QtWidgets/QHeaderView>

namespace KOVAVSFDataGridLib {

class FlexGrid;

// The headings of a flex grid. What a press or a click of theirs leads to is reported when the header has
// finished with the event, because a listener may delete the grid. A heading that is cut ends in an
// ellipsis and is shown in full by a tool tip; those of an empty grid are one plain surface.
//
// A heading shows its column's marks at its right, and an arrow for its column's menu while the mouse is over
// it. Frozen columns' headings stay where they are.
class FlexHeader final : public QHeaderView
{
    Q_OBJECT

public:
    FlexHeader(Qt::Orientation orientation, FlexGrid &grid);

    // Where a heading is drawn, and which one a place belongs to (-1 for none): frozen ones count.
    QRect headingRect(int logicalIndex) const;
    int headingAt(const QPoint &position) const;
    // The pixels at which a heading's text, the mark of a sort and the arrow of its menu are seen together.
    int fittingWidth(int logicalIndex) const;

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
    int m_hovered = -1;
    int m_pressedArrow = -1;
    int m_resized = -1; // the frozen section whose edge is dragged
    int m_resizeStart = 0;
    int m_resizeSize = 0;
    int m_pressShift = 0; // from where a frozen heading is seen to where the header has it
};

} // namespace KOVAVSFDataGridLib
