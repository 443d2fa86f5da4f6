#include "ado/Adodc.h"
#include "ado/Recordset.h"
#include "control/face/ControlError.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/parts/GridTexts.h"
#include "control/parts/Survives.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"
#include "language/Language.h"
#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/SessionWindow.h"
#include "session/commands/CommandKeys.h"
#include "session/editing/EditedRecord.h"
#include "session/layout/ShownColumns.h"
#include "sql/StatementLines.h"
#include "sql/select/SelectParts.h"

// The properties of the interface. Setting most of them notifies the host, which may delete the control.

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

// The public enumerations duplicate the internal ones, which hosts can't include.
static_assert(int{KOVAVSFDataGrid::dbAccess} == int{dbAccess} &&
              int{KOVAVSFDataGrid::dbOracle} == int{dbOracle} &&
              int{KOVAVSFDataGrid::dbSQLServer} == int{dbSQLServer});
static_assert(int{KOVAVSFDataGrid::DataTable} == int{FromTable} &&
              int{KOVAVSFDataGrid::DataView} == int{FromView} &&
              int{KOVAVSFDataGrid::DefSQL} == int{FromOwnStatement});
static_assert(KOVAVSFDataGrid::ModelAll == static_cast<int>(FieldView::All) &&
              KOVAVSFDataGrid::ModelPart == static_cast<int>(FieldView::Part));

// The field list is found only by its keywords, which comments and unusual whitespace can hide.
bool selectsFromTable(const QString &statement)
{
    const SqlScanner scanned(statement);
    return !SelectParts::of(scanned).source.isEmpty();
}

} // namespace

QString KOVAVSFDataGrid::STR_SQLTEMP() const
{
    return d->sqlTemp;
}

void KOVAVSFDataGrid::PutSTR_SQLTEMP(const QString &text)
{
    d->sqlTemp = text;
}

qint32 KOVAVSFDataGrid::UseModel() const
{
    if (d->isUserMode())
        throw ControlError(ControlError::GetNotSupportedAtRuntime, GridTexts::CantReadAtRunTime);
    return d->useModel;
}

void KOVAVSFDataGrid::PutUseModel(qint32 model)
{
    if (d->isUserMode())
        throw ControlError(ControlError::SetNotSupportedAtRuntime, GridTexts::CantSetAtRunTime);
    d->useModel = static_cast<UseModelChoose>(model);
    d->parts.Toolbar1->setButtonVisible(CommandKeys::Filter, model == ModelUsing);
    d->parts.Toolbar1->setButtonVisible(CommandKeys::Sort, model == ModelUsing);
}

KOVAVSFDataGrid::UseModelChoose KOVAVSFDataGrid::lateUseModel()
{
    try {
        return static_cast<UseModelChoose>(UseModel());
    } catch (const ControlError &error) {
        Q_EMIT HostError(error.number(), error.description());
        return ModelUsing;
    }
}

void KOVAVSFDataGrid::putLateUseModel(qint32 model)
{
    try {
        PutUseModel(model);
    } catch (const ControlError &error) {
        Q_EMIT HostError(error.number(), error.description());
    }
}

qint32 KOVAVSFDataGrid::ShowModel() const
{
    return static_cast<qint32>(d->session->fields().view());
}

void KOVAVSFDataGrid::PutShowModel(qint32 model)
{
    d->session->fields().putView(static_cast<FieldView>(model));
}

QString KOVAVSFDataGrid::ConnectionString() const
{
    return d->session->texts.connectionString;
}

// The texts for the old connection are cleared one after another, each with its own event: a host that loads
// in the first event still finds its statement.
void KOVAVSFDataGrid::PutConnectionString(const QString &text)
{
    SharedValues &shared = d->session->shared; // of the process
    bool isThere = d->put(d->session->texts.connectionString, text, "ConnectionString");
    shared.parsed.ClearSQLFieldList();
    for (const auto put : {&KOVAVSFDataGrid::PutSQLShow, &KOVAVSFDataGrid::PutSQLFilter,
                           &KOVAVSFDataGrid::PutSQLSort, &KOVAVSFDataGrid::PutSQLPartDisplay})
        isThere = isThere && survives(*this, put, QString());
    if (!isThere)
        return;
    shared.connectionString = text;
    d->session->filterManager().ClearFilter();
    d->session->window().refreshCommands(); // those that need the history
}

QString KOVAVSFDataGrid::SQLShow() const
{
    return d->session->texts.sqlShow;
}

void KOVAVSFDataGrid::PutSQLShow(const QString &statement)
{
    d->session->shared.sqlShow = statement;
    d->session->shared.sqlShowCopy = statement;
    if (d->put(d->session->texts.sqlShow, statement, "SQLShow"))
        PutSQLPartDisplay(statement);
}

QObject *KOVAVSFDataGrid::RecordSet() const
{
    return d->session->result().isOpen() ? d->parts.Adodc1->recordsetObject() : nullptr;
}

QString KOVAVSFDataGrid::RecordSource() const
{
    return d->session->texts.recordSource;
}

QString KOVAVSFDataGrid::SQLPartDisplay() const
{
    return d->session->texts.sqlPartDisplay;
}

