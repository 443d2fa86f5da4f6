#include "ado/RecordsetPrivate.h"

// The members of Recordset that change records, and the current record's values.

namespace ADODB {

EditModeEnum Recordset::EditMode() const
{
    if (d->position.isDeleted() && !d->isAdding())
        return adEditDelete;
    return d->edit().mode();
}

// A new record that can't be saved keeps the place that another one would take.
void Recordset::saveBeforeAddNew()
{
    if (d->edit().isEmpty())
        throw Error(dbErrCancelled, Texts::emptyRecordAgain());
    try {
        Update();
    } catch (const Error &error) {
        throw Error(dbErrCancelled, error.Description(), error.Source(), error.SQLState(),
                    error.NativeError());
    }
}

void Recordset::AddNew()
{
    if (d->isAdding())
        saveBeforeAddNew();
    Update();
    d->edit().beginNew();
    d->tellChanged(adRsnAddNew);
    d->tellMoved(adRsnMove);
}

void Recordset::Update()
{
    switch (d->edit().mode()) {
    case adEditAdd:
        d->edit().saveNew(d->rows());
        d->position.append();
        break;
    case adEditInProgress:
        d->edit().saveChanges(d->rows(), d->currentRecord());
        break;
    default:
        return;
    }
    d->tellChanged(adRsnUpdate);
}

void Recordset::CancelUpdate()
{
    switch (d->edit().mode()) {
    case adEditAdd:
        d->edit().cancel();
        d->tellChanged(adRsnUndoAddNew);
        d->tellMoved(adRsnMove);
        break;
    case adEditInProgress:
        d->edit().cancel();
        d->tellChanged(adRsnUndoUpdate);
        break;
    default:
        break;
    }
}

void Recordset::Delete(AffectEnum affect)
{
    if (affect != adAffectCurrent)
        throw Error(adErrInvalidArgument, Texts::onlyCurrentRecord());
    if (d->isAdding()) // nothing of it is in the database yet
        return CancelUpdate();
    d->edit().remove(d->rows(), d->currentRecord());
    d->position.removeCurrent();
    d->tellChanged(adRsnDelete);
}

QVariant Recordset::currentValue(int column) const
{
    const QVariant *pending = d->edit().pending(column);
    if (pending)
        return *pending;
    return d->isAdding() ? QVariant() : d->rows().value(d->currentRecord(), column);
}

void Recordset::putCurrentValue(int column, const QVariant &value)
{
    if (!d->isAdding())
        d->currentRecord();
    const bool first = d->edit().isEmpty();
    d->edit().set(column, value, d->rows());
    if (first)
        d->tellChanged(adRsnFirstChange);
}

} // namespace ADODB
