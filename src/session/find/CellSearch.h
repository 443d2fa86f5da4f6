#pragma once

#include "ado/rows/RowReader.h"
#include "ado/values/DisplayFormat.h"
#include "export/WriteRecords.h"
#include "session/find/TextMatcher.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// Looks for a text in the cells of some records, in steps, so that a window stays alive over millions of
// them. It remembers the records that have a match, and looks into a record again to say which of its cells
// match. Binary contents are not searched.
class CellSearch
{
public:
    struct Column
    {
        int col;   // of the grid
        int field; // from 0
        ADODB::DataTypeEnum type;
        ADODB::DisplayFormat format; // a cell matches as it is and as it is shown
    };
    // A cell, by its record and its column's place among those that are searched, from 0.
    struct Cell
    {
        qint64 record;
        int place;
    };

    // `recordset` must outlive this object. Columns are in the order in which they are shown. Records that go
    // meanwhile end the work early.
    CellSearch(const ADODB::Recordset &recordset, const RecordRange &range, std::vector<Column> columns,
               TextMatcher matcher);

    const std::vector<Column> &columns() const { return m_columns; }
    const TextMatcher &matcher() const { return m_matcher; }

    // Looks at some more records.
    void addNextCells();
    bool isDone() const { return m_next > m_range.last; }
    int percentDone() const;
    // The cells that match, of the records that have been looked at.
    qint64 count() const { return m_count; }

    // The next or previous cell that matches, `from` itself included when it is to be.
    std::optional<Cell> next(const Cell &from, bool isIncluded);
    std::optional<Cell> previous(const Cell &from, bool isIncluded);
    std::optional<Cell> first();
    std::optional<Cell> last();
    // Which of them it is, from 1.
    qint64 numberOf(const Cell &cell);

private:
    struct Found
    {
        qint64 record;
        qint64 before; // matches in the records before it
    };

    bool isMatch(const ADODB::RawValue &cell, const Column &column);
    std::vector<int> placesOf(qint64 record);

    const RecordRange m_range;
    const std::vector<Column> m_columns;
    const TextMatcher m_matcher;
    ADODB::RowReader m_reader;
    QByteArray m_text; // of one cell
    std::vector<Found> m_found;
    qint64 m_next;
    qint64 m_count = 0;
};

} // namespace KOVAVSFDataGridLib
