#pragma once

#include "../../KovaExport.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>

namespace ADODB {

class Field;
class Recordset;

// One field with ADO's member names; see RecordsetObject. It refers to a column number, so it can still be
// used after the recordset was opened again.
class KOVA_EXPORT FieldObject : public QObject
{
    Q_OBJECT
    // Like the members of Field with these names.
    Q_PROPERTY(QString Name READ name)
    Q_PROPERTY(qint32 Type READ type)
    Q_PROPERTY(QVariant Value READ value WRITE setValue)
    Q_PROPERTY(QVariant OriginalValue READ originalValue)
    Q_PROPERTY(QVariant UnderlyingValue READ underlyingValue)
    Q_PROPERTY(qint32 DefinedSize READ definedSize)
    // The size of the current value in bytes, with two for each character of a text; 0 for Null.
    Q_PROPERTY(qint32 ActualSize READ actualSize)
    Q_PROPERTY(qint32 Precision READ precision)
    Q_PROPERTY(qint32 NumericScale READ numericScale)
    Q_PROPERTY(qint32 Attributes READ attributes)

public:
    // For FieldsObject only.
    FieldObject(Recordset &recordset, int index, QObject *parent);

    // Accessors of the properties.
    QString name();
    qint32 type();
    QVariant value();
    void setValue(const QVariant &value);
    QVariant originalValue();
    QVariant underlyingValue();
    qint32 definedSize();
    qint32 actualSize();
    qint32 precision();
    qint32 numericScale();
    qint32 attributes();

Q_SIGNALS:
    // A call by name failed. The arguments are those of ADODB::Error.
    void HostError(qint32 Number, const QString &Description);

private:
    Field &field() const;

    Recordset &m_recordset;
    int m_index;
};

} // namespace ADODB
