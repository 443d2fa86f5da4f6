#include "ado/Adodc.h"
#include "ado/ConnectionFactory.h"
#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "control/connection/BuildConnection.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/parts/GridTexts.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "control/settings/Configuration.h"
#include "filter/FilterTexts.h"
#include "filter/saved/SavedFilterMenu.h"
#include "forms/ConnectDialog.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"
#include "print/PdfWriter.h"
#include "print/PrintOptions.h"
#include "session/LoadResult.h"
#include "session/ResultWatch.h"
#include "session/commands/CommandKeys.h"
#include "session/editing/EditedRecord.h"
#include "session/layout/SavedLayout.h"
#include "session/layout/ShownColumns.h"
#include "session/pages/Pages.h"
#include "session/records/ExportResult.h"
#include "session/records/PrintResult.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <stdexcept>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

// The methods of the interface; its properties are in KOVAVSFDataGridProperties.cpp.

namespace {

// Saves what a move would save, and also shows it: a new record adds a row.
void saveBeforeMove(Session &session)
{
    const ADODB::EditModeEnum mode = session.result().recordset()->EditMode();
    if (mode != ADODB::adEditAdd && mode != ADODB::adEditInProgress)
        return;
    const ADODB::Notifications::Hold hold(session.notifications());
    session.record().saveChanges();
}

} // namespace

void KOVAVSFDataGrid::Refresh()
{
    const LoadRequest &texts = d->session->texts;
    const bool isIncomplete = texts.connectionString.isEmpty() || texts.recordSource.trimmed().isEmpty();
    if (isIncomplete && d->errorHint)
        Messages::show(this, GridTexts::NothingToLink, GridTexts::NothingToLinkTitle, QMessageBox::Critical);
}

// The row is one of page 1, whichever page is shown. So it is the record's number too.
bool KOVAVSFDataGrid::LocateSelRecord(qint32 lRecordRow)
{
    VSFlexGrid &grid = *d->parts.vsfgDataGrid;
    Session &session = *d->session;
    const auto isOtherPage = [&] { return session.result().isOpen() && session.pages().current() != 1; };
    const qint32 rows = isOtherPage() ? session.pages().recordsOnPage(1) + 1 : grid.Rows();
    if (lRecordRow <= 0 || lRecordRow > rows)
        return false;
    if (lRecordRow < 2 || lRecordRow == rows || !session.result().isOpen() ||
        lRecordRow == session.result().recordset()->AbsolutePosition())
        return true;
    const ResultWatch watch(session); // the control can be destroyed while a record is saved
    try {
        if (d->window.commitEdit()) // a text that doesn't fit is kept
            return true;
        if (watch.isUntouched())
            saveBeforeMove(session);
        if (!watch.isUntouched())
            return true;
        const QSignalBlocker onlyOurOwnEvent(d->parts.Adodc1);
        ADODB::Recordset &recordset = *watch.recordset();
        recordset.MoveFirst(); // a host may have moved it past the last record, where no page can be shown
        if (isOtherPage())
            session.pages().showPage(1);
        recordset.Move(lRecordRow - 1);
        grid.PutRow(lRecordRow);
        grid.PutCol(1);
    } catch (const ADODB::Error &) {
        return true; // for example, an edit could not be saved: its record stays current
    }
    if (!grid.RowIsVisible(lRecordRow))
        grid.PutTopRow(lRecordRow);
    grid.Refresh();
    d->window.refreshStatus();
    d->window.refreshSingleRecord();
    Q_EMIT RecordChanged(3, lRecordRow - 1); // last, because the host may delete the control
    return true;
}

void KOVAVSFDataGrid::ShowConnectionString()
{
    d->showText(u"Show Connection String", u"ConnectionString:"_s, d->session->texts.connectionString);
}

void KOVAVSFDataGrid::ShowRecordSource()
{
    d->showText(u"Show Record Source", u"RecordSource:"_s, d->session->texts.recordSource);
}

void KOVAVSFDataGrid::ShowSQLShow()
{
    d->showText(u"Show SQL Show", u"SQLShow:"_s, d->session->texts.sqlShow);
}

