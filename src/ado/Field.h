#pragma once

#include "../KovaExport.h"
#include "FieldInfo.h"

#include <QtCore/QVariant>

namespace ADODB {

class Recordset;

// One column of an open recordset. Value is its cell in the current record. Owned by the recordset's Fields,
// and valid until that recordset is closed or opened again.
class KOVA_EXPORT Field
{
public:
    // For Recordset only.
    Field(Recordset &owner, int index);

    // The column's heading.
    QString Name() const;
    // The type of its values, as the database declares it. In SQLite, a cell can contain a value of another
    // type.
    DataTypeEnum Type() const;
    // The maximum size of a value, in characters of a text or bytes of a binary value; 0 when unlimited or
    // unknown.
    qint32 DefinedSize() const;
    // Decimal digits of a number, else 0.
    qint32 Precision() const;
    // Digits after the decimal point, else 0.
    qint32 NumericScale() const;
    // FieldAttributeEnum bits.
    qint32 Attributes() const;
    // The table and the column that the values come from; both empty for an expression.
    QString BaseTableName() const;
    QString BaseColumnName() const;
    // Whether records can certainly be sorted by it. If not, only the database knows whether its type has an
    // order: PostgreSQL's json has none, an enumeration has one, and the driver calls both unknown.
    bool HasKnownOrder() const;
    // The 0-based column number.
    int Index() const { return m_index; }

    // Null is an invalid QVariant. Numbers are int, qlonglong or double, Boolean is bool, text QString,
    // binary QByteArray, dates and times QDate, QTime and QDateTime (in UTC, so that clock changes don't
    // affect it). A value that does not fit the field's type is returned as the database stores it. Includes
    // a pending edit. Throws 3021 if there is no current record.
    QVariant Value() const;
    // Begins an edit of the current record (see Recordset::Update). Throws 3251 if it can't be written, and
    // 3421 if the value does not fit the field's type.
    void PutValue(const QVariant &value);
    // The value as last read or saved, without a pending edit. Null in a new record.
    QVariant OriginalValue() const;
    // The value in the database at the last Recordset::Resync of this record; before that, OriginalValue.
    QVariant UnderlyingValue() const;

private:
    const FieldInfo &info() const;

    Recordset *m_owner;
    int m_index;
};

} // namespace ADODB
