#include "ado/Recordset.h"
#include "control/KOVAVSFDataGridPrivate.h"
#include "control/commands/FilterCommands.h"
#include "control/commands/FilterManagerRollback.h"
#include "forms/FindDialog.h"
#include "query/Conditions.h"

namespace KOVAVSFDataGridLib {

namespace {

// The type that the result gives, else the one that the catalogue read from the source: the result may have
// been opened with fewer fields.
std::optional<qint32> typeOf(const clsDataField &field, const ADODB::Fields &fields)
{
    const int index = fields.IndexOf(field.FieldName);
    if (index >= 0)
        return fields.Item(index).Type();
    return field.FieldType != 0 ? std::optional(field.FieldType) : std::nullopt;
}

std::vector<TypedField> searchedFields(const FindDialog &dialog, const colDataFields &catalogue,
                                       const ADODB::Fields &fields)
{
    std::vector<TypedField> searched;
    for (const clsDataField &field : catalogue) {
        if (!dialog.bIsAppointField() || field.FieldName == dialog.strFieldName())
            searched.push_back({field.FieldName, typeOf(field, fields)});
    }
    return searched;
}

// Nothing when the words can't be searched for.
std::optional<QString> askUser(ControlHub &hub, const QString &latest)
{
    const colDataFields catalogue = hub.filterManager().SQLManager().DataFields();
    const auto recordset = hub.result.recordset();
    const AllDBType database = hub.filterManager().DBType();
    FindDialog dialog(&hub.q);
    if (!dialog.InitFrm(&catalogue))
        return {};
    dialog.exec();
    QString condition;
    if (!BuildLikeCondition(dialog.strFindText(), searchedFields(dialog, catalogue, recordset->Fields()),
                            latest, database, condition))
        return {};
    return condition;
}

} // namespace

void QuickFilter(ControlHub &hub)
{
    if (!hub.hasRecords())
        return;
    FilterManagerRollback rollback(hub);
    QString latest;
    if (!hub.filterManager().SQLManager().GetLatestSQL(latest))
        return;
    const std::optional<QString> condition = askUser(hub, latest);
    if (!condition || !rollback.isResultUntouched())
        return;
    hub.shared.lastFilter = *condition;
    if (condition->trimmed().isEmpty()) {
        hub.q.PutSQLFilter({});
        return;
    }
    QString statement;
    if (hub.filterManager().SQLManager().GetNextSQLByFilter(*condition, statement) &&
        hub.commands.statement.reloadFiltered(statement, ShownStatement::Previous::Keep))
        rollback.keepChanges();
}

} // namespace KOVAVSFDataGridLib
