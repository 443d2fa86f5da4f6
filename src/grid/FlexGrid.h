#pragma once

#include "grid/HeadingMark.h"
#include "grid/cells/CellSource.h"
#include "grid/painting/TextMarks.h"

#include "ado/values/DisplayFormat.h"

#include <QtWidgets/QTableView>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace KOVAVSFDataGridLib {

class CellPainter;
class FlexGridModel;

// A table view with the terms of a flex grid: rows and columns are numbered from 0, row 0 (and in a
// VSFlexGrid column 0) contains the headings, and widths are in twips.
//
// A row or column outside the grid is an error: reading and writing throw std::out_of_range and
// change nothing.
class FlexGrid : public QTableView
{
    Q_OBJECT

public:
    static constexpr int defaultColWidth = 960; // twips
    static constexpr int useDefaultWidth = -1;  // as a column's width: the default

    ~FlexGrid() override;

    // The numbers of rows and columns, including headings; at least 1. Writing them clears the grid's cells.
    int Rows() const;
    void PutRows(int rows);
    int Cols() const;
    void PutCols(int cols);
    // The number of rows, without empty ones at the end of the cell source.
    int UsedRows() const;
    // Whether no cell and no heading has a text. Such a grid is painted as one plain area, however many rows
    // and columns it has, and so are its unused rows.
    bool isBlank() const;

    // The current cell; 0 if a heading (or nothing) is current. Writing does not scroll.
    int Row() const { return m_row; }
    void PutRow(int row);
    int Col() const { return m_col; }
    void PutCol(int col);
    // The column where the user sees the current cell: Col, or the nearest visible column if that is hidden.
    int ShownCol() const;
    // The opposite corner of the selection that contains the current cell; Row and Col for a single cell.
    int RowSel() const;
    int ColSel() const;
    // The first visible row; 0 in a grid without data rows. Writing scrolls it to the top.
    int TopRow() const;
    void PutTopRow(int row);
    // Whether any part of the row is visible. Row 0, the heading, always is.
    bool RowIsVisible(int row) const;

    QString TextMatrix(int row, int col) const;
    void PutTextMatrix(int row, int col, const QString &text);
    // The current cell's text.
    QString Text() const;
    // The texts of row 0, without that of the row headings.
    QStringList Headings() const;

    // Exactly the twips last set, whatever the screen's resolution; useDefaultWidth if never set, 0 for a
    // hidden column.
    int ColWidth(int col) const;
    void PutColWidth(int col, int twips);
    // The effective width of a column: ColWidth, with 960 instead of -1 (by default the row headings are as
    // wide as their numbers).
    int ColWidthInUse(int col) const;
    // Resets all columns to the default width.
    void ResetColWidths();

    // A width in twips at which the column's heading and texts are readable, measured for the visible rows
    // and some hundred others. At most a certain share of the grid's width.
    int FittingColWidth(int col) const;

    // The headings from left to right, including hidden ones. Column numbers are those of the fields,
    // wherever a column is shown.
    QStringList ColumnOrder() const;
    // The same with further columns where they would be shown.
    QStringList OrderWith(const QStringList &names) const;
    // How many of the first columns are frozen: they don't scroll.
    int FrozenCols() const { return m_frozenCols; }
    // Puts columns into this order; those that it does not name stay after the one before them. An empty
    // order is that of the fields. The first `frozen` columns stay in view. Both are kept, by the headings,
    // when other cells are shown; so are the places of columns that are not there then.
    void ArrangeColumns(const QStringList &order, int frozen);

    // The display format of a column; TextMatrix and copies use the original texts. Kept by heading when
    // other cells are shown.
    ADODB::DisplayFormat ColFormat(int col) const;
    void PutColFormat(int col, const ADODB::DisplayFormat &format);
    // The same by the heading, whether its column is there now or not.
    ADODB::DisplayFormat HeadingFormat(const QString &heading) const;
    void PutHeadingFormat(const QString &heading, const ADODB::DisplayFormat &format);

    // Whether Null is shown as a pale NULL, which is not part of the cell's text.
    bool ShowsNulls() const;
    void PutShowsNulls(bool on);

