#include "control/viewer/frm_FullScreen.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/input/MenuKey.h"
#include "control/parts/EmptyHint.h"
#include "control/parts/GridTexts.h"
#include "control/parts/GridToolbar.h"
#include "control/viewer/TypedPage.h"
#include "control/viewer/ViewerCells.h"
#include "control/viewer/ViewerMenu.h"
#include "control/viewer/ViewerTexts.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"
#include "grid/TextCells.h"
#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/ColumnLayout.h"
#include "session/StoreRecordPosition.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

frm_FullScreen::frm_FullScreen(ViewerHost host, QWidget *parent)
    : QDialog(parent), m_host(std::move(host)), m_parts(*this), m_menu(new ViewerMenu(this))
{
    setObjectName(u"frm_FullScreen"_s);
    setWindowTitle(ViewerTexts::Title);
    fillScreen();
    addActions(m_parts.Toolbar1->actions()); // so that their shortcuts work wherever the keyboard is
    connect(m_parts.Toolbar1, &GridToolbar::buttonClicked, this, &frm_FullScreen::press);
    connect(m_parts.cmdPgae, &QPushButton::clicked, this, &frm_FullScreen::goToTypedPage);
    connect(m_parts.cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_menu, &ViewerMenu::chosen, this, &frm_FullScreen::RunPopupAction);
    m_parts.vsfgShowData->installEventFilter(this);
    m_parts.vsfgShowData->viewport()->installEventFilter(this);
    m_parts.vsfgShowData->setFocus();
}

frm_FullScreen::~frm_FullScreen() = default;

void frm_FullScreen::fillScreen()
{
    const QWidget *opener = parentWidget();
    setGeometry((opener ? opener->screen() : screen())->geometry());
    setWindowState(windowState() | Qt::WindowFullScreen);
}

void frm_FullScreen::GetData(const std::shared_ptr<ADODB::Connection> &newConnection,
                             const std::shared_ptr<ADODB::Recordset> &newTable, qint32 nCurPageIndex,
                             const QString &newConnectionString, const QString &NewSQL, bool,
                             const QString &SortString, bool IsAll, bool bCanFilte, bool bCanSort,
                             bool bCanFull)
{
    m_sortString = SortString;
    m_isAll = IsAll;
    SetPartButton(IsAll ? 1 : 2);
    if (!bCanFull)
        m_parts.Toolbar1->setButtonEnabled(u"ToFullTable"_s, false);
    m_parts.Toolbar1->setButtonEnabled(u"Filter"_s, bCanFilte);
    m_parts.Toolbar1->setButtonEnabled(u"Sort"_s, bCanSort);

    m_connection = newConnection;
    m_recordset = newTable;
    m_connectionString = newConnectionString;
    m_currentSQL = NewSQL;
    try {
        // A snapshot has nothing to refresh, but a move to where it stands saves an edit that was begun.
        if (isOpen() && m_recordset->EditMode() != ADODB::adEditNone)
            m_recordset->Move(0);
    } catch (const ADODB::Error &) {
        // The edit stays with the control, which tells why it can't be saved when the user goes on with it.
    }
    SetPageIndex(nCurPageIndex);
    FillGrid();
    applyFieldWidths();
    UpdateRecordPosition();
    tellIfEmpty();
}

bool frm_FullScreen::isOpen() const
{
    return m_recordset && m_recordset->State() == ADODB::adStateOpen;
}

bool frm_FullScreen::hasRecords() const
{
    return isOpen() && m_recordset->RecordCount() > 0;
}

void frm_FullScreen::SetPageIndex(qint64 page)
{
    const qint64 pageCount = isOpen() ? m_recordset->PageCount() : 0;
    const bool canShowPage = isOpen() && !m_recordset->isEOF();
    m_page = canShowPage ? static_cast<qint32>(std::min(page, pageCount)) : 0;
    const QString shown = QString::number(m_page);
    m_parts.txtPage->setText(shown);
    m_parts.lblPageCount->setText(GridTexts::PagePrefix + shown + GridTexts::PageCountPrefix +
                                  QString::number(pageCount) + ViewerTexts::PageSuffix);
}

