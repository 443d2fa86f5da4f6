#include "session/records/SelectionSummary.h"

#include "ado/values/FieldText.h"
#include "ado/values/NumericTypes.h"

#include <algorithm>
#include <cmath>

namespace KOVAVSFDataGridLib {

namespace {

using RawKind = ADODB::RawValue::Kind;

constexpr qint64 cellsOfASum = 200000; // takes about ten milliseconds

int firstFieldOf(const ExportColumns &columns)
{
    const auto first = std::ranges::min_element(columns, {}, &ExportColumn::field);
    return first == columns.end() ? 0 : first->field;
}

int endOfFields(const ExportColumns &columns)
{
    const auto last = std::ranges::max_element(columns, {}, &ExportColumn::field);
    return last == columns.end() ? 0 : last->field + 1;
}

bool isDateType(ADODB::DataTypeEnum type)
{
    return type == ADODB::adDBDate || type == ADODB::adDBTime || type == ADODB::adDate ||
           type == ADODB::adDBTimeStamp;
}

// Some databases store these as doubles nevertheless.
bool isDecimalType(ADODB::DataTypeEnum type)
{
    return type == ADODB::adNumeric || type == ADODB::adDecimal || type == ADODB::adVarNumeric ||
           type == ADODB::adCurrency;
}

} // namespace

SelectionSummary::SelectionSummary(const ADODB::Recordset &recordset, const RecordRange &range,
                                   const ExportColumns &columns)
    : m_range(range),
      m_firstField(firstFieldOf(columns)),
      m_reader(recordset, endOfFields(columns) - m_firstField, m_firstField),
      m_next(range.first)
{
    for (const ExportColumn &column : columns) {
        const Kind kind = isDateType(column.type)             ? Kind::Date
                          : column.type == ADODB::adBoolean   ? Kind::Other
                          : ADODB::isNumericType(column.type) ? Kind::Number
                          : column.type == ADODB::adVariant   ? Kind::Number
                                                              : Kind::Other;
        m_columns.push_back({column.field - m_firstField, column.type, kind,
                             ADODB::decimalsOf(column.type, column.scale), isDecimalType(column.type)});
    }
}

void SelectionSummary::addNextCells()
{
    const auto rows = std::max<qint64>(1, cellsOfASum / std::max<qint64>(1, std::ssize(m_columns)));
    const qint64 end = std::min(m_range.last, m_next + rows - 1);
    for (; m_next <= end; ++m_next) {
        const std::vector<ADODB::RawValue> *const cells = m_reader.read(m_next);
        if (!cells) {
            m_next = m_range.last + 1;
            return;
        }
        for (const Column &column : m_columns)
            take((*cells)[static_cast<std::size_t>(column.field)], column);
    }
}

void SelectionSummary::take(const ADODB::RawValue &cell, const Column &column)
{
    if (cell.kind == RawKind::Null)
        return;
    ++m_count;
    // In an untyped database, only the values tell the type of a computed column.
    const bool isStoredNumber = cell.kind == RawKind::Integer || cell.kind == RawKind::Real;
    if (column.kind == Kind::Date)
        addDate(cell, column);
    else if (column.kind == Kind::Number || (isStoredNumber && column.type != ADODB::adBoolean))
        addNumber(cell, column);
}

void SelectionSummary::addNumber(const ADODB::RawValue &cell, const Column &column)
{
    double number = 0;
    if (cell.kind == RawKind::Integer) {
        m_sum.add(cell.integer);
        number = static_cast<double>(cell.integer);
    } else if (cell.kind == RawKind::Real && std::isfinite(cell.real)) {
        if (column.isDecimal)
            m_sum.addDecimal(cell.real, column.decimals);
        else
            m_sum.add(cell.real);
        number = cell.real;
    } else if (cell.kind == RawKind::Text && m_sum.addText(cell.bytes)) {
        number = cell.bytes.toByteArray().toDouble();
    } else {
        return;
    }
    ++m_numbers;
    if (cell.isNumber())
        m_decimals = std::max(m_decimals, column.decimals);
    if (!m_smallest || compare(cell, number, *m_smallest) < 0)
        put(m_smallest, cell, column, number);
    if (!m_largest || compare(cell, number, *m_largest) > 0)
        put(m_largest, cell, column, number);
}

// Two numbers can differ in digits beyond the precision of a double.
int SelectionSummary::compare(const ADODB::RawValue &cell, double number, const Extreme &extreme)
{
    if (number != extreme.number)
        return number < extreme.number ? -1 : 1;
    if (cell.kind != extreme.value.kind)
        return 0;
    if (cell.kind == RawKind::Integer)
        return cell.integer < extreme.value.integer ? -1 : cell.integer > extreme.value.integer ? 1 : 0;
    if (cell.kind != RawKind::Text || cell.bytes == extreme.bytes)
        return 0;
    DecimalSum difference;
    difference.addText(cell.bytes);
    difference.addText(extreme.bytes.startsWith('-') ? extreme.bytes.sliced(1) : '-' + extreme.bytes);
    return difference.sign();
}

void SelectionSummary::addDate(const ADODB::RawValue &cell, const Column &column)
{
    const auto instant = cell.kind == RawKind::Text ? ADODB::Instant::ofText(cell.bytes) : std::nullopt;
    if (!instant)
        return;
    ++m_dates;
    if (!m_earliest || instant->compare(m_earliest->instant) < 0) {
        put(m_earliest, cell, column);
        m_earliest->instant = *instant;
    }
    if (!m_latest || instant->compare(m_latest->instant) > 0) {
        put(m_latest, cell, column);
        m_latest->instant = *instant;
    }
}

void SelectionSummary::put(std::optional<Extreme> &extreme, const ADODB::RawValue &cell, const Column &column,
                           double number)
{
    if (!extreme)
        extreme = Extreme{};
    extreme->value = cell;
    extreme->value.bytes = {};
    extreme->bytes.resize(0); // keeps the capacity
    if (cell.kind == RawKind::Text)
        extreme->bytes.append(cell.bytes);
    extreme->type = column.type;
    extreme->number = number;
}

QString SelectionSummary::textOf(const std::optional<Extreme> &extreme)
{
    if (!extreme)
        return {};
    ADODB::RawValue value = extreme->value;
    value.bytes = extreme->bytes;
    QByteArray text;
    ADODB::appendText(text, value, extreme->type);
    return QString::fromUtf8(text);
}

} // namespace KOVAVSFDataGridLib
