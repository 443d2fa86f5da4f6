#include "ado/providers/access/file/AccessRow.h"

namespace ADODB {

using AccessBytes::number;

AccessRow::AccessRow(QByteArrayView bytes, bool hasVariableColumns, bool isJet3)
    : m_bytes(bytes), m_isJet3(isJet3)
{
    const int columns = isJet3 ? number<quint8>(bytes, 0) : number<quint16>(bytes, 0);
    m_flags = bytes.size() - (columns + 7) / 8;
    if (m_flags < 0)
        AccessBytes::throwDamaged("a record is too short");
    if (hasVariableColumns)
        m_variableColumns = isJet3 ? number<quint8>(bytes, m_flags - 1) : number<quint16>(bytes, m_flags - 2);
}

bool AccessRow::flag(const AccessColumn &column) const
{
    const qsizetype at = m_flags + column.number / 8;
    return at < m_bytes.size() && (number<quint8>(m_bytes, at) >> (column.number % 8) & 1) != 0;
}

std::optional<QByteArrayView> AccessRow::field(const AccessColumn &column) const
{
    if (!flag(column))
        return {};
    if (column.isFixed)
        return AccessBytes::part(m_bytes, (m_isJet3 ? 1 : 2) + column.fixedOffset, column.size);
    if (column.variableNumber >= m_variableColumns)
        return {};
    const int start = variableStart(column.variableNumber);
    return AccessBytes::part(m_bytes, start, variableStart(column.variableNumber + 1) - start);
}

// The offsets follow the values in reverse order; the first one is the end of the last value.
int AccessRow::variableStart(int variable) const
{
    if (!m_isJet3)
        return number<quint16>(m_bytes, m_flags - 4 - qsizetype{2} * variable);
    // In Jet 3 an offset is one byte, so a longer row also lists the columns where 256 must be added.
    const qsizetype last = m_flags - 2;
    qsizetype jumps = (m_bytes.size() - 1) / 256;
    qsizetype starts = last - jumps;
    if ((starts - m_variableColumns) / 256 < jumps)
        --jumps;
    int used = 0;
    for (int i = 0; i <= variable; ++i) {
        while (used < jumps && number<quint8>(m_bytes, last - used) == i)
            ++used;
    }
    return number<quint8>(m_bytes, starts - variable) + used * 256;
}

} // namespace ADODB
