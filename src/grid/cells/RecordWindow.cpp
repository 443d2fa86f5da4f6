#include "grid/cells/RecordWindow.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/rows/RowReader.h"
#include "ado/values/NumericTypes.h"

namespace KOVAVSFDataGridLib {

RecordWindow::RecordWindow(std::shared_ptr<const ADODB::Recordset> recordset, int first, int count)
    : m_recordset(std::move(recordset)),
      m_first(first),
      m_count(count),
      m_fields(m_recordset->Fields().Count())
{
}

RecordWindow::~RecordWindow() = default;

QString RecordWindow::text(int row, int col) const
{
    if (col == 0)
        return row == 0 ? QString() : QString::number(row);
    if (row > 0)
        return cellText(m_first + row - 1, col - 1);
    return col <= m_recordset->Fields().Count() ? m_recordset->Fields().Item(col - 1).Name() : QString();
}

// A cell is painted again and again, and its text may have a hundred megabytes.
QString RecordWindow::beginning(int row, int col, qsizetype length) const
{
    if (row == 0 || col == 0)
        return text(row, col);
    return ADODB::RowReader::beginning(*m_recordset, m_first + row - 1, col - 1, length);
}

// Painting code can't catch exceptions; a value that does not fit into memory is shown as such a message.
QString RecordWindow::cellText(qint64 record, int column) const
{
    try {
        return m_recordset->CellText(record, column);
    } catch (const ADODB::Error &error) {
        return error.Description();
    }
}

bool RecordWindow::isNull(int row, int col) const
{
    return row > 0 && col > 0 && m_recordset->IsNull(m_first + row - 1, col - 1);
}

bool RecordWindow::isNumeric(int col) const
{
    return col > 0 && col <= m_recordset->Fields().Count() &&
           ADODB::isNumericType(m_recordset->Fields().Item(col - 1).Type());
}

int RecordWindow::decimalsOfColumn(int col) const
{
    if (col < 1 || col > m_recordset->Fields().Count())
        return 0;
    const ADODB::Field &field = m_recordset->Fields().Item(col - 1);
    return ADODB::decimalsOf(field.Type(), field.NumericScale());
}

int RecordWindow::decimals(int row, int col) const
{
    return row > 0 && col > 0 ? ADODB::RowReader::lostDecimals(*m_recordset, m_first + row - 1, col - 1) : 0;
}

} // namespace KOVAVSFDataGridLib