void KOVAVSFDataGrid::PutSQLPartDisplay(const QString &statement)
{
    d->session->texts.sqlPartDisplay = statement;
    const QString joined = joinStatementLines(statement);
    const auto failure = d->session->shared.parsed.ParseSQLFieldList(joined, d->session->shared.dbType);
    const auto showFailure = [&](QWidget &control) {
        if (survives(control, [](QWidget &parent) {
                Messages::show(&parent, GridTexts::FieldListFailed, GridTexts::FieldListFailedTitle,
                               QMessageBox::Critical);
            }))
            Messages::show(&control, failure->source + failure->description);
    };
    if (!failure || selectsFromTable(joined) || survives(*this, showFailure))
        d->notifyWritten("SQLPartDisplay");
}

QString KOVAVSFDataGrid::SQLFilter() const
{
    return d->session->texts.sqlFilter;
}

void KOVAVSFDataGrid::PutSQLFilter(const QString &statement)
{
    d->put(d->session->texts.sqlFilter, statement, "SQLFilter");
}

QString KOVAVSFDataGrid::SQLSort() const
{
    return d->session->texts.sqlSort;
}

void KOVAVSFDataGrid::PutSQLSort(const QString &sort)
{
    d->put(d->session->texts.sqlSort, sort, "SQLSort");
}

qint32 KOVAVSFDataGrid::TableType() const
{
    return d->session->texts.tableType;
}

void KOVAVSFDataGrid::PutTableType(qint32 type)
{
    d->session->shared.tableType = static_cast<qint16>(type);
    d->put(d->session->texts.tableType, static_cast<StatementSource>(type), "TableType");
}

bool KOVAVSFDataGrid::ErrorHint() const
{
    return d->errorHint;
}

void KOVAVSFDataGrid::PutErrorHint(bool on)
{
    d->put(d->errorHint, on, "ErrorHint");
}

qint32 KOVAVSFDataGrid::DBType() const
{
    return d->session->shared.dbType;
}

void KOVAVSFDataGrid::PutDBType(qint32 type)
{
    d->session->shared.dbType16 = static_cast<qint16>(type);
    d->put(d->session->shared.dbType, static_cast<KOVAVSFDataGridLib::AllDBType>(type), "DBType");
}

QString KOVAVSFDataGrid::SysDBCnn() const
{
    return d->sysDBCnn;
}

void KOVAVSFDataGrid::PutSysDBCnn(const QString &text)
{
    d->put(d->sysDBCnn, text, "SysDBCnn");
}

QString KOVAVSFDataGrid::SysDBMode() const
{
    return d->sysDBMode;
}

void KOVAVSFDataGrid::PutSysDBMode(const QString &text)
{
    d->put(d->sysDBMode, text, "SysDBMode");
}

QString KOVAVSFDataGrid::PassQurryFilter() const
{
    return d->session->texts.passQurryFilter;
}

void KOVAVSFDataGrid::PutPassQurryFilter(const QString &condition)
{
    d->session->texts.passQurryFilter = condition;
}

qint32 KOVAVSFDataGrid::CurrPosition() const
{
    return d->session->result().isOpen()
               ? static_cast<qint32>(d->session->result().recordset()->AbsolutePosition())
               : 0;
}

qint32 KOVAVSFDataGrid::GetBindFieldIndex(const QString &strFieldName) const
{
    const VSFlexGrid &grid = *d->parts.vsfgDataGrid;
    for (int col = 1; col < grid.Cols(); ++col) {
        if (grid.TextMatrix(0, col) == strFieldName)
            return col;
    }
    return -1;
}

QString KOVAVSFDataGrid::PicField() const
{
    return d->session->texts.picField;
}

void KOVAVSFDataGrid::PutPicField(const QString &field)
{
    d->session->texts.picField = field;
}

bool KOVAVSFDataGrid::ReadOnly() const
{
    return d->session->record().isReadOnly();
}

void KOVAVSFDataGrid::PutReadOnly(bool on)
{
    d->session->record().setReadOnly(on);
    d->notifyWritten("ReadOnly");
}

QString KOVAVSFDataGrid::LayoutKey() const
{
    return d->layout.key();
}

void KOVAVSFDataGrid::PutLayoutKey(const QString &strKey)
{
    const auto session = d->session;
    if (survives(d->layout, &LayoutKeeper::setKey, strKey))
        d->notifyWritten("LayoutKey");
}

QString KOVAVSFDataGrid::Language() const
{
    return KOVAVSFDataGridLib::Language::chosen();
}

void KOVAVSFDataGrid::PutLanguage(const QString &strName)
{
    bool isChanged = false;
    const auto use = [&](KOVAVSFDataGrid &) { isChanged = KOVAVSFDataGridLib::Language::use(strName); };
    if (survives(*this, use) && isChanged) // a window of the host may react to the change
        d->notifyWritten("Language");
}

bool KOVAVSFDataGrid::UserMode() const
{
    return d->isUserMode();
}

void KOVAVSFDataGrid::PutUserMode(bool on)
{
    d->userMode = on;
}
