#include "grid/RecordWindow.h"

#include "ado/Recordset.h"

namespace KOVAVSFDataGridLib {

namespace {

bool isNumber(ADODB::DataTypeEnum type)
{
    switch (type) {
    case ADODB::adSmallInt:
    case ADODB::adInteger:
    case ADODB::adSingle:
    case ADODB::adDouble:
    case ADODB::adCurrency:
    case ADODB::adDecimal:
    case ADODB::adTinyInt:
    case ADODB::adUnsignedTinyInt:
    case ADODB::adUnsignedSmallInt:
    case ADODB::adUnsignedInt:
    case ADODB::adBigInt:
    case ADODB::adUnsignedBigInt:
    case ADODB::adNumeric:
    case ADODB::adVarNumeric:
        return true;
    default:
        return false;
    }
}

} // namespace

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
        return m_recordset->CellText(m_first + row - 1, col - 1);
    return col <= m_recordset->Fields().Count() ? m_recordset->Fields().Item(col - 1).Name() : QString();
}

bool RecordWindow::isNumeric(int col) const
{
    return col > 0 && col <= m_recordset->Fields().Count() &&
           isNumber(m_recordset->Fields().Item(col - 1).Type());
}

} // namespace KOVAVSFDataGridLib
