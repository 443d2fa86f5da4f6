#pragma once

#include "session/SessionWindow.h"

#include <QtCore/QPoint>
#include <QtCore/QRect>

class QWidget;

namespace KOVAVSFDataGridLib {

class GridToolbar;
class HistoryMenu;
class LinkPointer;
class PopupMenu;
class ResultFinder;
class Session;
class ValueViewer;
class VSFlexGrid;

// What the control and its full-screen viewer have in common as windows of a session: a grid and a toolbar.
class GridWindow : public SessionWindow
{
public:
    // Both must outlive this object.
    GridWindow(VSFlexGrid &grid, GridToolbar &toolbar);
    ~GridWindow() override;

    int Cols() const override;
    QStringList Headings() const override;
    int ColWidth(int col) const override;
    void PutColWidth(int col, int twips) override;
    void ResetColWidths() override;
    int widthOfColumns() const override;
    int width() const override;
    int fittingWidth(int col) const override;
    QString columnFormat(const QString &heading) const override;
    void putColumnFormat(const QString &heading, const QString &format) override;
    bool showsNulls() const override;
    void putShowsNulls(bool on) override;
    int placeOf(int col) const override;
    QStringList columnOrder() const override;
    QStringList orderWith(const QStringList &fields) const override;
    int frozenColumns() const override;
    void arrangeColumns(const QStringList &order, int frozen) override;

    void refreshRecords() override;
    int Row() const override;
    int Rows() const override;
    void PutRow(int row) override;
    void PutCol(int col) override;
    int currentCol() const override;
    MarkedCells markedCells() const override;
    std::vector<int> shownColumns() const override;
    void putOnClipboard(std::unique_ptr<QMimeData> data) override;
    void keepInView(const std::function<void()> &change) override;

    void setPressed(const QString &key, bool on) override;
    void showNote(const QString &text) override;
    void refreshCommands() override;
    void showFind() override;
    void showHistory() override;
    void showValue(const CellValue &value) override;
    void openLink(const QUrl &link) override;
    std::unique_ptr<OpeningProgress> beginOpening() override;
    std::unique_ptr<OpeningProgress> beginWriting(const QString &done, qint64 total) override;
    void scrollAsOpened() override;

    // What it shows; not owned. To be set before anything is shown.
    void setSession(Session &session);
    // The menu whose items follow the commands; not owned.
    void setMenu(PopupMenu *menu) { m_menu = menu; }
    // Its list of statements; not owned.
    void setHistoryMenu(HistoryMenu *menu) { m_history = menu; }
    // What looks for texts in it; not owned.
    void setFinder(ResultFinder *finder) { m_finder = finder; }

protected:
    // Where on the whole window a line shows progress.
    virtual QWidget &progressWindow() = 0;
    virtual QRect progressPlace() const = 0;
    // Shows the conditions in force in words.
    virtual void showConditions(const QStringList &words) = 0;

    // Another cell is current, of another view than the grid.
    void followCurrentCell();

    VSFlexGrid &m_grid;
    GridToolbar &m_toolbar;
    Session *m_session = nullptr;
    PopupMenu *m_menu = nullptr;
    HistoryMenu *m_history = nullptr;
    ResultFinder *m_finder = nullptr;

private:
    void showHeadingMarks();

    const std::unique_ptr<LinkPointer> m_links;
    ValueViewer *m_values; // belongs to the grid
    // By the latest opening, until the result is shown. What shows an opening can outlive this object.
    const std::shared_ptr<std::optional<QPoint>> m_scrolled = std::make_shared<std::optional<QPoint>>();
};

} // namespace KOVAVSFDataGridLib
