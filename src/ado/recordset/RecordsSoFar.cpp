#include "ado/recordset/RecordsSoFar.h"

#include "ado/providers/Provider.h"
#include "ado/recordset/RecordsetPrivate.h"

namespace ADODB {

std::shared_ptr<const Recordset> recordsSoFar(const Recordset &opening)
{
    return opening.soFar();
}

std::optional<qint64> estimatedRecords(const Recordset &opening)
{
    const Statement *const statement = opening.d->fetching;
    return statement ? statement->estimatedRows() : std::nullopt;
}

std::shared_ptr<const Recordset> Recordset::soFar() const
{
    const Statement *const statement = d->fetching;
    const auto rows = statement ? statement->rowsSoFar() : nullptr;
    if (!rows)
        return nullptr;
    auto recordset = std::make_shared<Recordset>();
    recordset->d->fields.reset(*recordset, statement->fields());
    recordset->d->editor.emplace(nullptr, Texts::openedReadOnly());
    recordset->d->shared = std::make_shared<SharedRows>(SharedRows{Snapshot(statement->fields(), *rows), {}});
    recordset->d->position.reset(rows->rows());
    return recordset;
}

} // namespace ADODB
