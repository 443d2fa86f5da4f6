#pragma once

#include "ado/FieldInfo.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QVariant>

namespace ADODB {

// The contents of an open recordset: its fields and its rows. The rows can have more columns than there are
// fields; those after the last field are keys for writing back.
//
// Records are numbered from 1, columns from 0.
class Snapshot
{
public:
    Snapshot(std::vector<FieldInfo> fields, RowStore rows);

    const std::vector<FieldInfo> &fields() const { return m_fields; }
    int columns() const { return m_rows.columns(); } // including hidden ones
    qint64 records() const { return m_rows.rows(); }
    bool contains(qint64 record, int column) const;

    QVariant value(qint64 record, int column) const;
    QString text(qint64 record, int column) const;
    // The same, but a long text is cut after about `length` characters.
    QString beginning(qint64 record, int column, qsizetype length) const;
    bool isNull(qint64 record, int column) const;

    std::vector<RawValue> raw(qint64 record) const { return m_rows.row(record - 1); }
    void read(qint64 record, int first, std::vector<RawValue> &cells) const
    {
        m_rows.read(record - 1, first, cells);
    }
    void remove(qint64 record) { m_rows.remove(record - 1); }
    // Both use the first row of `stored`.
    void replace(qint64 record, const RowStore &stored);
    void append(const RowStore &stored);

private:
    std::vector<FieldInfo> m_fields;
    RowStore m_rows;
};

} // namespace ADODB