// From the first record of the page to the end of the recordset, as far as the grid has rows for it.
bool frm_FullScreen::FillGrid()
{
    VSFlexGrid &grid = *m_parts.vsfgShowData;
    if (!isOpen()) {
        grid.Show(std::make_unique<TextCells>(1, 1));
        return false;
    }
    const qint64 rest = m_page > 0 ? m_recordset->RecordCount() - firstRecord() + 1 : 0;
    const auto rows = static_cast<int>(std::clamp<qint64>(rest, 0, ViewerCells::Rows - 1));
    grid.PutRedraw(false);
    grid.Show(std::make_unique<ViewerCells>(m_recordset, static_cast<int>(firstRecord()), rows));
    grid.PutColWidth(0, ColumnLayout::RowHeadingMargin); // it has no texts to be as wide as
    grid.PutRedraw(true);
    return true;
}

qint64 frm_FullScreen::firstRecord() const
{
    return static_cast<qint64>(std::max(m_page, 1) - 1) * m_recordset->PageSize() + 1;
}

void frm_FullScreen::showPage(qint64 page)
{
    SetPageIndex(page);
    FillGrid();
    makeShownCellCurrent();
    UpdateRecordPosition();
}

void frm_FullScreen::GotoPage(int kind)
{
    if (!isOpen() || m_recordset->isBOF())
        return;
    const qint64 pageCount = m_recordset->PageCount();
    const bool isBack = kind == 1 || kind == 2;
    if (isBack ? m_page < 2 : pageCount < 2 || m_page == pageCount)
        return;
    const qint64 targets[] = {1, m_page - 1, m_page + 1, pageCount};
    showPage(targets[kind - 1]);
}

void frm_FullScreen::goToTypedPage()
{
    const std::optional<TypedPage> typed = TypedPage::read(m_parts.txtPage->text());
    if (!typed)
        return;
    if (typed->number < 1) {
        Messages::tell(this, GridTexts::NotAPageNumber);
        return;
    }
    showPage(typed->number);
    // The label tells the page that is shown, the box keeps what was typed.
    m_parts.txtPage->setText(typed->text);
}

void frm_FullScreen::UpdateRecordPosition()
{
    if (isOpen())
        StoreRecordPosition(*m_recordset);
}

// So that the keyboard always has a cell to start from: the current record's row, else the first, and a
// column that is seen.
void frm_FullScreen::makeShownCellCurrent()
{
    VSFlexGrid &grid = *m_parts.vsfgShowData;
    if (!isOpen() || grid.UsedRows() < 2 || grid.Cols() < 2)
        return;
    if (grid.Row() == 0) {
        const qint64 row = m_recordset->AbsolutePosition() - firstRecord() + 1;
        grid.PutRow(row >= 1 && row < grid.UsedRows() ? static_cast<int>(row) : 1);
    }
    grid.PutCol(grid.ShownCol());
}

void frm_FullScreen::tellIfEmpty()
{
    if (!isOpen() || hasRecords())
        m_parts.lblEmpty->tell({});
    else
        m_parts.lblEmpty->tellNoRecords(m_filter && m_filter->SQLManager().Count() > 1);
}

void frm_FullScreen::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    makeShownCellCurrent();
    m_parts.vsfgShowData->scrollTo(m_parts.vsfgShowData->currentIndex());
}

void frm_FullScreen::keyPressEvent(QKeyEvent *event)
{
    // The key that opened the viewer closes it.
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
    } else if (watched == &grid && event->type() == QEvent::KeyPress) {
        if (isMenuKey(*static_cast<QKeyEvent *>(event))) {
            popUp(menuPlace(grid), grid.Row() > 0);
            return true;
        }
    } else if (watched == &grid && event->type() == QEvent::ContextMenu) {
        return true; // the menu key comes as a key as well, and once is enough
    }
    return QDialog::eventFilter(watched, event);
}

void frm_FullScreen::popUp(const QPoint &globalPosition, bool isOnCell)
{
    UpdateRecordPosition();
    if (!hasRecords())
        return;
    EnablePopupItems(isOnCell);
    m_menu->popup(globalPosition);
}

void frm_FullScreen::EnablePopupItems(bool isOnCell)
{
    m_menu->EnablePopupItems(*m_parts.Toolbar1, isOnCell && !m_parts.vsfgShowData->Text().isEmpty());
}

} // namespace KOVAVSFDataGridLib
