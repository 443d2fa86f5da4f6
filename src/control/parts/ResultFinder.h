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

// Looks for the find bar's text in the shown cells of the page, marks and counts what it finds, and goes from
// one to the next. Many cells are looked at in steps between the events; a change of the text or of the
// records starts over. While the bar is closed, the words of a quick filter are marked.
class ResultFinder : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object.
    ResultFinder(Session &session, VSFlexGrid &grid, FindBar &bar);

    void open();
    // The conditions in force may have changed.
    void markFilterWords();
    // The records have other values.
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
    std::weak_ptr<ADODB::Recordset> m_recordset; // of the search
    std::optional<CellSearch> m_search;
    std::optional<CellSearch::Cell> m_at; // where the last step led
    Direction m_wanted = Direction::None; // once all is searched
};

} // namespace KOVAVSFDataGridLib
