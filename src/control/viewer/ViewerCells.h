#pragma once

#include "grid/cells/RecordWindow.h"
#include "query/SharedValues.h"

namespace KOVAVSFDataGridLib {

// The viewer's sheet: always the same number of rows, with an empty column 0, however many records there are.
class ViewerCells final : public CellSource
{
public:
    static constexpr int sheetRows = SharedValues::recordCap + 1; // including the headings

    // The records from `first` (1-based) on, `count` of them: at most sheetRows - 1.
    ViewerCells(std::shared_ptr<const ADODB::Recordset> recordset, int first, int count)
        : m_records(std::move(recordset), first, count)
    {
    }

    int rows() const override { return sheetRows; }
    int cols() const override { return m_records.cols(); }
    int usedRows() const override { return m_records.rows(); }
    QString text(int row, int col) const override
    {
        return col > 0 && row < usedRows() ? m_records.text(row, col) : QString();
    }
    QString beginning(int row, int col, qsizetype length) const override
    {
        return col > 0 && row < usedRows() ? m_records.beginning(row, col, length) : QString();
    }
    int decimalsOfColumn(int col) const override { return m_records.decimalsOfColumn(col); }
    int decimals(int row, int col) const override
    {
        return row < usedRows() ? m_records.decimals(row, col) : 0;
    }
    bool isNull(int row, int col) const override
    {
        return col > 0 && row < usedRows() && m_records.isNull(row, col);
    }
    bool isNumeric(int col) const override { return m_records.isNumeric(col); }
    bool setText(int, int, const QString &) override { return false; }

private:
    RecordWindow m_records;
};

} // namespace KOVAVSFDataGridLib
