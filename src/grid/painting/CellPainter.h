#pragma once

#include "grid/painting/GlyphTable.h"

#include <QtCore/QRect>
#include <QtWidgets/QStyleOption>

#include <memory>

class QTableView;

namespace KOVAVSFDataGridLib {

class FlexGridModel;

// Paints the cells of a flex grid as a table view does, but walks each row once, asks the style only about
// cells that are not plain (selected, current, under the mouse), and draws all texts of a frame together. The
// texts of all cells of a row are on one line, whichever fonts they need.
class CellPainter
{
public:
    CellPainter(QTableView &view, const FlexGridModel &model);
    ~CellPainter();
    Q_DISABLE_COPY_MOVE(CellPainter)

    // Whether nothing in the rectangle is the host's own: no delegate, style sheet, model, hidden row or
    // span. A table view can draw those, this can't.
    bool canPaint(const QRect &dirty) const;
    // Paints what is dirty. `option` is the view's and has no cell yet; `offset` is the view's while it
    // scrolls.
    void paint(const QStyleOptionViewItem &option, const QRegion &dirty, const QPoint &offset,
               const QModelIndex &hover);
    // The same for a part of the viewport in which the columns are `shift` pixels to the right of where the
    // view has them.
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

    void paint(Frame &frame, const QRegion &dirty);
    void prepareGlyphs(const QFont &font);
    bool hasDelegateOrSpan(const QRect &dirty) const;

    QTableView &m_view;
    const FlexGridModel &m_model;
    std::unique_ptr<GlyphTable> m_glyphs; // of the font that was painted last
};

} // namespace KOVAVSFDataGridLib
