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

// A table view that speaks the flex-grid vocabulary: rows and columns count from 0 with the headings
// as row 0 (and, in a VSFlexGrid, column 0), widths are twips.
//
// A row or column outside the grid is an error: reads and writes of it throw std::out_of_range and
// change nothing.
class FlexGrid : public QTableView
{
    Q_OBJECT

public:
    static constexpr int defaultColWidth = 960; // twips
    static constexpr int useDefaultWidth = -1;  // as a column's width: the default

    ~FlexGrid() override;

    // Rows and columns, headings included. Writing them empties the grid's cells; at least 1.
    int Rows() const;
    void PutRows(int rows);
    int Cols() const;
    void PutCols(int cols);
    // Rows without the empty ones that the source of the cells has at its end.
    int UsedRows() const;
    // Whether no cell and no heading has a text. Such a grid is drawn as one plain surface, however many rows
    // and columns it has; so are the rows of one that uses none.
    bool isBlank() const;

    // The current cell; 0 while a heading (or nothing) is current. Writing does not scroll.
    int Row() const { return m_row; }
    void PutRow(int row);
    int Col() const { return m_col; }
    void PutCol(int col);
    // Where the user sees the current cell: Col, or the nearest shown column while that one is hidden.
    int ShownCol() const;
    // The far corner of the selection that holds the current cell; Row and Col when one cell is selected.
    int RowSel() const;
    int ColSel() const;
    // The first row in view, 0 in a grid without data rows. Writing scrolls it to the top.
    int TopRow() const;
    void PutTopRow(int row);
    // True when any of the row can be seen. Row 0, the heading, always can.
    bool RowIsVisible(int row) const;

    QString TextMatrix(int row, int col) const;
    void PutTextMatrix(int row, int col, const QString &text);
    // The current cell's text.
    QString Text() const;
    // The texts of row 0, without the heading of the row headings.
    QStringList Headings() const;

    // Twips exactly as last set, whatever the screen's resolution; useDefaultWidth when never set,
    // 0 for a hidden column.
    int ColWidth(int col) const;
    void PutColWidth(int col, int twips);
    // What a column's width comes to: like ColWidth, with the default's 960 in place of -1 (the row headings
    // are as wide as their numbers need by default).
    int ColWidthInUse(int col) const;
    // All columns take the default width again.
    void ResetColWidths();

    // A width in twips at which the column's heading and texts can be read: of the rows in view and of some
    // hundred others. Not above a fair part of the grid's width.
    int FittingColWidth(int col) const;

    // The headings from the left, hidden ones too. Column numbers are those of the fields wherever a column
    // is shown.
    QStringList ColumnOrder() const;
    // The same with further columns where they would be shown.
    QStringList OrderWith(const QStringList &names) const;
    // How many of the first columns stay in view when the others scroll.
    int FrozenCols() const { return m_frozenCols; }
    // Puts columns into this order; those that it does not name stay after the one before them. An empty
    // order is that of the fields. The first `frozen` columns stay in view. Both are kept, by the headings,
    // when other cells are shown; so are the places of columns that are not there then.
    void ArrangeColumns(const QStringList &order, int frozen);

    // How a column's texts are shown; TextMatrix and copies keep the texts themselves. Kept by the heading
    // when other cells are shown.
    ADODB::DisplayFormat ColFormat(int col) const;
    void PutColFormat(int col, const ADODB::DisplayFormat &format);
    // The same by the heading, whether its column is there now or not.
    ADODB::DisplayFormat HeadingFormat(const QString &heading) const;
    void PutHeadingFormat(const QString &heading, const ADODB::DisplayFormat &format);

    // Whether cells without a value show a pale NULL, which is no text of theirs.
    bool ShowsNulls() const;
    void PutShowsNulls(bool on);

    // Marks parts of the texts that are shown; null marks nothing.
    void PutTextMarker(TextMarker marker);
    // Whether a column is too narrow for a cell's text, or only the text's first line is shown.
    bool IsTextCut(int row, int col) const;
    // What the headings show beside their texts, by column.
    void PutHeadingMarks(const std::vector<HeadingMark> &marks);
    // Whether a heading offers its column's menu when the mouse is over it.
    bool HasColumnMenus() const { return m_hasColumnMenus; }
    void PutHasColumnMenus(bool on);
    // Where the menu of a column belongs, on the screen.
    QPoint ColumnMenuPlace(int col) const;
    // The column at a place in the headings' viewport; 0 when none is.
    int ColumnOfHeadingAt(const QPoint &position) const;

    bool Redraw() const { return updatesEnabled(); }
    void PutRedraw(bool on) { setUpdatesEnabled(on); }
    // Empties all cells and headings, keeping the number of rows and columns.
    void Clear();
    void Refresh();
    QColor BackColor() const;
    void PutBackColor(const QColor &colour);

    // Runs `act`, in which Qt's own code makes a cell current or deals with an event, and reports what has
    // come of it only then, as a listener may delete the grid.
    void notifyAfter(const std::function<void()> &act);

    QModelIndex indexAt(const QPoint &position) const override;
    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    // The pixels at the left in which frozen columns cover the others; 0 while nothing is scrolled below
    // them.
    int frozenWidth() const;

    // Shows the cells of `source` (not null) instead of the grid's own. Columns that stay within the
    // number of columns keep their widths; nothing is current afterwards.
    void Show(std::unique_ptr<CellSource> source);
    // Shows the cells of `source` (not null), which are those that are shown and further rows below. Nothing
    // else changes.
    void ShowMore(std::unique_ptr<CellSource> source);

Q_SIGNALS:
    // Another data row became current, by mouse, key or program. Like HeadingClicked it may delete the grid:
    // when it comes of mouse or key, all else that the event does is done.
    void CurrentRowChanged(int row);
    // A column's heading was clicked.
    void HeadingClicked(int col);
    // The user gave a column another width.
    void ColWidthChanged(int col, int twips);
    // The user moved a column, or a program arranged the columns.
    void ColumnsArranged();
    // The user asked for a column's menu at a place on the screen. Nothing of the event is left to do.
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
    QStringList m_order;       // as last arranged; empty for the order of the fields
    QStringList m_frozenNames; // the first of them
    int m_frozenCols = 0;
    bool m_hasColumnMenus = false;
    bool m_isArranging = false;
    bool m_isApplyingWidths = false;
    bool m_isActing = false;  // in notifyAfter()
    bool m_hasNewRow = false; // to be reported, as is the next one
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
