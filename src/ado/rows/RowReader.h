#pragma once

#include "ado/values/RawValue.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

class Recordset;

// Reads whole records in their stored form, without converting each cell to a QVariant: for code that reads
// many records. It reads saved values, does not move the recordset and sends no events.
class RowReader
{
public:
    // Reads `columns` fields, starting at field `first` (from 0). `recordset` must outlive this object.
    RowReader(const Recordset &recordset, int columns, int first = 0);

    // The cells of a record (from 1), starting at field `first`. They are valid until the next call or until
    // the recordset changes. Null if there is no such record, because it was deleted or the recordset is
    // closed.
    const std::vector<RawValue> *read(qint64 record);

    // The text of one cell, cut after about `length`
    // characters. Empty if there is no such cell.
    static QString beginning(const Recordset &recordset, qint64 record, int column, qsizetype length);

    // The decimals that a cell's field has and its value can't keep, because it is stored as a mere number or
    // will be; 0 where it is a text, which has them, or the field says nothing of them.
    static int lostDecimals(const Recordset &recordset, qint64 record, int column);

private:
    const Recordset &m_recordset;
    const int m_first;
    std::vector<RawValue> m_cells;
};

} // namespace ADODB
