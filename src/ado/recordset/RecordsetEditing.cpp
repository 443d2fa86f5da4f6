#include "ado/recordset/RecordsetPrivate.h"
#include "ado/values/FieldValue.h"

// The members of Recordset that change records, and the current record's values.

namespace ADODB {

EditModeEnum Recordset::EditMode() const
{
    if (!d->isAdding() && d->position.isDeleted())
        return adEditDelete;
    return d->edit().mode();
}

QString Recordset::WhyReadOnly() const
{
    const auto &editor = d->editor;
    return d->shared && editor ? editor->whyReadOnly() : QString();
}

// If this new record can't be saved, another one can't be added.
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
    d->needIdle();
    d->notifyLeaving();
    if (d->isAdding())
        saveBeforeAddNew();
    Update();
    d->edit().beginNew();
    d->notifyChanged(adRsnAddNew);
    d->notifyMoved(adRsnMove);
}

void Recordset::Update()
{
    d->needIdle();
    d->notifyLeaving();
    switch (d->edit().mode()) {
    case adEditAdd:
        withinMemory(Texts::changeOutOfMemory, [&] {
            const Private::Busy busy(*d);
            d->edit().saveNew(d->rows());
        });
        d->position.append();
        break;
    case adEditInProgress:
        withinMemory(Texts::changeOutOfMemory, [&] {
            const Private::Busy busy(*d);
            d->edit().saveChanges(d->rows(), d->currentRecord());
        });
        break;
    default:
        return;
    }
    d->underlying.reset();
    d->notifyChanged(adRsnUpdate);
}

void Recordset::CancelUpdate()
{
    d->needIdle();
    switch (d->edit().mode()) {
    case adEditAdd:
        d->edit().cancel();
        d->notifyChanged(adRsnUndoAddNew);
        d->notifyMoved(adRsnMove);
        break;
    case adEditInProgress:
        d->edit().cancel();
        d->notifyChanged(adRsnUndoUpdate);
        break;
    default:
        break;
    }
}

bool Recordset::FindAttempt()
{
    d->needIdle();
    const EditModeEnum mode = d->edit().mode();
    if (mode == adEditNone && (d->position.isDeleted() || d->position.record() == 0))
        return false;
    const bool isFound = withinMemory(Texts::outOfMemory, [&] {
        const Private::Busy busy(*d);
        if (mode == adEditAdd)
            return d->edit().findNew(d->rows());
        if (mode == adEditInProgress)
            return d->edit().findChanges(d->rows(), d->currentRecord());
        return d->removeCurrent([&](qint64 record) { return d->edit().findRemoval(d->rows(), record); });
    });
    if (!isFound)
        return false;
    if (mode == adEditAdd)
        d->position.append();
    d->underlying.reset();
    d->notifyChanged(mode == adEditNone ? adRsnDelete : adRsnUpdate);
    return true;
}

void Recordset::ForgetAttempt()
{
    d->needIdle();
    d->edit().forgetAttempt();
}

void Recordset::Delete(AffectEnum affect)
{
    d->needIdle();
    if (affect != adAffectCurrent)
        throw Error(adErrInvalidArgument, Texts::onlyCurrentRecord());
    if (d->isAdding()) // nothing of it is in the database yet
        return CancelUpdate();
    withinMemory(Texts::changeOutOfMemory, [&] {
        const Private::Busy busy(*d);
        d->removeCurrent([&](qint64 record) {
            d->edit().remove(d->rows(), record);
            return true;
        });
    });
    d->underlying.reset();
    d->notifyChanged(adRsnDelete);
}

void Recordset::Resync(AffectEnum affect, ResyncEnum what)
{
    d->needIdle();
    if (affect != adAffectCurrent)
        throw Error(adErrInvalidArgument, Texts::onlyCurrentRecord());
    if (what != adResyncUnderlyingValues && what != adResyncAllValues)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{what}));
    if (d->isAdding())
        throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
    const qint64 record = d->currentRecord();
    RowStore now = withinMemory(Texts::outOfMemory, [&] {
        const Private::Busy busy(*d);
        return d->edit().readAgain(d->rows(), record);
    });
    if (what == adResyncUnderlyingValues) {
        d->underlying = std::move(now);
        d->underlyingRecord = record;
        return;
    }
    d->edit().cancel();
    d->rows().replace(record, now);
    d->underlying.reset();
    d->notifyChanged(adRsnResynch);
}

QVariant Recordset::originalValue(int column) const
{
    if (d->isAdding())
        return {};
    return withinMemory(Texts::outOfMemory, [&] { return d->rows().value(d->currentRecord(), column); });
}

QVariant Recordset::underlyingValue(int column) const
{
    if (d->isAdding() || !d->underlying || d->underlyingRecord != d->currentRecord())
        return originalValue(column);
    return withinMemory(Texts::outOfMemory, [&] {
        return FieldValue::fromRaw(d->underlying->cell(0, column), fieldInfo(column).type);
    });
}

QVariant Recordset::currentValue(int column) const
{
    const QVariant *pending = d->edit().pending(column);
    if (pending)
        return *pending;
    return originalValue(column);
}

void Recordset::putCurrentValue(int column, const QVariant &value)
{
    d->needIdle();
    if (!d->isAdding())
        d->currentRecord();
    const bool first = d->edit().isEmpty();
    withinMemory(Texts::changeOutOfMemory, [&] { d->edit().set(column, value, d->rows()); });
    if (first)
        d->notifyChanged(adRsnFirstChange);
}

} // namespace ADODB
