#include "ado/Recordset.h"
#include "control/commands/FilterCommands.h"
#include "control/commands/FilterManagerRollback.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
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

// Nothing when the words can't be searched for, or not any more.
std::optional<QString> askUser(ControlHub &hub, const FilterManagerRollback &ground, const QString &latest)
{
    const colDataFields catalogue = ground.manager().SQLManager().DataFields();
    FindDialog dialog(&hub.q);
    if (!dialog.InitFrm(&catalogue))
        return {};
    dialog.exec();
    QString condition;
    if (!ground.isResultUntouched() ||
        !BuildLikeCondition(dialog.strFindText(),
                            searchedFields(dialog, catalogue, hub.result.recordset()->Fields()), latest,
                            ground.manager().DBType(), condition, hub.result.engine()))
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
    if (!rollback.manager().SQLManager().GetLatestSQL(latest))
        return;
    const std::optional<QString> condition = askUser(hub, rollback, latest);
    if (!condition)
        return;
    hub.shared.lastFilter = *condition;
    if (condition->trimmed().isEmpty()) {
        hub.q.PutSQLFilter({});
        return;
    }
    QString statement;
    if (rollback.manager().SQLManager().GetNextSQLByFilter(*condition, statement) &&
        hub.commands.statement.reloadFiltered(statement, ShownStatement::Previous::Keep))
        rollback.keepChanges();
}

} // namespace KOVAVSFDataGridLib
