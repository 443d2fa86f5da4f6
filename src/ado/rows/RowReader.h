#pragma once

#include "ado/values/RawValue.h"

#include <QtCore/QString>

#include <vector>

namespace ADODB {

class Recordset;

// Reads whole records as they are stored, without making a value of each cell: for what goes through many
// records. It shows saved values, moves nothing and notifies nobody.
class RowReader
{
public:
    // Reads `columns` fields from the one at `first`, counted from 0. `recordset` must outlive this object.
    RowReader(const Recordset &recordset, int columns, int first = 0);

    // The cells of a record, from 1, without those before `first`; they are valid until the next call or a
    // change of the recordset. Null when there is no such record, because it was deleted or the recordset is
    // closed.
    const std::vector<RawValue> *read(qint64 record);

    // One cell's text, without what of a long one comes behind the first `length` characters or so. Empty
    // when there is no such cell.
    static QString beginning(const Recordset &recordset, qint64 record, int column, qsizetype length);

    // The decimals that a cell's field has and its value can't have kept, because it is stored as a mere
    // number; 0 where it is a text, which has them, or the field says nothing of them.
    static int lostDecimals(const Recordset &recordset, qint64 record, int column);

private:
    const Recordset &m_recordset;
    const int m_first;
    std::vector<RawValue> m_cells;
};

} // namespace ADODB