void KOVAVSFDataGrid::ShowPartDisplay()
{
    d->showText(u"Show Part Display", u"SQLPartDisplay:"_s, d->session->texts.sqlPartDisplay);
}

void KOVAVSFDataGrid::ShowFilterCondtion()
{
    d->showText(u"Show Filter Condtion", u"SQLFilter:"_s, d->session->texts.sqlFilter);
}

void KOVAVSFDataGrid::ShowSort()
{
    d->showText(u"Show Sort", u"SQLSort:"_s, d->session->texts.sqlSort);
}

void KOVAVSFDataGrid::GetConnection()
{
    ConnectDialog dialog(
        [this](QWidget *parent, const QString &present) {
            return buildConnection(parent, present, DBType());
        },
        this);
    d->runSteps(u"Get Connection", {[&] { dialog.SetConnectionString(d->session->texts.connectionString); },
                                    [&] { dialog.exec(); },
                                    [&] {
                                        if (dialog.connectionString())
                                            PutConnectionString(*dialog.connectionString());
                                    },
                                    [&] {
                                        if (dialog.sqlShow())
                                            PutSQLShow(*dialog.sqlShow());
                                    }});
}

void KOVAVSFDataGrid::SetFieldName()
{
    d->session->run(CommandKeys::SelField);
}

void KOVAVSFDataGrid::SetSQLShow()
{
    d->runSteps(u"Set SQL Show", {[this] {
                    if (const auto text = d->editText(u"SQLShow:"_s, d->session->texts.sqlShow))
                        PutSQLShow(*text);
                }});
}

void KOVAVSFDataGrid::SetSQLFilter()
{
    d->runSteps(u"Set SQL Filter", {[this] {
                    if (const auto text = d->editText(u"SQLFilter:"_s, d->session->texts.sqlFilter))
                        PutSQLFilter(*text);
                }});
}

void KOVAVSFDataGrid::SetSortFN()
{
    d->session->run(CommandKeys::Sort);
}

void KOVAVSFDataGrid::SetGridCol(const qint32 &Col)
{
    try {
        d->parts.vsfgDataGrid->PutCol(Col);
    } catch (const std::out_of_range &) {
        Messages::show(this, GridTexts::WrongCol, u"Set Grid Col"_s);
    }
}

QString KOVAVSFDataGrid::CellText(const qint16 &n_row, const qint16 &n_col)
{
    return d->cellText(n_row, n_col, u"Get CellText"_s);
}

void KOVAVSFDataGrid::Clear()
{
    const auto session = d->session;
    if (!session->record().leaveResult())
        return;
    const ADODB::Notifications::Hold hold(session->notifications());
    session->result().close();
    d->emptyGrid();
    if (d->window.isSingleRecordShown()) {
        d->parts.MSFlexGrid1->Clear();
        d->window.showAllRecords();
    }
    CloseAllAction();
}

void KOVAVSFDataGrid::ClearAll()
{
    const auto session = d->session;
    if (!session->record().leaveResult())
        return;
    const ADODB::Notifications::Hold hold(session->notifications());
    if (!session->texts.recordSource.isEmpty() && session->result().isOpen()) {
        session->result().close();
        d->emptyGrid();
    }
    CloseAllAction();
}

QObject *KOVAVSFDataGrid::GetBond()
{
    return d->parts.Adodc1;
}

qint16 KOVAVSFDataGrid::GetGridCol()
{
    return static_cast<qint16>(d->parts.vsfgDataGrid->Col());
}

void KOVAVSFDataGrid::SetGridRow(const qint32 &Row)
{
    try {
        d->parts.vsfgDataGrid->PutRow(Row);
    } catch (const std::out_of_range &) {
        Messages::show(this, GridTexts::WrongRow, u"Set Grid Row"_s);
    }
}

qint16 KOVAVSFDataGrid::GetGridRow()
{
    return static_cast<qint16>(std::min(d->parts.vsfgDataGrid->Row(), 32767));
}

