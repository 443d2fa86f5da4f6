#include "control/parts/ColumnMenu.h"

#include "control/parts/GridTexts.h"
#include "forms/widgets/TickBoxes.h"
#include "grid/FlexGrid.h"
#include "language/Language.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"
#include "session/columns/ColumnKeys.h"

#include <QtCore/QItemSelectionModel>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Without records there is no cell that a view could scroll to.
void showHeading(VSFlexGrid &grid, int col)
{
    if (grid.currentIndex().isValid())
        return grid.scrollTo(grid.currentIndex());
    const QHeaderView &header = *grid.horizontalHeader();
    const int left = header.sectionViewportPosition(col - 1);
    if (left < 0 || left + header.sectionSize(col - 1) > header.viewport()->width())
        grid.horizontalScrollBar()->setValue(grid.horizontalScrollBar()->value() + left);
}

} // namespace

ColumnMenu::ColumnMenu(QWidget &window, const QWidget &toolbar, VSFlexGrid &grid, Session &session,
                       Runner run)
    : m_toolbar(toolbar), m_grid(grid), m_session(session), m_run(std::move(run)), m_menu(new Menu(&window))
{
    m_menu->setObjectName(u"ColumnMenu"_s);
    m_menu->setToolTipsVisible(true); // for the reason why an item is disabled
    auto *open = new QAction(&window);
    Language::keepTranslated(*m_menu, [this, open] {
        m_menu->setAccessibleName(GridTexts::ColumnMenuName);
        open->setText(GridTexts::ColumnMenuName);
    });
    open->setObjectName(u"OpenColumnMenu"_s);
    open->setShortcut(QKeySequence(u"Ctrl+Alt+Down"_s));
    open->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    window.addAction(open);
    connect(open, &QAction::triggered, this, &ColumnMenu::openAtCurrentColumn);
    grid.installEventFilter(this);
    connect(grid.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid())
                    m_lastHeading = m_grid.model()->headerData(current.column(), Qt::Horizontal).toString();
            });
    connect(&grid, &FlexGrid::ColumnMenuWanted, this, &ColumnMenu::popUp);
    if (const ColumnCommand *const fit = ColumnCommand::find(ColumnKeys::FitColumn))
        connect(&grid, &FlexGrid::FittingWidthWanted, this, [this, fit](int col) { m_run(*fit, col); });
}

void ColumnMenu::openAtCurrentColumn()
{
    if (m_session.window().isSingleRecordShown() || m_grid.Cols() < 2)
        return;
    const int col = currentCol();
    showHeading(m_grid, col);
    popUp(col, m_grid.ColumnMenuPlace(col));
}

// A result without records has no current cell, and its grid begins without a current column.
int ColumnMenu::currentCol() const
{
    if (m_grid.Col() > 0)
        return m_grid.ShownCol();
    const int col = static_cast<int>(m_grid.Headings().indexOf(m_lastHeading)) + 1;
    return col > 0 && !m_grid.isColumnHidden(col - 1) ? col : m_grid.ShownCol();
}

void ColumnMenu::moveWithoutRecords(bool isForward)
{
    const QHeaderView &header = *m_grid.horizontalHeader();
    const int step = isForward ? 1 : -1;
    for (int visual = header.visualIndex(currentCol() - 1) + step; visual >= 0 && visual < header.count();
         visual += step) {
        const int section = header.logicalIndex(visual);
        if (header.isSectionHidden(section))
            continue;
        m_grid.PutCol(section + 1);
        m_lastHeading = m_grid.Headings().value(section);
        return showHeading(m_grid, section + 1);
    }
}

bool ColumnMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && m_session.result().isOpen() && m_grid.UsedRows() < 2 &&
        m_grid.Cols() > 1) {
        const auto &press = static_cast<const QKeyEvent &>(*event);
        const bool isForward = press.key() == Qt::Key_Right;
        if ((isForward || press.key() == Qt::Key_Left) && (press.modifiers() & ~Qt::KeypadModifier) == 0)
            moveWithoutRecords(isForward);
    }
    return QObject::eventFilter(watched, event);
}

void ColumnMenu::popUp(int col, const QPoint &place)
{
    if (col < 1 || !m_grid.isEnabled() || !m_toolbar.isEnabled() || !m_session.result().isOpen())
        return;
    m_menu->clear();
    makeActions(*m_menu, col);
    m_menu->popup(place);
    // If the menu was opened by key, its first item is selected.
    m_menu->setActiveAction(m_menu->actions().value(0));
}

void ColumnMenu::addTo(QMenu &menu, int col)
{
    constexpr qsizetype longestHeading = 24;
    QString heading = m_grid.Headings().value(col - 1);
    if (heading.size() > longestHeading)
        heading = heading.first(longestHeading) + u'…';
    QAction *const separator = menu.addSeparator();
    auto *const entries = new Menu(GridTexts::ColumnEntries.arg(heading.replace(u'&', "&&"_L1)), &menu);
    menu.addMenu(entries);
    entries->setObjectName(u"PopMnuColumn"_s);
    entries->setAccessibleName(GridTexts::ColumnMenuName);
    entries->setToolTipsVisible(true);
    makeActions(*entries, col);
    // The action that was chosen is triggered after the menu has closed.
    connect(&menu, &QMenu::aboutToHide, separator, &QObject::deleteLater);
    connect(&menu, &QMenu::aboutToHide, entries, &QObject::deleteLater);
}

void ColumnMenu::makeActions(QMenu &menu, int col)
{
    constexpr int group = 100;
    int lastGroup = ColumnCommand::all().front()->place / group;
    for (const ColumnCommand *command : ColumnCommand::all()) {
        if (command->place / group != lastGroup)
            menu.addSeparator();
        lastGroup = command->place / group;
        QAction *const action = menu.addAction(command->caption);
        action->setObjectName(u"ColumnMenu"_s + command->key);
        action->setEnabled(m_session.canRunOnColumn(*command, col));
        action->setToolTip(m_session.whyNot(*command, col));
        action->setCheckable(command->isOn != nullptr);
        action->setChecked(action->isEnabled() && command->isOn && command->isOn(m_session, col));
        connect(action, &QAction::triggered, this, [this, command, col] { m_run(*command, col); });
    }
}

} // namespace KOVAVSFDataGridLib
