#include "ado/automation/FieldsObject.h"

#include "ado/Recordset.h"
#include "ado/automation/FieldObject.h"
#include "ado/automation/Guarded.h"

namespace ADODB {

FieldsObject::FieldsObject(Recordset &recordset, QObject *parent) : QObject(parent), m_recordset(recordset) {}

QObject *FieldsObject::Item(const QString &name)
{
    return guarded(this, [&]() -> QObject * { return itemAt(m_recordset.Fields().Item(name).Index()); });
}

QObject *FieldsObject::Item(qint32 index)
{
    return guarded(this, [&]() -> QObject * { return itemAt(m_recordset.Fields().Item(index).Index()); });
}

QObject *FieldsObject::Item(const QVariant &nameOrIndex)
{
    if (nameOrIndex.typeId() == QMetaType::QString)
        return Item(nameOrIndex.toString());
    bool isNumber = false;
    const qint32 index = nameOrIndex.toInt(&isNumber);
    return Item(isNumber ? index : -1);
}

FieldObject *FieldsObject::itemAt(int index)
{
    const auto place = static_cast<std::size_t>(index);
    if (m_items.size() <= place)
        m_items.resize(place + 1);
    FieldObject *&item = m_items[place];
    if (!item) {
        item = new FieldObject(m_recordset, index, this);
        connect(item, &FieldObject::HostError, this, &FieldsObject::HostError);
    }
    return item;
}

std::vector<int> FieldsObject::columns(const QVariant &fields) const
{
    const bool isList =
        fields.typeId() == QMetaType::QVariantList || fields.typeId() == QMetaType::QStringList;
    std::vector<int> columns;
    for (const QVariant &field : isList ? fields.toList() : QVariantList{fields}) {
        bool isNumber = false;
        const int index = field.toInt(&isNumber);
        const bool isIndex = isNumber && field.typeId() != QMetaType::QString;
        const ADODB::Fields &all = m_recordset.Fields();
        columns.push_back((isIndex ? all.Item(index) : all.Item(field.toString())).Index());
    }
    return columns;
}

qint32 FieldsObject::count()
{
    return m_recordset.Fields().Count();
}

} // namespace ADODB
