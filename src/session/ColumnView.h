#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// The columns of the grid that shows a session, one for each field of the result. Columns count from 1 to
// Cols() - 1; column 0 holds the row headings. Widths are twips; 0 hides a column.
class ColumnView
{
public:
    static constexpr int UseDefaultWidth = -1;  // the width of a column that never got one
    static constexpr int DefaultColWidth = 960; // twips; what that comes to

    virtual int Cols() const = 0;
    // The texts above the columns 1 to Cols() - 1.
    virtual QStringList Headings() const = 0;
    virtual int ColWidth(int col) const = 0;
    virtual void PutColWidth(int col, int twips) = 0;
    // All columns get the default width.
    virtual void ResetColWidths() = 0;
    // The widths of all columns and the row headings together, and the width of the whole grid.
    virtual int widthOfColumns() const = 0;
    virtual int width() const = 0;

protected:
    ~ColumnView() = default;
};

} // namespace KOVAVSFDataGridLib
