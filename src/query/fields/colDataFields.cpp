#include "query/fields/colDataFields.h"

#include "query/fields/FieldNames.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

bool colDataFields::AddAllFieldMess(const QString &strFieldName, qint32 lngFieldOrder, qint32 lngFieldWidth,
                                    qint32 lngIsPartField, qint32 lngFieldColour, qint32 lngFieldType,
                                    QString *PassKey)
{
    return Append({.FieldName = strFieldName,
                   .FieldOrder = lngFieldOrder,
                   .FieldWidth = lngFieldWidth,
                   .IsPartField = lngIsPartField,
                   .FieldColour = lngFieldColour,
                   .FieldType = lngFieldType},
                  PassKey);
}

bool colDataFields::AddSimpleFieldMess(const QString &strFieldName, qint32 lngFieldWidth,
                                       qint32 lngIsPartField, qint32 lngFieldType, QString *PassKey)
{
    return AddAllFieldMess(strFieldName, 0, lngFieldWidth, lngIsPartField, 0, lngFieldType, PassKey);
}

bool colDataFields::AddFieldNameMess(const QString &strFieldName, const QString &strWholeName,
                                     QString *PassKey)
{
    return Append({.FieldName = strFieldName, .FieldWholeName = strWholeName}, PassKey);
}

bool colDataFields::AddFieldsByCol(const QStringList &FieldNameCol)
{
    Clear();
    for (const QString &name : FieldNameCol) {
        if (!name.isEmpty())
            AddFieldNameMess(name, name);
    }
    return !FieldNameCol.isEmpty();
}

bool colDataFields::AppendFieldRealNameByCol(const QStringList &FieldNameCol)
{
    for (const QString &written : FieldNameCol) {
        const QString name = shortFieldName(written);
        clsDataField *const field = name.isEmpty() ? nullptr : Named(name);
        if (field)
            field->FieldWholeName = written;
    }
    return !FieldNameCol.isEmpty();
}

bool colDataFields::SetPartFieldStatusByCol(const QStringList &FieldNameCol)
{
    if (FieldNameCol.isEmpty())
        return false;
    for (clsDataField &field : m_fields)
        field.IsPartField = 0;
    for (const QString &name : FieldNameCol) {
        clsDataField *const field = name.isEmpty() ? nullptr : Named(name);
        if (field)
            field->IsPartField = 1;
    }
    return true;
}

bool colDataFields::GetSelFieldKey(const QString &strFieldName, QString &strRetKey) const
{
    const clsDataField *const field = Find(strFieldName);
    strRetKey = field ? field->FieldKey : QString();
    return field != nullptr;
}

QString colDataFields::GetSelFieldRealName(const QString &strFieldName) const
{
    const clsDataField *const field = Find(strFieldName);
    return field ? field->FieldWholeName : QString();
}

bool colDataFields::IsSelFieldPartField(const QString &strFieldName) const
{
    const clsDataField *const field = strFieldName.isEmpty() ? nullptr : Find(strFieldName);
    return field && field->IsPartField != 0;
}

bool colDataFields::GetCurrShowFieldsCount(qint32 &PassCount) const
{
    const auto isShown = [](const clsDataField &field) { return field.IsPartField == 1; };
    PassCount = static_cast<qint32>(std::count_if(begin(), end(), isShown));
    return true;
}

const clsDataField *colDataFields::Item(qsizetype position) const
{
    return m_fields.Item(position);
}

const clsDataField *colDataFields::Item(const QString &key) const
{
    return m_fields.Item(m_fields.PositionOf(key));
}

const clsDataField *colDataFields::Find(const QString &strFieldName) const
{
    return m_fields.Item(m_firstByName.value(strFieldName, 0));
}

void colDataFields::Remove(qsizetype position)
{
    if (m_fields.Remove(position))
        IndexNames();
}

bool colDataFields::Clear()
{
    m_fields.Clear();
    m_firstByName.clear();
    return true;
}

bool colDataFields::Append(clsDataField field, QString *PassKey)
{
    QString key = PassKey ? *PassKey : QString();
    const QString name = field.FieldName;
    const bool isAdded = m_fields.Append(std::move(field), &clsDataField::FieldKey, key);
    if (PassKey)
        *PassKey = key;
    if (isAdded && !m_firstByName.contains(name))
        m_firstByName.insert(name, Count());
    return isAdded;
}

clsDataField *colDataFields::Named(const QString &strFieldName)
{
    return m_fields.Item(m_firstByName.value(strFieldName, 0));
}

void colDataFields::IndexNames()
{
    m_firstByName.clear();
    qsizetype position = 0;
    for (const clsDataField &field : m_fields) {
        ++position;
        if (!m_firstByName.contains(field.FieldName))
            m_firstByName.insert(field.FieldName, position);
    }
}

} // namespace KOVAVSFDataGridLib
