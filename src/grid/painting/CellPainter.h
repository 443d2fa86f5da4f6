#pragma once

#include "grid/painting/GlyphTable.h"

#include <QtCore/QRect>
#include <QtWidgets/QStyleOption>

#include <memory>

class QTableView;

namespace KOVAVSFDataGridLib {

class FlexGridModel;

// Paints the cells of a flex grid like a table view, but visits each row once, calls the style only for cells
// that are not plain (selected, current, hovered), and paints all texts of a row together. All texts of a
// row have the same baseline, whatever fonts they use.
class CellPainter
{
public:
    CellPainter(QTableView &view, const FlexGridModel &model);
    ~CellPainter();
    Q_DISABLE_COPY_MOVE(CellPainter)

    // Whether nothing in the rectangle is customized by the host: no delegate, style sheet, model, hidden row
    // or span. A table view can paint those, but this can't.
    bool canPaint(const QRect &dirty) const;
    // Paints the dirty region, on `paper` unless that is empty. `option` is the view's, without a cell;
    // `offset` is the view's offset while it scrolls.
    void paint(const QStyleOptionViewItem &option, const QRegion &dirty, const QPoint &offset,
               const QModelIndex &hover, const QBrush &paper);
    // The same for a part of the viewport in which the columns are `shift` pixels to the right of their
    // positions in the view.
    void paintShifted(const QStyleOptionViewItem &option, const QRegion &dirty, const QRect &part, int shift,
                      const QModelIndex &hover);

private:
    struct Column
    {
        int section = 0;
        int left = 0;
        int width = 0;
        bool isNumeric = false;
    };
    class Frame;

    void prepareGlyphs(const QFont &font);

    QTableView &m_view;
    const FlexGridModel &m_model;
    std::unique_ptr<GlyphTable> m_glyphs; // for the font that was used last
};

} // namespace KOVAVSFDataGridLib
