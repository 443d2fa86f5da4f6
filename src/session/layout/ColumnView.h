#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace KOVAVSFDataGridLib {

// The columns of the grid that shows a session, one per field of the result. Columns are numbered from 1 to
// Cols() - 1; column 0 contains the row headings. Widths are in twips; 0 hides a column.
class ColumnView
{
public:
    static constexpr int useDefaultWidth = -1;  // the width of a column that was never given one
    static constexpr int defaultColWidth = 960; // twips; the default width

    ColumnView() = default;
    virtual ~ColumnView() = default;
    Q_DISABLE_COPY_MOVE(ColumnView)

    virtual int Cols() const { return 1; }
    // The texts above the columns 1 to Cols() - 1.
    virtual QStringList Headings() const { return {}; }
    virtual int ColWidth(int /*col*/) const { return useDefaultWidth; }
    virtual void PutColWidth(int /*col*/, int /*twips*/) {}
    // Resets all columns to the default width.
    virtual void ResetColWidths() {}
    // The total width of all columns and the row headings, and the width of the whole grid.
    virtual int widthOfColumns() const { return 0; }
    virtual int width() const { return 0; }
    // The width at which a column's heading and texts are readable.
    virtual int fittingWidth(int /*col*/) const { return defaultColWidth; }

    // How the texts of a heading's column, which need not be there now, are shown, as ADODB::DisplayFormat
    // writes it.
    virtual QString columnFormat(const QString & /*heading*/) const { return {}; }
    virtual void putColumnFormat(const QString & /*heading*/, const QString & /*format*/) {}

    // Whether Null is shown as such.
    virtual bool showsNulls() const { return false; }
    virtual void putShowsNulls(bool /*on*/) {}

    // A column's position, from 0 at the left; hidden ones have a position too.
    virtual int placeOf(int col) const { return col - 1; }
    // The headings from left to right, and how many of the first columns are frozen.
    virtual QStringList columnOrder() const { return Headings(); }
    // The same with further fields where their columns would be shown.
    virtual QStringList orderWith(const QStringList & /*fields*/) const { return Headings(); }
    virtual int frozenColumns() const { return 0; }
    // Arranges the columns in this order; those not listed stay after the one before them.
    virtual void arrangeColumns(const QStringList & /*order*/, int /*frozen*/) {}
};

} // namespace KOVAVSFDataGridLib
