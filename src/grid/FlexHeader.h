#pragma once

#include <QtWidgets/QHeaderView>

namespace KOVAVSFDataGridLib {

class FlexGrid;

// The headings of a flex grid. What a press or a click of theirs leads to is reported when the header has
// finished with the event, because a listener may delete the grid. A heading that is cut ends in an
// ellipsis and is shown in full by a tool tip; those of an empty grid are one plain surface.
class FlexHeader final : public QHeaderView
{
    Q_OBJECT

public:
    FlexHeader(Qt::Orientation orientation, FlexGrid &grid);

protected:
    QSize sectionSizeFromContents(int logicalIndex) const override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;
    bool viewportEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRect sectionRect(int logicalIndex) const;
    void showHeadingTip(const QPoint &position, const QPoint &place);

    FlexGrid &m_grid;
};

} // namespace KOVAVSFDataGridLib
