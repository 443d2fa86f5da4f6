#include "control/parts/WindowCommands.h"

#include "control/parts/Survives.h"
#include "control/parts/lines/FilterBar.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "session/pages/Pages.h"
#include "session/statement/ShownConditions.h"

#include <QtGui/QAction>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLineEdit>

namespace KOVAVSFDataGridLib {

WindowCommands::WindowCommands(QWidget &window, const PopupMenu::Kind &kind, const Parts &parts,
                               Session &session)
    : m_parts(parts),
      m_session(session),
      m_menu(*new PopupMenu(window, kind, parts.toolbar, session)),
      m_columnMenu(window, parts.toolbar, parts.grid, session,
                   [this](const ColumnCommand &command, int col) { runOnColumn(command, col); })
{
    for (QAction *action : parts.toolbar.actions()) {
        if (!action->shortcut().isEmpty())
            window.addAction(action); // so that it works wherever the focus is in the window
    }
    connect(&parts.toolbar, &GridToolbar::buttonClicked, this, [this](const QString &key) { run(key); });
    connect(&m_menu, &PopupMenu::chosen, this, [this](const QString &key) { run(key, ChosenBy::MenuItem); });
    connect(&parts.conditions, &FilterBar::removeWanted, this, &WindowCommands::removeCondition);
    connect(&parts.goToPage, &QAbstractButton::clicked, this,
            [this] { m_session.pages().goToTypedPage(m_parts.page.text()); });
    connect(&parts.page, &QLineEdit::returnPressed, &parts.goToPage, &QAbstractButton::click);
}

PopupMenu &WindowCommands::menuFor(bool hasText, int col)
{
    m_menu.refresh(hasText);
    if (col > 0)
        m_columnMenu.addTo(m_menu, col);
    return m_menu;
}

void WindowCommands::run(const QString &key, ChosenBy by)
{
    if (m_parts.toolbar.isEnabled()) // a shortcut ignores the toolbar's state
        m_session.run(key, by);
}

// Whoever works with one column goes on with it when other records are shown.
void WindowCommands::runOnColumn(const ColumnCommand &command, int col)
{
    if (!m_parts.toolbar.isEnabled())
        return;
    VSFlexGrid &grid = m_parts.grid;
    const int current = grid.Col();
    const QString heading = grid.Headings().value(current - 1);
    const auto run = [&](WindowCommands &) { m_session.runOnColumn(command, col); };
    if (!survives(*this, run) || current < 1 || grid.Row() < 1)
        return;
    if (grid.Col() != current && grid.Headings().value(current - 1) == heading) {
        grid.PutCol(current);
        grid.scrollTo(grid.currentIndex());
    }
}

void WindowCommands::removeCondition(int condition)
{
    if (!m_parts.toolbar.isEnabled())
        return;
    const auto remove = [&](WindowCommands &) {
        m_session.perform(
            [&] { KOVAVSFDataGridLib::removeCondition(m_session, static_cast<std::size_t>(condition)); });
    };
    if (survives(*this, remove))
        m_parts.grid.setFocus(); // the button with the focus is gone
}

} // namespace KOVAVSFDataGridLib
