#include "control/parts/GridWindow.h"

#include "control/parts/GridTexts.h"
#include "control/parts/HistoryMenu.h"
#include "control/parts/LinkPointer.h"
#include "control/parts/PopupMenu.h"
#include "control/parts/ResultFinder.h"
#include "control/parts/ValueViewer.h"
#include "control/parts/lines/ShownOpening.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "grid/GridSelection.h"
#include "grid/Twips.h"
#include "session/Session.h"
#include "session/statement/ShownConditions.h"
#include "session/statement/ShownOrder.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QDesktopServices>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>

#include <utility>

namespace KOVAVSFDataGridLib {

GridWindow::GridWindow(VSFlexGrid &grid, GridToolbar &toolbar)
    : m_grid(grid),
      m_toolbar(toolbar),
      m_links(std::make_unique<LinkPointer>(grid)),
      m_values(new ValueViewer(grid))
{
    grid.PutHasColumnMenus(true);
    QObject::connect(m_links.get(), &LinkPointer::clicked, &grid,
                     [this](const QUrl &link) { openLink(link); });
}

GridWindow::~GridWindow() = default;

int GridWindow::Cols() const
{
    return m_grid.Cols();
}

QStringList GridWindow::Headings() const
{
    return m_grid.Headings();
}

int GridWindow::ColWidth(int col) const
{
    return m_grid.ColWidth(col);
}

void GridWindow::PutColWidth(int col, int twips)
{
    m_grid.PutColWidth(col, twips);
}

void GridWindow::ResetColWidths()
{
    m_grid.ResetColWidths();
}

int GridWindow::widthOfColumns() const
{
    int sum = 0;
    for (int col = 0; col < m_grid.Cols(); ++col)
        sum += m_grid.ColWidthInUse(col);
    return sum;
}

int GridWindow::width() const
{
    return Twips::fromPixels(m_grid.width(), m_grid);
}

int GridWindow::fittingWidth(int col) const
{
    return m_grid.FittingColWidth(col);
}

QString GridWindow::columnFormat(const QString &heading) const
{
    return m_grid.HeadingFormat(heading).toText();
}

void GridWindow::putColumnFormat(const QString &heading, const QString &format)
{
    if (const auto read = ADODB::DisplayFormat::fromText(format))
        m_grid.PutHeadingFormat(heading, *read);
}

bool GridWindow::showsNulls() const
{
    return m_grid.ShowsNulls();
}

void GridWindow::putShowsNulls(bool on)
{
    m_grid.PutShowsNulls(on);
    refreshCommands();
}

int GridWindow::placeOf(int col) const
{
    return m_grid.horizontalHeader()->visualIndex(col - 1);
}

QStringList GridWindow::columnOrder() const
{
    return m_grid.ColumnOrder();
}

QStringList GridWindow::orderWith(const QStringList &fields) const
{
    return m_grid.OrderWith(fields);
}

int GridWindow::frozenColumns() const
{
    return m_grid.FrozenCols();
}

void GridWindow::arrangeColumns(const QStringList &order, int frozen)
{
    m_grid.ArrangeColumns(order, frozen);
}

void GridWindow::refreshRecords()
{
    m_grid.Refresh();
    m_values->follow();
    if (m_finder)
        m_finder->startOver();
}

int GridWindow::Row() const
{
    return m_grid.Row();
}

int GridWindow::Rows() const
{
    return m_grid.Rows();
}

void GridWindow::showNote(const QString &text)
{
    QToolTip::showText(m_grid.mapToGlobal(m_grid.rect().bottomLeft()), text, &m_grid);
}

void GridWindow::PutRow(int row)
{
    m_grid.PutRow(row);
}

void GridWindow::PutCol(int col)
{
    m_grid.PutCol(col);
}

int GridWindow::currentCol() const
{
    return m_grid.ShownCol();
}

MarkedCells GridWindow::markedCells() const
{
    GridSelection selected = selectedCells(m_grid);
    return {selected.firstRow, selected.lastRow, std::move(selected.columns)};
}

std::vector<int> GridWindow::shownColumns() const
{
    return KOVAVSFDataGridLib::shownColumns(m_grid);
}

void GridWindow::putOnClipboard(std::unique_ptr<QMimeData> data)
{
    QGuiApplication::clipboard()->setMimeData(data.release());
}

void GridWindow::keepInView(const std::function<void()> &change)
{
    const int col = m_grid.Col();
    const int x = m_grid.horizontalScrollBar()->value();
    const int y = m_grid.verticalScrollBar()->value();
    change();
    if (m_grid.Row() > 0 && col < m_grid.Cols())
        m_grid.PutCol(col);
    m_grid.horizontalScrollBar()->setValue(x);
    m_grid.verticalScrollBar()->setValue(y);
}

void GridWindow::setPressed(const QString &key, bool on)
{
    m_toolbar.setButtonPressed(key, on);
}

void GridWindow::refreshCommands()
{
    for (const Command *command : Command::all()) {
        if (command->button && command->whyNot)
            m_toolbar.setButtonReason(command->key, m_session->whyNot(*command));
    }
    if (m_menu)
        m_menu->refresh();
    showHeadingMarks();
    if (m_finder)
        m_finder->markFilterWords();
}

void GridWindow::setSession(Session &session)
{
    m_session = &session;
    m_values->setSession(session);
}

void GridWindow::showValue(const CellValue &value)
{
    m_values->show(value);
}

void GridWindow::followCurrentCell()
{
    m_values->follow();
}

void GridWindow::openLink(const QUrl &link)
{
    QDesktopServices::openUrl(link);
}

void GridWindow::showHistory()
{
    if (m_history)
        m_history->open();
}

void GridWindow::showFind()
{
    if (m_finder)
        m_finder->open();
}

std::unique_ptr<OpeningProgress> GridWindow::beginOpening()
{
    return std::make_unique<ShownOpening>(
        progressWindow(), [this] { return progressPlace(); }, m_grid, m_scrolled);
}

std::unique_ptr<OpeningProgress> GridWindow::beginWriting(const CountedText &done, qint64 total)
{
    return std::make_unique<LoadProgress>(
        progressWindow(), [this] { return progressPlace(); }, done, total);
}

void GridWindow::scrollAsOpened()
{
    const std::optional<QPoint> place = std::exchange(*m_scrolled, std::nullopt);
    if (!place)
        return;
    m_grid.horizontalScrollBar()->setValue(place->x());
    m_grid.verticalScrollBar()->setValue(place->y());
}

void GridWindow::showHeadingMarks()
{
    std::vector<HeadingMark> marks(static_cast<std::size_t>(m_grid.Cols()));
    int place = 0;
    for (const SortTerm &term : shownOrder(*m_session)) {
        ++place;
        if (term.column < 1 || term.column >= m_grid.Cols())
            continue;
        HeadingMark &mark = marks[static_cast<std::size_t>(term.column)];
        mark.sortPlace = place;
        mark.isDescending = term.isDescending;
        mark.spoken =
            (term.isDescending ? GridTexts::SortedDescending : GridTexts::SortedAscending).arg(place);
    }
    const QStringList headings = m_grid.Headings();
    QStringList words;
    for (const ShownCondition &condition : shownConditions(*m_session)) {
        words.append(condition.words);
        // A search over several fields does not filter a single one of them.
        if (condition.fields.size() != 1)
            continue;
        for (int col = 1; col <= headings.size(); ++col) {
            if (headings.at(col - 1).compare(condition.fields.front(), Qt::CaseInsensitive) != 0)
                continue;
            HeadingMark &mark = marks[static_cast<std::size_t>(col)];
            mark.isFiltered = true;
            mark.spoken +=
                (mark.spoken.isEmpty() ? QString() : GridTexts::BetweenMarks()) + GridTexts::Filtered;
        }
    }
    m_grid.PutHeadingMarks(marks);
    showConditions(words);
}

} // namespace KOVAVSFDataGridLib
