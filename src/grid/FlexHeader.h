#pragma once

#include <QtWidgets/QHeaderView>

namespace KOVAVSFDataGridLib {

class FlexGrid;

// The headings of a flex grid. What a press or a click of theirs leads to is told when the header has
// finished with the event, because whoever is told may delete the grid.
class FlexHeader final : public QHeaderView
{
    Q_OBJECT

public:
    FlexHeader(Qt::Orientation orientation, FlexGrid &grid);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    FlexGrid &m_grid;
};

} // namespace KOVAVSFDataGridLib
