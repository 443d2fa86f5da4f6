#pragma once

#include "ado/rows/RowReader.h"
#include "ado/values/Instant.h"
#include "export/WriteRecords.h"
#include "session/records/DecimalSum.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// Count, sum, average, minimum and maximum of some cells, computed in steps, so that a window stays
// responsive over millions of them. Uses the stored values.
class SelectionSummary
{
public:
    // `recordset` must outlive this object. If records are deleted meanwhile, the computation ends early.
    SelectionSummary(const ADODB::Recordset &recordset, const RecordRange &range,
                     const ExportColumns &columns);

    // Processes some more records.
    void addNextCells();
    bool isDone() const { return m_next > m_range.last; }

    // The number of cells that are not Null.
    qint64 count() const { return m_count; }
    // How many of them are numbers, and how many dates.
    qint64 numbers() const { return m_numbers; }
    qint64 dates() const { return m_dates; }
    // For the numbers, as texts in the format of ValueText().
    QString sum() const { return m_sum.text(); }
    // Whether the sum is exact; otherwise it is rounded to 15 digits.
    bool isSumExact() const { return m_sum.isExact(); }
    QString average() const { return m_sum.average(m_numbers); }
    QString minimum() const { return textOf(m_smallest); }
    QString maximum() const { return textOf(m_largest); }
    // The decimals with which the grid shows all of these numbers at least.
    int decimals() const { return m_decimals; }
    // For the dates and times.
    QString earliest() const { return textOf(m_earliest); }
    QString latest() const { return textOf(m_latest); }

private:
    enum class Kind { Other, Number, Date };
    // A stored value: the text of most cells is never needed.
    struct Extreme
    {
        ADODB::RawValue value; // without its bytes
        QByteArray bytes;
        ADODB::DataTypeEnum type = ADODB::adEmpty;
        double number = 0;
        ADODB::Instant instant;
    };
    struct Column
    {
        int field;
        ADODB::DataTypeEnum type;
        Kind kind;
        int decimals;
        bool isDecimal;
    };

    void take(const ADODB::RawValue &cell, const Column &column);
    void addNumber(const ADODB::RawValue &cell, const Column &column);
    void addDate(const ADODB::RawValue &cell, const Column &column);
    static int compare(const ADODB::RawValue &cell, double number, const Extreme &extreme);
    static void put(std::optional<Extreme> &extreme, const ADODB::RawValue &cell, const Column &column,
                    double number = 0);
    static QString textOf(const std::optional<Extreme> &extreme);

    const RecordRange m_range;
    const int m_firstField;
    std::vector<Column> m_columns;
    ADODB::RowReader m_reader;
    qint64 m_next;
    qint64 m_count = 0;
    qint64 m_numbers = 0;
    qint64 m_dates = 0;
    int m_decimals = 0;
    DecimalSum m_sum;
    std::optional<Extreme> m_smallest;
    std::optional<Extreme> m_largest;
    std::optional<Extreme> m_earliest;
    std::optional<Extreme> m_latest;
};

} // namespace KOVAVSFDataGridLib
