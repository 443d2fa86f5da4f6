#include "ado/providers/access/file/AccessReader.h"

#include "ado/providers/access/file/AccessValue.h"

namespace ADODB {

AccessReader::AccessReader(const AccessFile &file, const AccessTable &table) : m_file(file), m_table(table) {}

void AccessReader::rewind()
{
    m_nextPage = 0;
    m_nextRow = 0;
    m_rows = 0;
}

// A page that is reserved for the table but not yet used is not a data page.
bool AccessReader::isDataPage() const
{
    constexpr quint8 dataPage = 1;
    return AccessBytes::number<quint8>(m_page->bytes(), 0) == dataPage &&
           AccessBytes::number<quint32>(m_page->bytes(), 4) == m_table.definitionPage;
}

bool AccessReader::next()
{
    for (;;) {
        while (m_nextRow == m_rows) {
            if (m_nextPage == m_table.pages.size())
                return false;
            m_page = m_file.page(m_table.pages[m_nextPage++]);
            m_rows = isDataPage() ? m_page->rows() : 0;
            m_nextRow = 0;
        }
        const AccessPage::Row row = m_page->row(m_nextRow++);
        if (!row.isDeleted) {
            take(row);
            return true;
        }
    }
}

qint64 AccessReader::position() const
{
    return qint64{m_page->number} * AccessPage::mostRows + m_nextRow - 1;
}

void AccessReader::seek(qint64 position)
{
    const auto page = static_cast<quint32>(position / AccessPage::mostRows);
    if (!m_page || page != m_page->number)
        m_page = m_file.page(page);
    m_nextRow = static_cast<int>(position % AccessPage::mostRows) + 1;
    take(m_page->row(m_nextRow - 1));
}

void AccessReader::take(const AccessPage::Row &row)
{
    QByteArrayView bytes = row.bytes;
    if (row.isElsewhere) {
        const AccessAddress address(AccessBytes::number<quint32>(bytes, 0));
        m_elsewhere = m_file.page(address.page);
        bytes = m_elsewhere->row(address.row).bytes;
    }
    m_row = AccessRow(bytes, m_table.hasVariableColumns, m_file.isJet3());
}

RawValue AccessReader::value(int index)
{
    const AccessColumn &column = m_table.columns[static_cast<std::size_t>(index)];
    if (column.type == AccessType::YesNo)
        return AccessValue::fromFlag(m_row.flag(column));
    const auto field = m_row.field(column);
    return field ? AccessValue::fromField(*field, column, m_file, m_bytes) : RawValue();
}

} // namespace ADODB
