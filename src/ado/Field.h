#pragma once

#include "KovaExport.h"
#include "ado/FieldInfo.h"

#include <QtCore/QVariant>

namespace ADODB {

class Recordset;

// One column of an open recordset, and in Value the cell where it meets the current record. Owned by the
// recordset's Fields; valid until that recordset is closed or opened again.
class KOVA_EXPORT Field
{
public:
    Field(Recordset &owner, int index);

    QString Name() const;
    DataTypeEnum Type() const;
    qint32 DefinedSize() const;
    qint32 Precision() const;
    qint32 NumericScale() const;
    qint32 Attributes() const; // FieldAttributeEnum bits
    QString BaseTableName() const;
    QString BaseColumnName() const;
    int Index() const { return m_index; } // 0-based

    // Null is an invalid QVariant. Numbers are int, qlonglong or double, Boolean is bool, text QString,
    // binary QByteArray, dates and times QDate, QTime and QDateTime (UTC, so that no clock change touches
    // it). What does not fit the field's type is given as the database stores it. A pending edit is seen
    // here. Throws 3021 when there is no current record.
    QVariant Value() const;
    // Starts an edit of the current record (see Recordset::Update). Throws 3251 when it can't be written,
    // 3421 when the value does not fit the field's type.
    void PutValue(const QVariant &value);

private:
    const FieldInfo &info() const;

    Recordset *m_owner;
    int m_index;
};

} // namespace ADODB
