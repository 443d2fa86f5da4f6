#include "control/input/CommandInput.h"

#include "ado/Adodc.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "control/input/DeleteAfterEvent.h"
#include "control/input/GridEvents.h"
#include "control/input/InputEvents.h"
#include "control/input/KeyCodes.h"
#include "control/input/SingleRecordView.h"
#include "control/parts/GridParts.h"
#include "control/parts/Survives.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/editing/EditedRecord.h"
#include "session/pages/Pages.h"

#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <utility>

namespace KOVAVSFDataGridLib {

CommandInput::CommandInput(QWidget &control, InputEvents &host, Session &session, GridParts &parts,
                           GridEvents &events, SingleRecordView &singleRecord)
    : m_control(control),
      m_host(host),
      m_session(session),
      m_parts(parts),
      m_singleRecord(singleRecord),
      m_commands(control, PopupMenu::ofControl,
                 {*parts.Toolbar1, *parts.vsfgDataGrid, *parts.conditions, *parts.txtPage, *parts.cmdPgae},
                 session)
{
    parts.vsfgDataGrid->installEventFilter(this);
    connect(&events, &GridEvents::menuWanted, this, &CommandInput::showMenu);
    connect(&events, &GridEvents::headingMenuWanted, this,
            [this](int col, const QPoint &position) { m_commands.menuFor(true, col).exec(position); });
    connect(&singleRecord, &SingleRecordView::menuWanted, this, &CommandInput::showMenu);
    connect(&singleRecord, &SingleRecordView::cancelWanted, this, [this] { m_session.record().cancel(); });
    const auto save = [this] { m_session.perform([this] { m_session.record().save(); }); };
    connect(&singleRecord, &SingleRecordView::saveWanted, this, save);
    connect(parts.cmdSaveRecord, &QPushButton::clicked, this, save);
    connect(&singleRecord, &SingleRecordView::commandWanted, this,
            [this](const QString &key) { m_commands.run(key); });
    connect(parts.Adodc1, &ADODB::Adodc::MoveComplete, this, &CommandInput::followRecord);
    connect(parts.Adodc1, &ADODB::Adodc::RecordChangeComplete, this, [this](ADODB::EventReasonEnum reason) {
        // Later, because the host may be about to make more changes.
        if (reason == ADODB::adRsnUpdate || reason == ADODB::adRsnDelete)
            QMetaObject::invokeMethod(this, &CommandInput::followChange, Qt::QueuedConnection);
    });
}

CommandInput::~CommandInput()
{
    if (!m_session.isRunning())
        return;
    deleteAfterEvent(*m_parts.Toolbar1);
    deleteAfterEvent(m_commands.menu());
    deleteAfterEvent(m_commands.columnMenu());
}

void CommandInput::showMenu(const QPoint &position)
{
    if (!m_session.result().hasRecords() || !m_parts.Toolbar1->isEnabled())
        return;
    // A right-click on a row heading does not make the row current by itself.
    VSFlexGrid &grid = *m_parts.vsfgDataGrid;
    if (!m_session.window().isSingleRecordShown()) {
        const int y = grid.viewport()->mapFromGlobal(position).y();
        const int row = y < 0 ? 0 : grid.rowAt(y) + 1; // 0 above the rows, even if scrolled
        if (row >= 1 && row != grid.Row() && !survives(grid, &VSFlexGrid::PutRow, row))
            return;
    }
    m_commands.menuFor(true).exec(position);
}

// The host moved the recordset: makes the row of its current record current.
void CommandInput::followRecord()
{
    if (!m_session.result().isOpen())
        return;
    const int row = m_session.pages().rowOfRecord(m_session.result().recordset()->AbsolutePosition());
    if (row > 0 && row != m_parts.vsfgDataGrid->Row())
        m_parts.vsfgDataGrid->PutRow(row);
}

// The host changed, deleted or added a record: updates the number of rows. Changes by commands are already
// shown.
void CommandInput::followChange()
{
    if (!m_session.result().isOpen() || m_session.result().recordset()->EditMode() == ADODB::adEditAdd)
        return;
    const ADODB::Notifications::Hold hold(m_session.notifications());
    const ADODB::Recordset &recordset = *m_session.result().recordset();
    const int rows =
        m_session.pages().current() > 0 ? m_session.pages().recordsOnPage(m_session.pages().current()) : 0;
    VSFlexGrid &grid = *m_parts.vsfgDataGrid;
    if (rows + 1 != grid.Rows()) {
        const qint64 position = std::max<qint64>(recordset.AbsolutePosition(), 0);
        const qint64 wanted =
            position > 0 ? position : m_session.pages().recordOfRow(std::max(grid.Row(), 1));
        m_session.pages().refillAtRecord(std::min(wanted, recordset.RecordCount()));
    }
    grid.Refresh();
    if (!m_singleRecord.editor().isOpen())
        m_session.window().refreshSingleRecord();
    m_session.pages().updateRecordPosition();
}

bool CommandInput::isShortcut(const QKeyEvent &event) const
{
    const QKeySequence pressed(event.keyCombination());
    const QList<QAction *> actions = m_control.actions();
    return std::any_of(actions.cbegin(), actions.cend(), [&](const QAction *action) {
        return action->isEnabled() && action->shortcuts().contains(pressed);
    });
}

// The shortcut of a command does not arrive as a key press. The host is notified nevertheless, and can
// suppress the command.
bool CommandInput::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if (isShortcut(key)) {
            qint16 keyCode = virtualKey(key);
            qint16 shift = shiftState(key.modifiers());
            if (!survives(m_host, &InputEvents::DataKeyDown, keyCode, shift))
                return true;
            m_isKeyConsumed = keyCode == 0;
            if (m_isKeyConsumed) {
                event->accept();
                return true;
            }
        }
    }
    if (event->type() == QEvent::KeyPress && std::exchange(m_isKeyConsumed, false))
        return true;
    // The menu key also arrives as a key press; one event is enough.
    if (event->type() == QEvent::ContextMenu)
        return true;
    return QObject::eventFilter(watched, event);
}

} // namespace KOVAVSFDataGridLib
