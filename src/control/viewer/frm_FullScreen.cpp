#include "control/viewer/frm_FullScreen.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/input/EndKeys.h"
#include "control/input/MenuKey.h"
#include "control/parts/DialogQuestions.h"
#include "control/parts/HistoryMenu.h"
#include "control/parts/ResultFinder.h"
#include "control/parts/WindowCommands.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "control/viewer/ViewerTexts.h"
#include "forms/Contrast.h"
#include "grid/FlexGrid.h"
#include "session/WindowRules.h"
#include "session/commands/CommandKeys.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/statement/ShownStatement.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int backIndex = 7; // the menu item that returns to the control

// The control asks for the condition, because it knows the table.
class ViewerQuestions final : public DialogQuestions
{
public:
    ViewerQuestions(QWidget &viewer, AskCondition askCondition)
        : DialogQuestions(&viewer), m_viewer(viewer), m_askCondition(std::move(askCondition))
    {
    }

    QString askCondition(const ConditionRequest &request) override
    {
        return m_askCondition(&m_viewer, request);
    }

private:
    QWidget &m_viewer;
    const AskCondition m_askCondition;
};

} // namespace

frm_FullScreen::frm_FullScreen(ViewerHost host, QWidget *parent)
    : QDialog(parent),
      m_questions(std::make_unique<ViewerQuestions>(*this, std::move(host.askCondition))),
      m_parts(*this),
      m_window(*this, m_parts),
      m_session(std::make_shared<Session>(m_window, *m_questions, m_noHost, viewerRules, nullptr,
                                          std::move(host.open))),
      m_commands(std::make_unique<WindowCommands>(
          *this, PopupMenu::ofViewer,
          WindowCommands::Parts{*m_parts.Toolbar1, *m_parts.vsfgShowData, *m_parts.conditions,
                                *m_parts.txtPage, *m_parts.cmdPgae},
          *m_session)),
      m_menu(&m_commands->menu()),
      m_finder(std::make_unique<ResultFinder>(*m_session, *m_parts.vsfgShowData, *m_parts.find))
{
    makeHintsReadable(*this);
    m_window.setSession(*m_session);
    m_window.setMenu(m_menu);
    m_window.setFinder(m_finder.get());
    m_window.setHistoryMenu(new HistoryMenu(*m_parts.Toolbar1, *m_session));
    setObjectName(u"frm_FullScreen"_s);
    setWindowTitle(ViewerTexts::Title);
    fillScreen();
    connect(m_parts.cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    // Its items depend on the cell where it was opened, but their shortcuts don't.
    connect(m_menu, &QMenu::aboutToHide, this, [this] { m_menu->refresh(); });
    QAction &back = m_menu->item(backIndex);
    back.setSeparator(false);
    back.setText(ViewerTexts::Back);
    connect(&back, &QAction::triggered, this, &QDialog::accept);
    m_parts.vsfgShowData->installEventFilter(this);
    m_parts.vsfgShowData->viewport()->installEventFilter(this);
    m_parts.vsfgShowData->horizontalHeader()->viewport()->installEventFilter(this);
    new EndKeys(*m_parts.vsfgShowData, *m_session, this);
    m_parts.vsfgShowData->setFocus();
}

frm_FullScreen::~frm_FullScreen()
{
    m_menu->disconnect(this); // its destructor hides it
    m_session->detach();
}

void frm_FullScreen::fillScreen()
{
    const QWidget *opener = parentWidget();
    setGeometry((opener ? opener->screen() : screen())->geometry());
    setWindowState(windowState() | Qt::WindowFullScreen);
}

void frm_FullScreen::PutFilterManager(std::shared_ptr<clsFilterManagement> manager)
{
    m_session->sharedHistory().setManager(std::move(manager));
}

void frm_FullScreen::PutTrail(std::shared_ptr<StatementTrail> trail)
{
    m_session->sharedHistory().setTrail(std::move(trail));
}

void frm_FullScreen::ClearRefObject()
{
    m_session->sharedHistory().setManager(nullptr);
}

void frm_FullScreen::GetData(const std::shared_ptr<ADODB::Connection> &newConnection,
                             const std::shared_ptr<ADODB::Recordset> &newTable, qint32 nCurPageIndex,
                             const QString &newConnectionString, const QString &NewSQL, bool,
                             const QString &SortString, bool IsAll, bool bCanFilte, bool bCanSort,
                             bool bCanFull)
{
    if (!bCanFull)
        m_parts.Toolbar1->setButtonEnabled(CommandKeys::ToFullTable, false);
    m_parts.Toolbar1->setButtonEnabled(CommandKeys::Filter, bCanFilte);
    m_parts.Toolbar1->setButtonEnabled(CommandKeys::Sort, bCanSort);
    m_session->texts.connectionString = newConnectionString;
    m_session->texts.sqlSort = SortString;
    m_session->fields().setView(IsAll ? FieldView::All : FieldView::Part);
    try {
        // A snapshot has nothing to refresh, but moving to the current position saves an edit in progress.
        const bool isOpen = newTable && newTable->State() == ADODB::adStateOpen;
        if (isOpen && newTable->EditMode() != ADODB::adEditNone)
            newTable->Move(0);
    } catch (const ADODB::Error &) {
        // The edit remains in the control, which shows the error when the user continues with it.
    }
    m_session->shown().borrow({newConnectionString, newConnection, newTable}, NewSQL, nCurPageIndex);
    m_session->fields().layOut();
    m_session->pages().updateRecordPosition();
    m_menu->refresh();
}

qint32 frm_FullScreen::GetPageIndex() const
{
    return m_session->pages().current();
}

bool frm_FullScreen::IsAll() const
{
    return m_session->fields().view() == FieldView::All;
}

const QString &frm_FullScreen::CurrentSQL() const
{
    return m_session->shown().text();
}

bool frm_FullScreen::IsRequeried() const
{
    return m_session->shown().isRequeried();
}

void frm_FullScreen::SeeCompressView()
{
    m_session->fields().compress();
}

void frm_FullScreen::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_window.makeShownCellCurrent();
    m_parts.vsfgShowData->scrollTo(m_parts.vsfgShowData->currentIndex());
}

