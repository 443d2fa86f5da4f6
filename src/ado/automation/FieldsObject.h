#pragma once

#include "../../KovaExport.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>

#include <vector>

namespace ADODB {

class FieldObject;
class Recordset;

// The fields of a recordset by ADO's member names; see RecordsetObject. It belongs to the recordset's object.
class KOVA_EXPORT FieldsObject : public QObject
{
    Q_OBJECT
    // How many there are; 0 while the recordset is closed.
    Q_PROPERTY(qint32 Count READ count)

public:
    // Made by RecordsetObject alone.
    FieldsObject(Recordset &recordset, QObject *parent);

    // By name or by 0-based index; null (and HostError) when there is no such field. A field's object is made
    // on first use, lives as long as the recordset's object and is always the same one.
    Q_INVOKABLE QObject *Item(const QString &name);
    Q_INVOKABLE QObject *Item(qint32 index);
    Q_INVOKABLE QObject *Item(const QVariant &nameOrIndex);

    // Behind the property.
    qint32 count();

Q_SIGNALS:
    // A call by name failed; the number and the text are those of ADODB::Error.
    void HostError(qint32 Number, const QString &Description);

private:
    FieldObject *itemAt(int index);

    Recordset &m_recordset;
    std::vector<FieldObject *> m_items; // children, by index; null until asked for
};

} // namespace ADODB
