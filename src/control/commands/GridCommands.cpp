#include "control/commands/GridCommands.h"

#include "ado/Adodc.h"
#include "ado/Recordset.h"
#include "control/commands/CommandTables.h"
#include "control/commands/PageCommands.h"
#include "control/commands/RecordCommands.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/input/DeleteAfterEvent.h"
#include "control/input/KeyCodes.h"
#include "control/parts/GridTexts.h"
#include "control/parts/GridToolbar.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"

#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <exception>
#include <utility>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// False when what was typed can't be taken or saved, which the user has been told, and when the host, told of
// it, has taken away what the command was to work on.
bool isReady(ControlHub &hub, Record record)
{
    switch (record) {
    case Record::IsListedAnew:
        return hub.commands.singleRecord.editor().take();
    case Record::IsLeft:
        return SaveRecord(hub);
    default:
        return true;
    }
}

} // namespace

GridCommands::GridCommands(ControlHub &hub)
    : statement(hub), singleRecord(hub), m_hub(hub), m_menu(hub.q, *hub.parts.Toolbar1)
{
    for (QAction *action : hub.parts.Toolbar1->actions()) {
        if (!action->shortcut().isEmpty())
            hub.q.addAction(action);
    }
    hub.parts.vsfgDataGrid->installEventFilter(this);
    connect(hub.parts.Toolbar1, &GridToolbar::buttonClicked, this, [this](const QString &key) {
        if (m_hub.parts.Toolbar1->isEnabled()) // a shortcut does not know
            run(key);
    });
    connect(&m_menu, &PopupMenu::PopMnuDataActionClicked, this, [this](int index) {
        bool ok = false;
        DoDataAction(index, ok);
    });
    connect(&hub.events, &GridEvents::menuWanted, this, &GridCommands::showMenu);
    connect(&singleRecord, &SingleRecordView::menuWanted, this, &GridCommands::showMenu);
    connect(&singleRecord, &SingleRecordView::cancelWanted, this, [this] { CancelRecord(m_hub); });
    connect(hub.parts.Adodc1, &ADODB::Adodc::MoveComplete, this, &GridCommands::followRecord);
    connect(hub.parts.Adodc1, &ADODB::Adodc::RecordChangeComplete, this,
            [this](ADODB::EventReasonEnum reason) {
                // Later, because the host may be in the middle of several changes.
                if (reason == ADODB::adRsnUpdate || reason == ADODB::adRsnDelete)
                    QMetaObject::invokeMethod(this, &GridCommands::followChange, Qt::QueuedConnection);
            });
}

GridCommands::~GridCommands()
{
    if (m_running == 0)
        return;
    DeleteAfterEvent(*m_hub.parts.Toolbar1);
    DeleteAfterEvent(m_menu.menu());
}

void GridCommands::run(const QString &key)
{
    const ToolbarCommand *const command = toolbarCommand(key);
    perform([&] {
        const bool runs = command && isReady(m_hub, command->record) &&
                          (command->needs == Needs::Nothing || m_hub.hasRecords());
        if (runs)
            command->run(m_hub);
    });
}

void GridCommands::DoDataAction(int index, bool &ok)
{
    const MenuCommand *const command = menuCommand(index);
    perform([&] {
        ok = m_hub.parts.Toolbar1->isEnabled() && command && m_hub.result.isOpen() &&
             isReady(m_hub, command->record);
        if (ok)
            command->run(m_hub);
    });
}

// A command that fails ends silently; what the user should know it has told. The host can have destroyed the
// control meanwhile, from an event or behind a dialog.
void GridCommands::perform(const std::function<void()> &command)
{
    const QPointer<GridCommands> alive(this);
    ++m_running;
    try {
        command();
    } catch (const std::exception &) {
    }
    if (!alive)
        return;
    --m_running;
    m_hub.updateRecordPosition();
    m_menu.PreparePopupMenu();
}

