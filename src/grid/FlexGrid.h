#pragma once

#include "grid/CellSource.h"

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

    // Shows the cells of `source` (not null) instead of the grid's own. Columns that stay within the
    // number of columns keep their widths; nothing is current afterwards.
    void Show(std::unique_ptr<CellSource> source);

Q_SIGNALS:
    // Another data row became current, by mouse, key or program. Like HeadingClicked it may delete the grid:
    // when it comes of mouse or key, all else that the event does is done.
    void CurrentRowChanged(int row);
    // A column's heading was clicked.
    void HeadingClicked(int col);
    // The user gave a column another width.
    void ColWidthChanged(int col, int twips);

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

    FlexGridModel *m_model;
    const std::unique_ptr<CellPainter> m_painter;
    QPersistentModelIndex m_hover;
    std::vector<int> m_widths; // twips by grid column
    int m_row = 0;
    int m_col = 0;
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
