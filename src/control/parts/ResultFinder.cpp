#include "control/parts/ResultFinder.h"

#include "ado/Recordset.h"
#include "ado/values/NumericTypes.h"
#include "control/parts/GridTexts.h"
#include "control/parts/lines/FindBar.h"
#include "grid/FlexGrid.h"
#include "grid/GridSelection.h"
#include "language/GroupedNumber.h"
#include "session/Session.h"
#include "session/pages/Pages.h"
#include "session/statement/ShownConditions.h"

#include <QtCore/QItemSelectionModel>
#include <QtWidgets/QHeaderView>

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

TextMatcher matcherOf(const FindBar &bar)
{
    return {bar.text(), bar.isCaseExact() ? TextMatcher::Case::Exact : TextMatcher::Case::Ignored,
            bar.isWholeCell() ? TextMatcher::Extent::Whole : TextMatcher::Extent::Part};
}

bool isBinary(ADODB::DataTypeEnum type)
{
    return type == ADODB::adBinary || type == ADODB::adVarBinary || type == ADODB::adLongVarBinary;
}

} // namespace

ResultFinder::ResultFinder(Session &session, VSFlexGrid &grid, FindBar &bar)
    : m_session(session), m_grid(grid), m_bar(bar)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ResultFinder::continueSearch);
    connect(&bar, &FindBar::changed, this, &ResultFinder::begin);
    connect(&bar, &FindBar::nextWanted, this, [this] { want(Direction::Next); });
    connect(&bar, &FindBar::previousWanted, this, [this] { want(Direction::Previous); });
    connect(&bar, &FindBar::closed, this, [this] {
        begin();
        m_grid.setFocus();
    });
    connect(grid.model(), &QAbstractItemModel::modelReset, this, &ResultFinder::startOver);
    connect(grid.model(), &QAbstractItemModel::dataChanged, this, &ResultFinder::startOver);
    connect(&grid, &FlexGrid::ColumnsArranged, this, &ResultFinder::startOver);
    connect(grid.horizontalHeader(), &QHeaderView::sectionResized, this, [this](int, int before, int now) {
        if ((before == 0) != (now == 0))
            startOver();
    });
}

void ResultFinder::open()
{
    m_bar.open();
    begin();
}

void ResultFinder::startOver()
{
    if (!m_bar.isHidden())
        begin();
}

void ResultFinder::offerColumns()
{
    const QStringList headings = m_grid.Headings();
    QStringList names;
    QList<int> columns;
    for (const int col : shownColumns(m_grid)) {
        names.append(headings.at(col - 1));
        columns.append(col);
    }
    m_bar.setColumns(names, columns);
}

void ResultFinder::begin()
{
    m_search.reset();
    m_recordset.reset();
    m_at.reset();
    m_wanted = Direction::None;
    m_timer.stop();
    if (!m_bar.isHidden())
        m_timer.start(0); // several columns may be hidden or shown now
    showMarks();
}

// Returns false if there is nothing to search.
bool ResultFinder::prepare()
{
    offerColumns();
    showMarks();
    if (m_bar.text().isEmpty() || !m_session.result().isOpen() || m_grid.UsedRows() < 2)
        return false;
    const ADODB::Recordset &recordset = *m_session.result().recordset();
    std::vector<CellSearch::Column> columns;
    for (const int col : shownColumns(m_grid)) {
        if (col > recordset.Fields().Count() || (m_bar.column() != 0 && col != m_bar.column()))
            continue;
        const ADODB::Field &field = recordset.Fields().Item(col - 1);
        if (isBinary(field.Type()))
            continue;
        ADODB::DisplayFormat format = m_grid.ColFormat(col);
        format.leastDecimals = ADODB::decimalsOf(field.Type(), field.NumericScale());
        columns.push_back({col, col - 1, field.Type(), format});
    }
    const RecordRange range{
        m_session.pages().recordOfRow(1),
        std::min(m_session.pages().recordOfRow(m_grid.UsedRows() - 1), recordset.RecordCount())};
    m_recordset = m_session.result().recordset();
    m_search.emplace(recordset, range, std::move(columns), matcherOf(m_bar));
    return true;
}

// NOLINTBEGIN(bugprone-unchecked-optional-access): none of these is called before prepare() made the search

void ResultFinder::continueSearch()
{
    if (!m_search && !prepare())
        return m_bar.showFound(m_bar.text().isEmpty() ? QString() : GridTexts::NothingFound);
    // Not kept alive between the steps, because its file must be closed when its owner closes it.
    const std::shared_ptr<ADODB::Recordset> recordset = m_recordset.lock();
    if (!recordset)
        return m_search.reset();
    m_search->addNextCells();
    if (!m_search->isDone()) {
        m_timer.start(0);
        return m_bar.showFound(GridTexts::FindRunning.arg(m_search->percentDone()));
    }
    showFound();
    if (m_wanted != Direction::None)
        go(std::exchange(m_wanted, Direction::None)); // last, because a host may delete the control
}

