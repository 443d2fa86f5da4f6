#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/parts/GridTexts.h"
#include "control/parts/GridToolbar.h"
#include "control/parts/LoadProgress.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"
#include "query/SqlText.h"
#include "session/StoreRecordPosition.h"

#include <QtCore/QPointer>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>

// The load: from the host's texts to a filled grid with the first entry of the history.

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

std::unique_ptr<clsFilterManagement> KOVAVSFDataGrid::Private::newFilterManager()
{
    return std::make_unique<clsFilterManagement>(&reader, &chooser);
}

const std::shared_ptr<clsFilterManagement> &KOVAVSFDataGrid::Private::filterManagerToShare()
{
    if (!filter)
        filter = newFilterManager();
    return filter;
}

std::unique_ptr<clsFilterManagement> KOVAVSFDataGrid::Private::filterManagerForLoad()
{
    const QString allFields = JoinStatementLines(sqlShow);
    auto manager = newFilterManager();
    manager->SetDBType(static_cast<KOVAVSFDataGridLib::AllDBType>(shared.dbType));
    manager->SetTBLType(tableType);
    manager->SetFieldStatus(showModel);
    manager->SetDBConnString(connectionString);
    manager->SetAllFields(allFields);
    manager->SetOriginFilter(allFields);
    manager->SetShowFields(JoinStatementLines(sqlPartDisplay));
    manager->SetOrderFields(JoinStatementLines(sqlSort));
    manager->SetSQLInitData();
    return manager;
}

// For Oracle the field list is spelled out, so that each field can be named and long binary ones come last.
std::optional<QString> KOVAVSFDataGrid::Private::statementToOpen(clsFilterManagement &manager) const
{
    const QString first = manager.GetCurrentSQL20(0);
    // What is missing is told when the statement is opened.
    if (shared.dbType != dbOracle || connectionString.isEmpty() || first.isEmpty())
        return first;
    QString rewritten;
    if (!manager.SQLManager().GetAllFieldNameSQL(connectionString, first, rewritten))
        return {};
    manager.SetAllFields(rewritten);
    manager.SetOriginFilter(rewritten);
    manager.SetSQLInitData();
    return rewritten;
}

// Everything is made ready beside what is shown and takes its place only when the statement has opened, so
// that a failed load leaves grid, history and position as they were.
bool KOVAVSFDataGrid::Private::load()
{
    if (shared.isOpening)
        return false;
    reader.forget();
    giveThreeTierSwitch();
    auto manager = filterManagerForLoad();
    const std::optional<QString> statement = statementToOpen(*manager);
    const QStringList fieldsBefore = parts.vsfgDataGrid->Headings();
    const QPointer<KOVAVSFDataGrid> alive(&q);
    switch (statement ? open(*statement, shared.dbType) : tellOpenError(reader.Failure())) {
    case Opening::Done:
        break;
    case Opening::Failed:
        if (alive)
            Messages::tell(&q, GridTexts::OpenFailed);
        return false;
    case Opening::Overtaken:
        return alive && result.isOpen(); // by another load, say, which has done all that follows
    }
    filter = std::move(manager);
    recordSource = *statement;
    commands.statement.setCurrent(*statement);

    parts.layOut(q.width(), q.height()); // the columns are fitted even before the control is first shown
    showPage(1);
    if (!alive)
        return false;
    // Widths belong to fields: the same ones loaded again keep theirs.
    if (parts.vsfgDataGrid->Headings() != fieldsBefore)
        parts.vsfgDataGrid->ResetColWidths();
    showMultiRecordView();
    enableForData();

    takeRecordCount();
    if (shared.hasRecords && parts.vsfgDataGrid->Cols() > 1) {
        parts.vsfgDataGrid->PutRow(1);
        parts.vsfgDataGrid->PutCol(1);
    }
    setPartAllButton(showModel + 1);
    layOutColumns(*statement);
    if (!isSingleRecordShown() && columns().columnsFit())
        columns().fitColumns();
    updateRecordPosition();
    return true;
}

