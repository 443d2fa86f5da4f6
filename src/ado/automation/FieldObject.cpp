#include "ado/automation/FieldObject.h"

#include "ado/Recordset.h"
#include "ado/ValueText.h"
#include "ado/automation/Guarded.h"

namespace ADODB {

namespace {

// The size of the value in a buffer of the field's type.
qint64 bytesOf(const QVariant &value, DataTypeEnum type)
{
    if (!value.isValid())
        return 0;
    if (value.typeId() == QMetaType::QByteArray)
        return value.toByteArray().size();
    switch (type) {
    case adTinyInt:
    case adUnsignedTinyInt:
        return 1;
    case adSmallInt:
    case adUnsignedSmallInt:
    case adBoolean:
        return 2;
    case adInteger:
    case adUnsignedInt:
    case adSingle:
        return 4;
    case adDBDate:
    case adDBTime:
        return 6;
    case adBigInt:
    case adUnsignedBigInt:
    case adDouble:
    case adCurrency:
    case adDate:
        return 8;
    case adGUID:
    case adDBTimeStamp:
        return 16;
    case adDecimal:
    case adNumeric:
    case adVarNumeric:
        return 19;
    default:
        return ValueText(value).size() * qint64{sizeof(char16_t)};
    }
}

} // namespace

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

qint32 FieldObject::actualSize()
{
    return guarded(this, [&] { return narrowed(bytesOf(field().Value(), field().Type())); });
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