void ResultFinder::want(Direction direction)
{
    if (m_search && m_search->isDone())
        go(direction);
    else
        m_wanted = direction;
}

// The current cell, or its position among the searched columns.
std::optional<CellSearch::Cell> ResultFinder::currentCell() const
{
    if (m_grid.Row() < 1)
        return std::nullopt;
    const QHeaderView &header = *m_grid.horizontalHeader();
    const int visual = header.visualIndex(m_grid.ShownCol() - 1);
    const auto &columns = m_search->columns();
    const auto at = std::ranges::find_if(columns, [&](const CellSearch::Column &column) {
        return header.visualIndex(column.col - 1) >= visual;
    });
    return CellSearch::Cell{m_session.pages().recordOfRow(m_grid.Row()),
                            static_cast<int>(at - columns.begin())};
}

void ResultFinder::go(Direction direction)
{
    const std::shared_ptr<ADODB::Recordset> recordset = m_recordset.lock();
    if (!recordset || m_search->count() == 0)
        return;
    const std::optional<CellSearch::Cell> current = currentCell();
    const bool isOnFound =
        current && m_at && current->record == m_at->record && current->place == m_at->place;
    const bool isNext = direction == Direction::Next;
    std::optional<CellSearch::Cell> found;
    if (current)
        found = isNext ? m_search->next(*current, !isOnFound) : m_search->previous(*current, !isOnFound);
    QString wrapped;
    if (!found) {
        found = isNext ? m_search->first() : m_search->last();
        if (current)
            wrapped = isNext ? GridTexts::FoundFromStart : GridTexts::FoundFromEnd;
    }
    if (!found)
        return; // the records have changed since
    m_at = found;
    showFound(wrapped);
    showCell(*found);
}

// The grid reports the new row to the host, which may delete the control.
void ResultFinder::showCell(const CellSearch::Cell &cell)
{
    const int row = m_session.pages().rowOfRecord(cell.record);
    const int col = m_search->columns()[static_cast<std::size_t>(cell.place)].col;
    if (row < 1)
        return;
    const QModelIndex index = m_grid.model()->index(row - 1, col - 1);
    m_grid.notifyAfter([&] {
        m_grid.setCurrentIndex(index);
        m_grid.scrollTo(index);
    });
}

void ResultFinder::showFound(const QString &wrapped)
{
    if (m_search->count() == 0)
        m_bar.showFound(GridTexts::NothingFound);
    else if (!m_at)
        m_bar.showFound(GridTexts::FoundCount.arg(grouped(m_search->count())));
    else
        m_bar.showFound(
            GridTexts::FoundPlace.arg(grouped(m_search->numberOf(*m_at)), grouped(m_search->count())) +
            wrapped);
}

// NOLINTEND(bugprone-unchecked-optional-access)

void ResultFinder::showMarks()
{
    if (m_bar.isHidden() || m_bar.text().isEmpty())
        return markFilterWords();
    m_grid.PutTextMarker([matcher = std::make_shared<TextMatcher>(matcherOf(m_bar)),
                          only = m_bar.column()](const QString &shown, int col, const auto &mark) {
        if (only == 0 || col == only)
            matcher->forEachMatch(shown, mark);
    });
}

void ResultFinder::markFilterWords()
{
    if (!m_bar.isHidden() && !m_bar.text().isEmpty())
        return;
    struct Sought
    {
        TextMatcher matcher;
        std::vector<int> columns;
    };
    auto sought = std::make_shared<std::vector<Sought>>();
    const QStringList headings = m_grid.Headings();
    for (const ShownCondition &condition : shownConditions(m_session)) {
        std::vector<int> columns;
        for (int col = 1; col <= headings.size(); ++col) {
            if (condition.fields.contains(headings.at(col - 1), Qt::CaseInsensitive))
                columns.push_back(col);
        }
        for (const QString &text : condition.sought)
            sought->push_back(
                {TextMatcher(text, TextMatcher::Case::Ignored, TextMatcher::Extent::Part), columns});
    }
    if (sought->empty())
        return m_grid.PutTextMarker({});
    m_grid.PutTextMarker([sought](const QString &shown, int col, const auto &mark) {
        for (const Sought &each : *sought) {
            if (std::ranges::find(each.columns, col) != each.columns.end())
                each.matcher.forEachMatch(shown, mark);
        }
    });
}

} // namespace KOVAVSFDataGridLib