KOVAVSFDataGrid::Private::Opening KOVAVSFDataGrid::Private::open(const QString &statement, qint32 dbType)
{
    if (shared.isOpening)
        return Opening::Failed;
    const QPointer<KOVAVSFDataGrid> alive(&q);
    QString failure;
    try {
        const ResultSet::Opened opened = read(statement, dbType);
        if (!alive)
            return Opening::Failed;
        result.replaceBy(opened);
        const bool isShown = alive && result.recordset() == opened.recordset && result.isOpen();
        return isShown ? Opening::Done : Opening::Overtaken;
    } catch (const ADODB::Error &error) {
        failure = error.Description();
    } catch (const std::exception &error) { // from a connection factory of the host's
        failure = QString::fromUtf8(error.what());
    }
    return alive ? tellOpenError(failure) : Opening::Failed;
}

KOVAVSFDataGrid::Private::Opening KOVAVSFDataGrid::Private::tellOpenError(const QString &description)
{
    Messages::tell(&q, GridTexts::OpenErrorPrefix + description);
    return Opening::Failed;
}

bool KOVAVSFDataGrid::Private::closeResult()
{
    const QPointer<KOVAVSFDataGrid> alive(&q);
    result.close();
    return alive && !result.isOpen();
}

ResultSet::Opened KOVAVSFDataGrid::Private::read(const QString &statement, qint32 dbType)
{
    LoadProgress progress(q, [this] { return parts.foot(); });
    return ResultSet::open(connectionString, statement, dbType,
                           [&progress](qint64 rowsRead) { return progress.goOn(rowsRead); });
}

void KOVAVSFDataGrid::Private::enableForData()
{
    parts.vsfgDataGrid->setEnabled(true);
    parts.Toolbar1->setEnabled(true);
    parts.cmdPgae->setEnabled(true);
    parts.Toolbar1->setAllButtonsEnabled(true);
    if (tableType == DefSQL)
        parts.Toolbar1->setButtonEnabled(u"ToFullTable"_s, false);
}

void KOVAVSFDataGrid::Private::layOutColumns(const QString &statement)
{
    const bool isAllFields = statement.trimmed().toUpper().startsWith(u"SELECT *");
    columns().RecordShowSQL(statement, isAllFields ? 1 : 0, 1, colShowSQLSentences::NoPartField(),
                            colShowSQLSentences::NoSort(), connectionString);
    // The entry keeps what the statement says; what is seen is what the pressed button says.
    if (showModel == ModelPart)
        columns().ShowPartFieldColumns(1);
    else
        columns().ShowAllFieldColumns();
}

ColumnLayout KOVAVSFDataGrid::Private::columns()
{
    return ColumnLayout(*parts.vsfgDataGrid, filterManager().SQLManager());
}

bool KOVAVSFDataGrid::Private::showPage(qint64 page)
{
    const int pageBefore = pages.currentPage();
    pages.setCurrentPage(page);
    try {
        pages.fill(picField);
        return true;
    } catch (const ADODB::Error &error) {
        pages.setCurrentPage(pageBefore);
        Messages::tell(&q, GridTexts::PageErrorPrefix + error.Description());
        return false;
    }
}

void KOVAVSFDataGrid::Private::updateRecordPosition()
{
    if (!result.isOpen())
        return;
    StoreRecordPosition(*result.recordset());
    tellStatement();
}

void KOVAVSFDataGrid::Private::takeRecordCount()
{
    shared.recordCount =
        static_cast<qint32>(std::min<qint64>(result.recordset()->RecordCount(), SharedValues::RecordCap));
    shared.hasRecords = shared.recordCount >= 1 ? 1 : 0;
}

bool KOVAVSFDataGrid::Private::hasRecords()
{
    updateRecordPosition();
    return result.isOpen() && shared.recordCountSnapshot != 0;
}

void KOVAVSFDataGrid::Private::setPartAllButton(qint32 mode)
{
    if (mode == 1)
        parts.Toolbar1->setButtonPressed(u"All"_s, true);
    else if (mode == 2)
        parts.Toolbar1->setButtonPressed(u"Part"_s, true);
}

bool KOVAVSFDataGrid::Private::isSingleRecordShown() const
{
    return !parts.Toolbar1->isButtonVisible(u"SingleRecord"_s);
}

void KOVAVSFDataGrid::Private::showMultiRecordView()
{
    parts.vsfgDataGrid->show();
    q.setFocusProxy(parts.vsfgDataGrid);
    parts.MSFlexGrid1->hide();
    parts.txtEdit->hide();
    parts.Toolbar1->setButtonVisible(u"SingleRecord"_s, true);
    parts.Toolbar1->setButtonVisible(u"AllRecord"_s, false);
}
