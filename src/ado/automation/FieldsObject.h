#pragma once

#include "../../KovaExport.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>

#include <vector>

namespace ADODB {

class FieldObject;
class Recordset;

// The fields of a recordset with ADO's member names; see RecordsetObject. Owned by the recordset's object.
class KOVA_EXPORT FieldsObject : public QObject
{
    Q_OBJECT
    // How many there are; 0 while the recordset is closed.
    Q_PROPERTY(qint32 Count READ count)

public:
    // For RecordsetObject only.
    FieldsObject(Recordset &recordset, QObject *parent);

    // By name or by 0-based index. If there is no such field, emits HostError and returns null. A field's
    // object is created on first use, is always the same one, and lives as long as the recordset's object.
    Q_INVOKABLE QObject *Item(const QString &name);
    Q_INVOKABLE QObject *Item(qint32 index);
    Q_INVOKABLE QObject *Item(const QVariant &nameOrIndex);

    // Accessor of the property.
    qint32 count();
    // For RecordsetObject only: the columns for a name, an index or a list of them. Throws 3265.
    std::vector<int> columns(const QVariant &fields) const;

Q_SIGNALS:
    // A call by name failed. The arguments are those of ADODB::Error.
    void HostError(qint32 Number, const QString &Description);

private:
    FieldObject *itemAt(int index);

    Recordset &m_recordset;
    std::vector<FieldObject *> m_items; // children, by index; null until first used
};

} // namespace ADODB
