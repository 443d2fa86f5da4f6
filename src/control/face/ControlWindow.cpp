#include "control/face/ControlWindow.h"

#include "ado/Recordset.h"
#include "control/input/SingleRecordView.h"
#include "control/parts/GridParts.h"
#include "control/parts/GridTexts.h"
#include "control/parts/lines/ElidedLabel.h"
#include "control/parts/lines/EmptyHint.h"
#include "control/parts/lines/FilterBar.h"
#include "control/parts/lines/StatementLine.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "grid/cells/RecordWindow.h"
#include "grid/cells/TextCells.h"
#include "language/GroupedNumber.h"
#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/commands/CommandKeys.h"
#include "session/editing/EditedRecord.h"

#include <QtCore/QItemSelectionModel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

QString pageLabel(const QString &page, const QString &pageCount)
{
    return GridTexts::PagePrefix + page + GridTexts::PageCountPrefix + pageCount + GridTexts::PageCapPrefix +
           QString::number(SharedValues::recordCap) + GridTexts::PageCapSuffix;
}

} // namespace

ControlWindow::ControlWindow(QWidget &control, GridParts &parts)
    : GridWindow(*parts.vsfgDataGrid, *parts.Toolbar1),
      m_control(control),
      m_parts(parts),
      m_waits(control, [this] { return m_parts.foot(); })
{
    m_parts.lblFieldCount->setText(pageLabel({}, {}));
    QObject::connect(parts.MSFlexGrid1->selectionModel(), &QItemSelectionModel::currentChanged,
                     parts.MSFlexGrid1, [this] { followCurrentCell(); });
}

void ControlWindow::showRecords(std::shared_ptr<ADODB::Recordset> recordset, qint64 first, int count)
{
    if (!recordset) {
        m_grid.Show(std::make_unique<TextCells>(1, m_grid.Cols()));
        return;
    }
    m_grid.PutRedraw(false);
    m_grid.Show(std::make_unique<RecordWindow>(std::move(recordset), static_cast<int>(first), count));
    if (count > 0)
        m_grid.PutRow(1);
    m_grid.PutRedraw(true);
}

void ControlWindow::showPageNumber(int page, qint64 pageCount)
{
    m_parts.txtPage->setText(QString::number(page));
    m_parts.lblFieldCount->setText(pageLabel(QString::number(page), QString::number(pageCount)));
    m_parts.layOutFoot();
}

int ControlWindow::currentCol() const
{
    return isSingleRecordShown() ? m_singleRecord->currentGridCol() : m_grid.ShownCol();
}

MarkedCells ControlWindow::markedCells() const
{
    if (!isSingleRecordShown())
        return GridWindow::markedCells();
    return {m_grid.Row(), m_grid.Row(), m_singleRecord->markedColumns()};
}

MarkedFields ControlWindow::markedFields() const
{
    return m_singleRecord ? m_singleRecord->markedFields() : MarkedFields();
}

std::vector<int> ControlWindow::shownColumns() const
{
    return isSingleRecordShown() ? m_singleRecord->listedColumns() : GridWindow::shownColumns();
}

bool ControlWindow::isSingleRecordShown() const
{
    return !m_toolbar.isButtonVisible(CommandKeys::SingleRecord);
}

void ControlWindow::showSingleRecord()
{
    if (m_singleRecord)
        m_singleRecord->show();
    offerToSave();
}

void ControlWindow::showAllRecords()
{
    if (m_singleRecord)
        m_singleRecord->hide();
    offerToSave();
}

void ControlWindow::refreshSingleRecord()
{
    if (isSingleRecordShown())
        m_singleRecord->FillSingleRecordView();
}

std::optional<QString> ControlWindow::commitEdit()
{
    return m_singleRecord ? m_singleRecord->editor().commit() : std::nullopt;
}

void ControlWindow::focusEdit()
{
    if (m_singleRecord)
        m_singleRecord->editor().setFocus();
}

void ControlWindow::cancelEdit()
{
    if (m_singleRecord)
        m_singleRecord->editor().close();
}

// Whether a change was written to the record or is being typed, and is not saved yet.
bool ControlWindow::isUnsaved() const
{
    return m_session->record().hasUnsavedChanges() ||
           (m_singleRecord && m_singleRecord->editor().isChanged());
}

void ControlWindow::offerToSave()
{
    const bool isOffered = isSingleRecordShown() && isUnsaved() && !m_session->record().isReadOnly();
    QPushButton &save = *m_parts.cmdSaveRecord;
    if (save.isHidden() != isOffered)
        return;
    if (save.hasFocus())
        m_control.setFocus(); // the button disappears
    save.setVisible(isOffered);
    m_parts.layOutFoot();
}

// Which record is current, in words; each time in fewer, of which what isn't saved is the last to go.
QStringList ControlWindow::places() const
{
    const ADODB::Recordset &recordset = *m_session->result().recordset();
    const QString position = grouped(std::max<qint64>(0, recordset.AbsolutePosition()));
    const QString count = grouped(recordset.RecordCount());
    QStringList places = recordset.EditMode() == ADODB::adEditAdd
                             ? QStringList{GridTexts::NewRecord.arg(count), GridTexts::NewRecordBriefly}
                             : QStringList{GridTexts::RecordOf.arg(position, count),
                                           GridTexts::RecordOfBriefly.arg(position, count)};
    if (!isUnsaved())
        return places;
    for (QString &place : places)
        place += GridTexts::Unsaved;
    places.append(GridTexts::Unsaved().trimmed());
    return places;
}

void ControlWindow::refreshStatus()
{
    offerToSave();
    if (!m_session->result().isOpen()) {
        m_parts.lblStatement->show({}, {});
        m_parts.lblEmpty->showText(GridTexts::NothingLoaded);
        m_parts.describeGrid();
        return;
    }
    QString statement;
    m_session->history().GetLatestSQL(statement);
    m_parts.lblStatement->show(places(), statement);
    m_parts.describeGrid();
    if (m_session->result().recordset()->RecordCount() > 0)
        m_parts.lblEmpty->showText({});
    else
        m_parts.lblEmpty->showNoRecords(m_session->history().Count() > 1,
                                        m_session->record().canAddRecords());
}

void ControlWindow::enableCommands()
{
    m_parts.layOut(m_control.width(), m_control.height()); // columns can be fitted before it is first shown
    m_grid.setEnabled(true);
    m_toolbar.setEnabled(true);
    m_parts.cmdPgae->setEnabled(true);
    m_toolbar.setAllButtonsEnabled(true);
    if (m_session->texts.tableType == FromOwnStatement)
        m_toolbar.setButtonEnabled(CommandKeys::ToFullTable, false);
}

void ControlWindow::showFullScreen()
{
    if (m_fullScreen)
        m_fullScreen();
}

void ControlWindow::showConditions(const QStringList &words)
{
    const bool wasHidden = m_parts.conditions->isHidden();
    m_parts.conditions->show(words);
    m_parts.describeGrid();
    if (m_parts.conditions->isHidden() != wasHidden)
        m_parts.layOut(m_control.width(), m_control.height());
}

QRect ControlWindow::progressPlace() const
{
    return m_parts.foot();
}

} // namespace KOVAVSFDataGridLib
