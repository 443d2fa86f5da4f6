#pragma once

#include <QtCore/QRect>

class QTableView;

namespace KOVAVSFDataGridLib {

// Which rows and columns of a view are in a rectangle of its viewport. Both are given as visual indexes.
class CellSpans
{
public:
    struct Span
    {
        int first;
        int last;
    };

    // `shift` is how many pixels the columns are to the right of their positions in the view.
    CellSpans(const QTableView &view, int shift) : m_view(view), m_shift(shift) {}

    // `last` is less than `first` if there is none.
    Span rowsIn(const QRect &area) const;
    Span columnsIn(const QRect &area) const;
    // Limited to where cells are.
    QRect clipped(QRect area) const;
    // The first ones of the rows that are at least as high together, or all.
    Span strip(Span rows, int height) const;
    // All of the viewport's width.
    QRect rectOf(Span rows) const;

private:
    const QTableView &m_view;
    const int m_shift;
};

} // namespace KOVAVSFDataGridLib
