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

// The common base of the control's and the viewer's window of a session: a grid and a toolbar.
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
    std::unique_ptr<OpeningProgress> beginWriting(const CountedText &done, qint64 total) override;
    void scrollAsOpened() override;

    // The session to show; not owned. Must be set before anything is shown.
    void setSession(Session &session);
    // A menu whose items are updated with the commands; not owned.
    void setMenu(PopupMenu *menu) { m_menu = menu; }
    // The list of statements; not owned.
    void setHistoryMenu(HistoryMenu *menu) { m_history = menu; }
    // Searches the shown records; not owned.
    void setFinder(ResultFinder *finder) { m_finder = finder; }

protected:
    // The top-level widget that shows a progress line.
    virtual QWidget &progressWindow() = 0;
    virtual QRect progressPlace() const = 0;
    // Shows the active conditions in words.
    virtual void showConditions(const QStringList &words) = 0;

    // The current cell of another view than the grid has changed.
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
    // From the latest opening, until its result is shown. The view of an opening can outlive this object.
    const std::shared_ptr<std::optional<QPoint>> m_scrolled = std::make_shared<std::optional<QPoint>>();
};

} // namespace KOVAVSFDataGridLib
