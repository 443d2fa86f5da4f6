#include "session/find/CellSearch.h"

#include "ado/values/FieldText.h"
#include "ado/values/Utf8.h"

#include <algorithm>
#include <limits>
#include <ranges>

namespace KOVAVSFDataGridLib {

namespace {

using RawKind = ADODB::RawValue::Kind;

constexpr qint64 cellsOfAStep = 300000; // takes about ten milliseconds

int fieldsOf(const std::vector<CellSearch::Column> &columns)
{
    int fields = 0;
    for (const CellSearch::Column &column : columns)
        fields = std::max(fields, column.field + 1);
    return fields;
}

// Texts of these types may be shown in another form than they are stored.
bool isConverted(ADODB::DataTypeEnum type)
{
    return type == ADODB::adBoolean || type == ADODB::adDBDate || type == ADODB::adDBTime ||
           type == ADODB::adDate || type == ADODB::adDBTimeStamp || type == ADODB::adGUID;
}

} // namespace

CellSearch::CellSearch(const ADODB::Recordset &recordset, const RecordRange &range,
                       std::vector<Column> columns, TextMatcher matcher)
    : m_range(range),
      m_columns(std::move(columns)),
      m_matcher(std::move(matcher)),
      m_reader(recordset, fieldsOf(m_columns)),
      m_next(range.first)
{
}

int CellSearch::percentDone() const
{
    return m_range.count() < 1 ? 100 : static_cast<int>((m_next - m_range.first) * 100 / m_range.count());
}

void CellSearch::addNextCells()
{
    const auto records = std::max<qint64>(1, cellsOfAStep / std::max<qint64>(1, std::ssize(m_columns)));
    const qint64 end = std::min(m_range.last, m_next + records - 1);
    for (; m_next <= end; ++m_next) {
        const std::vector<ADODB::RawValue> *const cells = m_reader.read(m_next);
        if (!cells) {
            m_next = m_range.last + 1;
            return;
        }
        const qint64 before = m_count;
        for (const Column &column : m_columns)
            m_count += isMatch((*cells)[static_cast<std::size_t>(column.field)], column) ? 1 : 0;
        if (m_count > before)
            m_found.push_back({m_next, before});
    }
}

bool CellSearch::isMatch(const ADODB::RawValue &cell, const Column &column)
{
    if (cell.kind == RawKind::Null || cell.kind == RawKind::Blob)
        return false;
    ADODB::DisplayFormat format = column.format;
    if (!cell.isNumber())
        format.leastDecimals = 0;
    const bool isPlain = format == ADODB::DisplayFormat{.leastDecimals = format.leastDecimals};
    if (isPlain) {
        if (cell.kind == RawKind::Text && !isConverted(column.type))
            return m_matcher.matches(cell.bytes);
        if (cell.kind != RawKind::Text && column.type != ADODB::adBoolean && !m_matcher.canMatchNumber())
            return false;
    }
    m_text.resize(0);
    ADODB::appendText(m_text, cell, column.type);
    if (m_matcher.matches(m_text))
        return true;
    if (isPlain && format.leastDecimals > 0) {
        const qsizetype length = m_text.size();
        format.pad(m_text);
        return m_text.size() > length && m_matcher.matches(m_text);
    }
    return !format.isNone() && m_matcher.matches(format.applied(ADODB::textFromUtf8(m_text)).toUtf8());
}

std::vector<int> CellSearch::placesOf(qint64 record)
{
    std::vector<int> places;
    const std::vector<ADODB::RawValue> *const cells = m_reader.read(record);
    for (std::size_t i = 0; cells && i < m_columns.size(); ++i) {
        if (isMatch((*cells)[static_cast<std::size_t>(m_columns[i].field)], m_columns[i]))
            places.push_back(static_cast<int>(i));
    }
    return places;
}

std::optional<CellSearch::Cell> CellSearch::next(const Cell &from, bool isIncluded)
{
    for (auto at = std::ranges::lower_bound(m_found, from.record, {}, &Found::record); at != m_found.end();
         ++at) {
        for (const int place : placesOf(at->record)) {
            if (at->record > from.record || place > from.place || (isIncluded && place == from.place))
                return Cell{at->record, place};
        }
    }
    return std::nullopt;
}

std::optional<CellSearch::Cell> CellSearch::previous(const Cell &from, bool isIncluded)
{
    auto at = std::ranges::upper_bound(m_found, from.record, {}, &Found::record);
    while (at != m_found.begin()) {
        --at;
        const std::vector<int> places = placesOf(at->record);
        for (const int place : places | std::views::reverse) {
            if (at->record < from.record || place < from.place || (isIncluded && place == from.place))
                return Cell{at->record, place};
        }
    }
    return std::nullopt;
}

std::optional<CellSearch::Cell> CellSearch::first()
{
    return next({m_range.first, 0}, true);
}

std::optional<CellSearch::Cell> CellSearch::last()
{
    return previous({m_range.last, std::numeric_limits<int>::max()}, true);
}

qint64 CellSearch::numberOf(const Cell &cell)
{
    const auto at = std::ranges::lower_bound(m_found, cell.record, {}, &Found::record);
    const std::vector<int> places = placesOf(cell.record);
    return (at == m_found.end() ? m_count : at->before) +
           std::ranges::count_if(places, [&](int place) { return place <= cell.place; });
}

} // namespace KOVAVSFDataGridLib