void KOVAVSFDataGrid::CloseAllAction()
{
    d->parts.vsfgDataGrid->setEnabled(false);
    d->parts.cmdPgae->setEnabled(false);
    d->parts.Toolbar1->setEnabled(false);
    d->parts.Toolbar1->setAllButtonsEnabled(false);
    d->window.refreshStatus();
}

bool KOVAVSFDataGrid::IsLoadData()
{
    const auto session = d->session;
    d->setThreeTierSwitch();
    d->layout.save();
    const bool isLoaded = loadResult(*session);
    if (isLoaded) {
        d->layout.restore();
        d->focusGrid();
    }
    return isLoaded;
}

void KOVAVSFDataGrid::SeeCompressView()
{
    d->session->fields().compress();
}

void KOVAVSFDataGrid::ClearObject()
{
    const auto session = d->session;
    if (!session->record().leaveResult())
        return;
    d->layout.save();
    const ADODB::Notifications::Hold hold(session->notifications());
    saveSelectWholeRows(d->parts.CheckSelAllRow->isChecked());
    d->emptyGrid();
    session->clear();
    ADODB::ConnectionFactory::setInstance(nullptr);
}

QString KOVAVSFDataGrid::CellTextL(const qint32 &n_row, const qint32 &n_col)
{
    return d->cellText(n_row, n_col, u"Get CellTextL"_s);
}

qint32 KOVAVSFDataGrid::GetGridRowL()
{
    return d->parts.vsfgDataGrid->Row();
}

bool KOVAVSFDataGrid::ExportData(const QString &strFile, const QString &strOptions)
{
    const auto session = d->session;
    if (!session->result().isOpen()) {
        Messages::show(this, GridTexts::NothingToExport);
        return false;
    }
    ExportAnswer what;
    try {
        what = exportAnswerFrom(strFile, strOptions);
    } catch (const ADODB::Error &error) {
        Messages::show(this, error.Description());
        return false;
    }
    return exportResult(*session, what);
}

bool KOVAVSFDataGrid::PrintData(const QString &strFile, const QString &strOptions)
{
    const auto session = d->session;
    if (!session->result().isOpen()) {
        Messages::show(this, GridTexts::NothingToPrint);
        return false;
    }
    const PrintRequest request = printRequestOf(*session);
    PrintAnswer what;
    try {
        PrintOptions options = printOptionsFrom(strOptions);
        what.isMarkedOnly = options.isMarkedOnly;
        what.writer = std::make_unique<PdfWriter>(
            strFile, options.layoutFor(request.columns),
            PageOptions{options.title.value_or(request.title),
                        std::max<qint64>(0, (what.isMarkedOnly ? request.marked : request.all).count()),
                        request.formats});
    } catch (const ADODB::Error &error) {
        Messages::show(this, error.Description());
        return false;
    }
    return printResult(*session, request, what);
}

QString KOVAVSFDataGrid::SaveLayout()
{
    return d->session->result().isOpen() ? layoutOf(*d->session).toText() : QString();
}

bool KOVAVSFDataGrid::RestoreLayout(const QString &strLayout)
{
    const auto session = d->session;
    auto layout = SavedLayout::fromText(strLayout);
    if (const auto *read = std::get_if<SavedLayout>(&layout))
        layout = restoreLayout(*session, *read);
    const QString *const reason = std::get_if<QString>(&layout);
    if (!reason || reason->isEmpty())
        return true;
    session->questions().show(*reason);
    return false;
}

QString KOVAVSFDataGrid::SaveFilters()
{
    Session &session = *d->session;
    if (!session.result().isOpen())
        return {};
    const FilterShelf shelf{[place = d->filterPlace()] { return readFilters(place); }, {}};
    return shelf.filters().toText();
}

bool KOVAVSFDataGrid::RestoreFilters(const QString &strFilters)
{
    Session &session = *d->session;
    const auto filters = SavedFilters::fromText(strFilters);
    const QString *const reason = std::get_if<QString>(&filters);
    if (reason || !session.result().isOpen()) {
        Messages::show(this, reason ? *reason : FilterTexts::NoTableOfFilters);
        return false;
    }
    saveFilters(d->filterPlace(), std::get<SavedFilters>(filters).toText());
    return true;
}
