#include "control/viewer/ViewerWindow.h"

#include "ado/Recordset.h"
#include "control/parts/lines/EmptyHint.h"
#include "control/parts/lines/FilterBar.h"
#include "control/viewer/ViewerCells.h"
#include "control/viewer/ViewerParts.h"
#include "control/viewer/ViewerTexts.h"
#include "grid/FlexGrid.h"
#include "grid/cells/TextCells.h"
#include "session/Session.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"
#include "session/pages/Pages.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

#include <algorithm>

namespace KOVAVSFDataGridLib {

ViewerWindow::ViewerWindow(QWidget &window, const ViewerParts &parts)
    : GridWindow(*parts.vsfgShowData, *parts.Toolbar1),
      m_window(window),
      m_parts(parts),
      m_waits(window, [this] { return m_parts.foot(); })
{
}

void ViewerWindow::showRecords(std::shared_ptr<ADODB::Recordset> recordset, qint64 first, int count)
{
    if (!recordset) {
        m_grid.Show(std::make_unique<TextCells>(1, 1));
        return;
    }
    m_grid.PutRedraw(false);
    m_grid.Show(std::make_unique<ViewerCells>(std::move(recordset), static_cast<int>(first),
                                              std::min(count, ViewerCells::sheetRows - 1)));
    m_grid.PutColWidth(0, ColumnLayout::rowHeadingMargin); // it has no texts that could determine its width
    m_grid.PutRedraw(true);
}

void ViewerWindow::showPageNumber(int page, qint64 pageCount)
{
    const QString shown = QString::number(page);
    m_parts.txtPage->setText(shown);
    m_parts.lblPageCount->setText(ViewerTexts::PageOfPages.arg(shown, QString::number(pageCount)));
}

void ViewerWindow::showTypedPage(const QString &text)
{
    m_parts.txtPage->setText(text);
}

void ViewerWindow::refreshStatus()
{
    makeShownCellCurrent();
    const bool isEmpty = m_session->result().isOpen() && m_session->result().recordset()->RecordCount() == 0;
    if (isEmpty)
        m_parts.lblEmpty->showNoRecords(m_session->sharedHistory().canGoBack(), false);
    else
        m_parts.lblEmpty->showText({});
}

void ViewerWindow::showConditions(const QStringList &words)
{
    m_parts.conditions->show(words);
}

void ViewerWindow::makeShownCellCurrent()
{
    if (!m_session->result().isOpen() || m_grid.UsedRows() < 2 || m_grid.Cols() < 2)
        return;
    if (m_grid.Row() == 0) {
        const int row = m_session->pages().rowOfRecord(m_session->result().recordset()->AbsolutePosition());
        m_grid.PutRow(row > 0 && row < m_grid.UsedRows() ? row : 1);
    }
    m_grid.PutCol(m_grid.ShownCol());
}

QRect ViewerWindow::progressPlace() const
{
    return m_parts.foot();
}

} // namespace KOVAVSFDataGridLib
