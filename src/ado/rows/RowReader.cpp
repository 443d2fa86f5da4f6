#include "ado/rows/RowReader.h"

#include "ado/recordset/RecordsetPrivate.h"
#include "ado/values/NumericTypes.h"

namespace ADODB {

RowReader::RowReader(const Recordset &recordset, int columns, int first)
    : m_recordset(recordset), m_first(first), m_cells(static_cast<std::size_t>(columns))
{
}

const std::vector<RawValue> *RowReader::read(qint64 record)
{
    const auto &shared = m_recordset.d->shared;
    if (!shared || record < 1 || record > shared->snapshot.records() ||
        m_first + static_cast<int>(m_cells.size()) > shared->snapshot.columns())
        return nullptr;
    shared->snapshot.read(record, m_first, m_cells);
    return &m_cells;
}

QString RowReader::beginning(const Recordset &recordset, qint64 record, int column, qsizetype length)
{
    const auto &shared = recordset.d->shared;
    if (!shared || !shared->snapshot.contains(record, column))
        return {};
    return shared->snapshot.beginning(record, column, length);
}

int RowReader::lostDecimals(const Recordset &recordset, qint64 record, int column)
{
    const auto &shared = recordset.d->shared;
    if (!shared || !shared->snapshot.contains(record, column))
        return 0;
    const FieldInfo &field = shared->snapshot.fields()[static_cast<std::size_t>(column)];
    const int scale = decimalsOf(field.type, field.numericScale);
    if (scale == 0)
        return 0;
    std::vector<RawValue> cell(1);
    shared->snapshot.read(record, column, cell);
    return cell.front().isNumber() || cell.front().kind == RawValue::Kind::Null ? scale : 0;
}

} // namespace ADODB