void GridCommands::goToTypedPage()
{
    const qint32 page = PageView::pageFromText(m_hub.parts.txtPage->text());
    const QPointer<KOVAVSFDataGrid> alive(&m_hub.q);
    if (page < 1)
        Messages::tell(&m_hub.q, GridTexts::NotAPageNumber);
    else if (SaveRecord(m_hub))
        TurnToPage(m_hub, page);
    if (alive)
        m_hub.updateRecordPosition();
}

void GridCommands::toggleFromResult()
{
    m_isFromResult = !m_isFromResult;
    m_hub.parts.Toolbar1->setButtonPressed(u"FromResult"_s, m_isFromResult);
}

void GridCommands::showMenu(const QPoint &position)
{
    if (!m_hub.hasRecords() || !m_hub.parts.Toolbar1->isEnabled())
        return;
    // A row heading does not become current by the right button of itself.
    VSFlexGrid &grid = *m_hub.parts.vsfgDataGrid;
    if (!m_hub.isSingleRecordShown()) {
        const int row = grid.rowAt(grid.viewport()->mapFromGlobal(position).y()) + 1;
        const QPointer<KOVAVSFDataGrid> alive(&m_hub.q);
        if (row >= 1 && row != grid.Row())
            grid.PutRow(row);
        if (!alive)
            return;
    }
    m_menu.show(position);
}

// The host moved the recordset: the row under the cursor is the record meant.
void GridCommands::followRecord()
{
    if (!m_hub.result.isOpen())
        return;
    VSFlexGrid &grid = *m_hub.parts.vsfgDataGrid;
    const qint64 row = m_hub.result.recordset()->AbsolutePosition() - m_hub.pages.recordOfRow(1) + 1;
    if (row >= 1 && row < grid.Rows() && row != grid.Row())
        grid.PutRow(static_cast<int>(row));
}

// The host changed, deleted or added a record: the grid shows as many rows as there are. What the commands
// themselves change they have shown already.
void GridCommands::followChange()
{
    if (!m_hub.result.isOpen() || m_hub.result.recordset()->EditMode() == ADODB::adEditAdd)
        return;
    VSFlexGrid &grid = *m_hub.parts.vsfgDataGrid;
    ADODB::Recordset &recordset = *m_hub.result.recordset();
    const int page = m_hub.pages.currentPage();
    const int rowCount = page > 0 ? m_hub.pages.rowsOfPage(page) : 0;
    if (rowCount + 1 != grid.Rows()) {
        const qint64 position = std::max<qint64>(recordset.AbsolutePosition(), 0);
        const qint64 wanted = position > 0 ? position : m_hub.pages.recordOfRow(std::max(grid.Row(), 1));
        const QPointer<GridCommands> alive(this);
        RefillAtRecord(m_hub, std::min(wanted, recordset.RecordCount()));
        if (!alive)
            return;
    }
    grid.Refresh();
    if (!singleRecord.editor().isOpen())
        singleRecord.refillIfShown();
    m_hub.updateRecordPosition();
}

bool GridCommands::isShortcut(const QKeyEvent &event) const
{
    const QKeySequence pressed(event.keyCombination());
    const QList<QAction *> actions = m_hub.q.actions();
    return std::any_of(actions.cbegin(), actions.cend(), [&](const QAction *action) {
        return action->isEnabled() && action->shortcuts().contains(pressed);
    });
}

// A key that is a command's shortcut never gets as far as a key press; the host is told of it all the same,
// and may keep it from the command.
bool GridCommands::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (isShortcut(key)) {
            qint16 keyCode = virtualKey(key);
            qint16 shift = shiftState(key.modifiers());
            const QPointer<KOVAVSFDataGrid> alive(&m_hub.q);
            Q_EMIT m_hub.q.DataKeyDown(keyCode, shift);
            if (!alive)
                return true;
            m_isKeyTaken = keyCode == 0;
            if (m_isKeyTaken) {
                event->accept();
                return true;
            }
        }
    }
    if (event->type() == QEvent::KeyPress && std::exchange(m_isKeyTaken, false))
        return true;
    // The menu key comes as a key as well, and once is enough.
    if (event->type() == QEvent::ContextMenu)
        return true;
    return QObject::eventFilter(watched, event);
}

} // namespace KOVAVSFDataGridLib
