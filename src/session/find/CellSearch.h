#pragma once

#include "ado/rows/RowReader.h"
#include "ado/values/DisplayFormat.h"
#include "export/WriteRecords.h"
#include "session/find/TextMatcher.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// Searches the cells of some records for a text, in steps, so that a window stays responsive over millions of
// them. It remembers which records match, and examines a record again to tell which of its cells match.
// Binary values are not searched.
class CellSearch
{
public:
    struct Column
    {
        int col;   // of the grid
        int field; // from 0
        ADODB::DataTypeEnum type;
        ADODB::DisplayFormat format; // a cell matches by its text or by its formatted text
    };
    // A cell: its record, and its column's index among the searched ones (from 0).
    struct Cell
    {
        qint64 record;
        int place;
    };

    // `recordset` must outlive this object. Columns are in display order. If records are deleted meanwhile,
    // the search ends early.
    CellSearch(const ADODB::Recordset &recordset, const RecordRange &range, std::vector<Column> columns,
               TextMatcher matcher);

    const std::vector<Column> &columns() const { return m_columns; }
    const TextMatcher &matcher() const { return m_matcher; }

    // Searches some more records.
    void addNextCells();
    bool isDone() const { return m_next > m_range.last; }
    int percentDone() const;
    // The matching cells in the records searched so far.
    qint64 count() const { return m_count; }

    // The next or previous matching cell; can be `from` itself if `isIncluded`.
    std::optional<Cell> next(const Cell &from, bool isIncluded);
    std::optional<Cell> previous(const Cell &from, bool isIncluded);
    std::optional<Cell> first();
    std::optional<Cell> last();
    // The number of a matching cell, from 1.
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
