#include "ado/Field.h"

#include "ado/Recordset.h"

namespace ADODB {

Field::Field(Recordset &owner, int index) : m_owner(&owner), m_index(index) {}

const FieldInfo &Field::info() const
{
    return m_owner->fieldInfo(m_index);
}

QString Field::Name() const
{
    return info().name;
}

DataTypeEnum Field::Type() const
{
    return info().type;
}

qint32 Field::DefinedSize() const
{
    return info().definedSize;
}

qint32 Field::Precision() const
{
    return info().precision;
}

qint32 Field::NumericScale() const
{
    return info().numericScale;
}

qint32 Field::Attributes() const
{
    return info().attributes;
}

QString Field::BaseTableName() const
{
    return info().baseTable;
}

QString Field::BaseColumnName() const
{
    return info().baseColumn;
}

bool Field::HasKnownOrder() const
{
    return info().hasKnownOrder;
}

QVariant Field::Value() const
{
    return m_owner->currentValue(m_index);
}

QVariant Field::OriginalValue() const
{
    return m_owner->originalValue(m_index);
}

QVariant Field::UnderlyingValue() const
{
    return m_owner->underlyingValue(m_index);
}

void Field::PutValue(const QVariant &value)
{
    m_owner->putCurrentValue(m_index, value);
}

} // namespace ADODB
