#pragma once

#include "session/find/CellSearch.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>
#include <optional>

namespace KOVAVSFDataGridLib {

class FindBar;
class Session;
class VSFlexGrid;

// Searches the shown cells of the page for the find bar's text, marks and counts the matches, and moves
// between them. Many cells are searched in steps between events; a change of the text or of the records
// restarts the search. While the bar is closed, the words of a quick filter are marked.
class ResultFinder : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object.
    ResultFinder(Session &session, VSFlexGrid &grid, FindBar &bar);

    void open();
    // The active conditions may have changed.
    void markFilterWords();
    // The values of the records have changed.
    void startOver();

private:
    enum class Direction { None, Next, Previous };

    void begin();
    bool prepare();
    void continueSearch();
    void want(Direction direction);
    void go(Direction direction);
    std::optional<CellSearch::Cell> currentCell() const;
    void showCell(const CellSearch::Cell &cell);
    void showFound(const QString &wrapped = {});
    void showMarks();
    void offerColumns();

    Session &m_session;
    VSFlexGrid &m_grid;
    FindBar &m_bar;
    QTimer m_timer;
    std::weak_ptr<ADODB::Recordset> m_recordset; // being searched
    std::optional<CellSearch> m_search;
    std::optional<CellSearch::Cell> m_at; // the last match moved to
    Direction m_wanted = Direction::None; // where to go when the search is complete
};

} // namespace KOVAVSFDataGridLib
