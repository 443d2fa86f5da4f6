#include "ado/automation/FieldObject.h"

#include "ado/Recordset.h"
#include "ado/automation/Guarded.h"

namespace ADODB {

FieldObject::FieldObject(Recordset &recordset, int index, QObject *parent)
    : QObject(parent), m_recordset(recordset), m_index(index)
{
}

Field &FieldObject::field() const
{
    return m_recordset.Fields().Item(m_index);
}

QString FieldObject::name()
{
    return guarded(this, [&] { return field().Name(); });
}

qint32 FieldObject::type()
{
    return guarded(this, [&] { return qint32{field().Type()}; });
}

QVariant FieldObject::value()
{
    return guarded(this, [&] { return field().Value(); });
}

void FieldObject::setValue(const QVariant &value)
{
    guarded(this, [&] { field().PutValue(value); });
}

QVariant FieldObject::originalValue()
{
    return guarded(this, [&] { return field().OriginalValue(); });
}

QVariant FieldObject::underlyingValue()
{
    return guarded(this, [&] { return field().UnderlyingValue(); });
}

qint32 FieldObject::definedSize()
{
    return guarded(this, [&] { return field().DefinedSize(); });
}

qint32 FieldObject::precision()
{
    return guarded(this, [&] { return field().Precision(); });
}

qint32 FieldObject::numericScale()
{
    return guarded(this, [&] { return field().NumericScale(); });
}

qint32 FieldObject::attributes()
{
    return guarded(this, [&] { return field().Attributes(); });
}

} // namespace ADODB
