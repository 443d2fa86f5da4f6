#pragma once

#include "grid/cells/CellSource.h"

#include <memory>

namespace ADODB {
class Recordset;
}

namespace KOVAVSFDataGridLib {

// A range of a recordset's records as grid cells: field names in row 0, row numbers in column 0, and
// the records `first` ... `first + count - 1` (1-based) below. Nothing is copied, and the recordset's
// current record is not moved; a cell's text is generated on demand.
//
// The window shares ownership of the recordset. After that is closed, all its cells are empty.
class RecordWindow final : public CellSource
{
public:
    RecordWindow(std::shared_ptr<const ADODB::Recordset> recordset, int first, int count);
    ~RecordWindow() override;

    int rows() const override { return m_count + 1; }
    int cols() const override { return m_fields + 1; }
    QString text(int row, int col) const override;
    QString beginning(int row, int col, qsizetype length) const override;
    bool isNull(int row, int col) const override;
    bool isNumeric(int col) const override;
    int decimalsOfColumn(int col) const override;
    int decimals(int row, int col) const override;
    bool setText(int, int, const QString &) override { return false; }

private:
    QString cellText(qint64 record, int column) const;

    std::shared_ptr<const ADODB::Recordset> m_recordset;
    int m_first;
    int m_count;
    int m_fields;
};

} // namespace KOVAVSFDataGridLib
