#include "control/commands/FieldCommands.h"

#include "control/commands/FilterManagerRollback.h"
#include "control/commands/RecordCommands.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "query/SqlText.h"

namespace KOVAVSFDataGridLib {

namespace {

// The kinds of statement that the filter manager derives.
constexpr qint32 AllFieldsStatement = 1;
constexpr qint32 PartFieldsStatement = 2;

bool hasPartStatement(const colShowSQLSentences &history)
{
    const clsShowSQLSentence *latest = history.Item(history.Count());
    QString partStatement;
    return latest && latest->GetCurrUsePartFieldSQL(partStatement);
}

QStringList namesOf(ControlHub &hub, const QString &statement)
{
    QStringList names;
    for (const SourceField &field :
         hub.reader.Read(hub.connectionString, statement).value_or(std::vector<SourceField>()))
        names.append(field.name);
    return names;
}

// What "All" and "Part" share once they know their statement.
void showFields(ControlHub &hub, const QString &statement, KOVAVSFDataGrid::ShowModelChoose model,
                FilterManagerRollback &rollback)
{
    ShownStatement &shown = hub.commands.statement;
    const QStringList fields = hub.columns().fieldsShownBy(GetShowAllFieldsFlag(model));
    const bool needsOpening = !statement.isEmpty() && !hub.columns().hasColumnsFor(fields);
    if (needsOpening && !(SaveRecord(hub) && shown.OpenShowSQL(statement)))
        return;
    rollback.keepChanges();
    shown.setCurrent(statement);
    hub.setPartAllButton(model + 1);
    hub.showModel = model;
    hub.commands.singleRecord.refillIfShown();
    shown.record(statement, colShowSQLSentences::NoPartField(), colShowSQLSentences::NoSort());
}

} // namespace

void ShowAllFields(ControlHub &hub)
{
    hub.columns().SaveColumnWidths(0);
    FilterManagerRollback rollback(hub);
    showFields(hub, rollback.manager().GetCurrentSQL20(AllFieldsStatement), KOVAVSFDataGrid::ModelAll,
               rollback);
}

void ShowPartFields(ControlHub &hub)
{
    hub.columns().SaveColumnWidths(0);
    FilterManagerRollback rollback(hub);
    const QString statement = hasPartStatement(rollback.manager().SQLManager())
                                  ? rollback.manager().GetCurrentSQL20(PartFieldsStatement)
                                  : QString();
    if (statement.isEmpty())
        hub.setPartAllButton(1);
    else
        showFields(hub, statement, KOVAVSFDataGrid::ModelPart, rollback);
}

void SelectShowFields(ControlHub &hub, QString &strSQL)
{
    FilterManagerRollback rollback(hub);
    clsFilterManagement &manager = rollback.manager();
    colShowSQLSentences &history = manager.SQLManager();
    manager.SetDBConnString(hub.connectionString);
    const clsShowSQLSentence *entry = history.Item(history.Count());
    if (!entry)
        return;
    const clsShowSQLSentence latest = *entry; // the history can change while the dialog is open
    QString partFields;
    latest.GetCurrUsePartFieldSQL(partFields);

    QString statement;
    if (!manager.GetPartShowSelFields(latest.AllFields, partFields, latest.ShowSQL, statement) ||
        statement.isEmpty() || !rollback.isResultUntouched())
        return;
    const QString chosenFields = SplitSQLSentence(statement)->fields;
    hub.columns().SaveColumnWidths(0);
    if (!hub.columns().hasColumnsFor(namesOf(hub, chosenFields)) &&
        !hub.commands.statement.OpenShowSQL(statement))
        return;
    rollback.keepChanges();
    const ResultWatch watch(hub);
    hub.q.PutSQLFilter(statement);
    if (!watch.isUntouched())
        return;
    hub.setPartAllButton(2);
    hub.showModel = KOVAVSFDataGrid::ModelPart;
    hub.commands.statement.record(statement, chosenFields, colShowSQLSentences::NoSort());
    strSQL = statement;
    const QPointer<KOVAVSFDataGrid> alive(&hub.q);
    Q_EMIT hub.q.ShowFieldsChange(statement);
    if (alive)
        hub.commands.singleRecord.leave();
}

} // namespace KOVAVSFDataGridLib
