#pragma once

#include <QtCore/QString>
#include <QtCore/Qt>

namespace KOVAVSFDataGridLib {

// Where a flex grid gets its cells from. Rows and columns count from 0 and include the headings: row 0
// holds the column headings and, in a grid with a fixed column, column 0 the row headings.
//
// Reading a cell has no side effect. `row` is in 0 ... rows() - 1 and `col` in 0 ... cols() - 1.
class CellSource
{
public:
    CellSource() = default;
    virtual ~CellSource() = default;
    Q_DISABLE_COPY_MOVE(CellSource)

    virtual int rows() const = 0;
    virtual int cols() const = 0;
    // The rows up to the last one that can hold something: 1 ... rows(). Those below are empty; keys and the
    // scroll bar of a view do not lead there.
    virtual int usedRows() const { return rows(); }
    // True while no cell and no heading has a text.
    virtual bool isBlank() const { return false; }
    virtual QString text(int row, int col) const = 0;
    // The same for what shows only the first `length` characters: of a longer text the rest may be missing.
    virtual QString beginning(int row, int col, qsizetype /*length*/) const { return text(row, col); }
    // Whether a cell has no value, not even an empty text.
    virtual bool isNull(int /*row*/, int /*col*/) const { return false; }
    // What a screen reader says of a cell. A cell without a value is not one with an empty text.
    virtual QString spoken(int row, int col) const;
    // Whether the column holds numbers, which stand to the right.
    virtual bool isNumeric(int col) const = 0;
    // The decimals that the numbers of a column are shown with at least, and those of one cell; 0 where they
    // are shown as they are.
    virtual int decimalsOfColumn(int /*col*/) const { return 0; }
    virtual int decimals(int /*row*/, int /*col*/) const { return 0; }
    // False when the source can't be written.
    virtual bool setText(int row, int col, const QString &text) = 0;
};

} // namespace KOVAVSFDataGridLib