    // Marks parts of the shown texts; null marks nothing.
    void PutTextMarker(TextMarker marker);
    // Whether a cell's text is truncated or only its first line is shown.
    bool IsTextCut(int row, int col) const;
    // What headings show beside their texts, by column.
    void PutHeadingMarks(const std::vector<HeadingMark> &marks);
    // Whether a heading shows the arrow of its column menu on hover.
    bool HasColumnMenus() const { return m_hasColumnMenus; }
    void PutHasColumnMenus(bool on);
    // Where to open the menu of a column, in screen coordinates.
    QPoint ColumnMenuPlace(int col) const;
    // The column at a position in the headings' viewport; 0 if there is none.
    int ColumnOfHeadingAt(const QPoint &position) const;

    bool Redraw() const { return updatesEnabled(); }
    void PutRedraw(bool on) { setUpdatesEnabled(on); }
    // Clears all cells and headings; keeps the number of rows and columns.
    void Clear();
    void Refresh();
    QColor BackColor() const;
    void PutBackColor(const QColor &colour);

    // Runs `act`, in which Qt's own code handles an event or makes a cell current, and sends the resulting
    // signals afterwards, because a listener may delete the grid.
    void notifyAfter(const std::function<void()> &act);

    QModelIndex indexAt(const QPoint &position) const override;
    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    // The width in pixels of the area at the left in which frozen columns cover others; 0 if nothing is
    // scrolled under them.
    int frozenWidth() const;

    // Shows the cells of `source` (not null) instead of the grid's own. Existing columns keep their widths;
    // no cell is current afterwards.
    void Show(std::unique_ptr<CellSource> source);
    // Shows the cells of `source` (not null), which must be the current ones with more rows below. Nothing
    // else changes.
    void ShowMore(std::unique_ptr<CellSource> source);

Q_SIGNALS:
    // Another data row is current, by mouse, key or program. Like HeadingClicked, a listener may delete the
    // grid: the mouse or key event has been completely processed by then.
    void CurrentRowChanged(int row);
    // A column's heading was clicked.
    void HeadingClicked(int col);
    // The user changed a column's width.
    void ColWidthChanged(int col, int twips);
    // The user moved a column, or a program arranged the columns.
    void ColumnsArranged();
    // The user opens a column's menu; `place` is in screen coordinates. The event has been processed by then.
    void ColumnMenuWanted(int col, const QPoint &place);
    // The user double-clicked the right edge of a column's heading.
    void FittingWidthWanted(int col);

protected:
    FlexGrid(int fixedCols, QWidget *parent);

    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void checkRow(int row) const;
    void checkCol(int col) const;
    void makeCurrent(int row, int col);
    int section(int col) const;
    bool isStretched(int section) const;
    int nearestShownSection(int section) const;
    void applyLines();
    void applyRowHeight();
    void applyWidths();
    void applyWidth(int col);
    void onSectionResized(int section, int size);
    void applyArrangement();
    void keepOrder();
    void onSectionMoved();
    bool isFrozen(int section) const;
    void paintFrozenCells(const QStyleOptionViewItem &option, const QRegion &dirty);
    void paintByDelegate(const QStyleOptionViewItem &option, const QRect &area);

    FlexGridModel *m_model;
    const std::unique_ptr<CellPainter> m_painter;
    QPersistentModelIndex m_hover;
    std::vector<int> m_widths; // twips by grid column
    int m_row = 0;
    int m_col = 0;
    QStringList m_order;       // the last arrangement; empty for the order of the fields
    QStringList m_frozenNames; // the headings of the frozen columns
    int m_frozenCols = 0;
    bool m_hasColumnMenus = false;
    bool m_isArranging = false;
    bool m_isApplyingWidths = false;
    bool m_isActing = false;  // inside notifyAfter()
    bool m_hasNewRow = false; // must still be signalled, like the next one
    std::optional<int> m_clickedCol;
};

// The main grid: row 0 and column 0 are headings.
class VSFlexGrid final : public FlexGrid
{
    Q_OBJECT

public:
    explicit VSFlexGrid(QWidget *parent = nullptr) : FlexGrid(1, parent) {}
};

// The list of one record: two columns, both data; row 0 is the heading.
class MSFlexGrid final : public FlexGrid
{
    Q_OBJECT

public:
    explicit MSFlexGrid(QWidget *parent = nullptr);
};

} // namespace KOVAVSFDataGridLib
