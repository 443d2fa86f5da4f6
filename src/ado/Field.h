#pragma once

#include "../KovaExport.h"
#include "FieldInfo.h"

#include <QtCore/QVariant>

namespace ADODB {

class Recordset;

// One column of an open recordset, and in Value the cell where it meets the current record. Owned by the
// recordset's Fields; valid until that recordset is closed or opened again.
class KOVA_EXPORT Field
{
public:
    // Made by Recordset alone.
    Field(Recordset &owner, int index);

    // The column's heading.
    QString Name() const;
    // The type of its values, as the database declares it; a cell of SQLite can hold another.
    DataTypeEnum Type() const;
    // The most that a value takes: characters of a text, bytes of a binary value; 0 when unlimited or
    // unknown.
    qint32 DefinedSize() const;
    // Decimal digits of a number, else 0.
    qint32 Precision() const;
    // Digits behind the decimal point, else 0.
    qint32 NumericScale() const;
    // FieldAttributeEnum bits.
    qint32 Attributes() const;
    // The table and the column that the values come from; both empty for an expression.
    QString BaseTableName() const;
    QString BaseColumnName() const;
    // The 0-based column number.
    int Index() const { return m_index; }

    // Null is an invalid QVariant. Numbers are int, qlonglong or double, Boolean is bool, text QString,
    // binary QByteArray, dates and times QDate, QTime and QDateTime (UTC, so that no clock change touches
    // it). What does not fit the field's type is given as the database stores it. A pending edit is seen
    // here. Throws 3021 when there is no current record.
    QVariant Value() const;
    // Starts an edit of the current record (see Recordset::Update). Throws 3251 when it can't be written,
    // 3421 when the value does not fit the field's type.
    void PutValue(const QVariant &value);
    // The value without a pending edit: as it was read or saved last. Null in a new record.
    QVariant OriginalValue() const;
    // The value that the database had at the latest Recordset::Resync of this record, OriginalValue before.
    QVariant UnderlyingValue() const;

private:
    const FieldInfo &info() const;

    Recordset *m_owner;
    int m_index;
};

} // namespace ADODB