void frm_FullScreen::keyPressEvent(QKeyEvent *event)
{
    // The key that opened the viewer also closes it.
    if (event->key() == Qt::Key_F11)
        accept();
    else
        QDialog::keyPressEvent(event);
}

bool frm_FullScreen::eventFilter(QObject *watched, QEvent *event)
{
    VSFlexGrid &grid = *m_parts.vsfgShowData;
    if (watched == grid.viewport() && event->type() == QEvent::MouseButtonRelease) {
        const auto &mouse = *static_cast<QMouseEvent *>(event);
        if (mouse.button() == Qt::RightButton) {
            const QModelIndex cell = grid.indexAt(mouse.position().toPoint());
            if (cell.isValid())
                grid.setCurrentIndex(cell);
            popUp(mouse.globalPosition().toPoint(), cell.isValid());
        }
    } else if (watched == grid.horizontalHeader()->viewport() &&
               event->type() == QEvent::MouseButtonRelease) {
        const auto &mouse = *static_cast<QMouseEvent *>(event);
        const int col = grid.ColumnOfHeadingAt(mouse.position().toPoint());
        if (mouse.button() == Qt::RightButton && col > 0)
            popUp(mouse.globalPosition().toPoint(), false, col);
    } else if (watched == &grid && event->type() == QEvent::KeyPress) {
        if (isMenuKey(*static_cast<QKeyEvent *>(event))) {
            popUp(menuPlace(grid), grid.Row() > 0);
            return true;
        }
    } else if (watched == &grid && event->type() == QEvent::ContextMenu) {
        return true; // the menu key also arrives as a key press; one event is enough
    }
    return QDialog::eventFilter(watched, event);
}

void frm_FullScreen::popUp(const QPoint &globalPosition, bool isOnCell, int col)
{
    m_session->pages().updateRecordPosition();
    if (!m_session->result().hasRecords())
        return;
    m_commands->menuFor(isOnCell && !m_parts.vsfgShowData->Text().isEmpty(), col).popup(globalPosition);
}

} // namespace KOVAVSFDataGridLib
