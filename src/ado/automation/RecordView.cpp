#include "ado/automation/RecordView.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/Texts.h"
#include "ado/automation/ValueOrder.h"

#include <algorithm>
#include <numeric>

namespace ADODB {

using namespace Qt::Literals::StringLiterals;

void RecordView::reset()
{
    m_isRestricted = false;
    m_records = {};
}

void RecordView::set(const std::optional<Criteria> &criteria,
                     const std::optional<std::vector<qint64>> &records, const QString &sort)
{
    const std::vector<SortColumn> columns = parseSort(sort);
    if (!criteria && !records && columns.empty())
        return reset();
    std::vector<qint64> visited;
    if (records) {
        visited = *records;
        std::sort(visited.begin(), visited.end());
        visited.erase(std::unique(visited.begin(), visited.end()), visited.end());
    } else {
        visited.resize(static_cast<std::size_t>(m_recordset.RecordCount()));
        std::iota(visited.begin(), visited.end(), 1);
    }
    if (criteria)
        std::erase_if(visited, [&](qint64 record) { return !criteria->matches(m_recordset, record); });
    sortBy(columns, visited);
    m_records = std::move(visited);
    m_isRestricted = true;
    m_isSorted = !columns.empty();
    m_removalsSeen = m_recordset.removals().size();
    m_recordsSeen = m_recordset.RecordCount();
}

std::vector<RecordView::SortColumn> RecordView::parseSort(const QString &sort) const
{
    std::vector<SortColumn> columns;
    if (sort.trimmed().isEmpty())
        return columns;
    for (const QString &part : sort.split(u',')) {
        QString name = part.trimmed();
        SortColumn column{0, false, ComparedAs::Stored};
        for (const auto &[word, isDescending] : {std::pair{u" ASC", false}, std::pair{u" DESC", true}}) {
            if (name.endsWith(QStringView(word), Qt::CaseInsensitive)) {
                name = name.chopped(QStringView(word).size()).trimmed();
                column.isDescending = isDescending;
                break;
            }
        }
        if (name.startsWith(u'[') && name.endsWith(u']'))
            name = name.sliced(1, name.size() - 2);
        if (name.isEmpty())
            throw Error(adErrInvalidArgument, Texts::badSort().arg(sort));
        const Field &field = m_recordset.Fields().Item(name);
        column.column = field.Index();
        column.as = comparedAs(field.Type());
        columns.push_back(column);
    }
    return columns;
}

void RecordView::sortBy(const std::vector<SortColumn> &columns, std::vector<qint64> &records) const
{
    if (columns.empty())
        return;
    // Reads each value only once.
    std::vector<QVariant> values;
    values.reserve(records.size() * columns.size());
    for (const qint64 record : records) {
        for (const SortColumn &column : columns)
            values.push_back(m_recordset.CellValue(record, column.column));
    }
    std::vector<std::size_t> order(records.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const int compared = compareValues(values[left * columns.size() + i],
                                               values[right * columns.size() + i], columns[i].as);
            if (compared != 0)
                return columns[i].isDescending ? compared > 0 : compared < 0;
        }
        return false;
    });
    std::vector<qint64> sorted(records.size());
    std::transform(order.begin(), order.end(), sorted.begin(),
                   [&](std::size_t index) { return records[index]; });
    records = std::move(sorted);
}

void RecordView::follow()
{
    const std::vector<qint64> &removals = m_recordset.removals();
    for (; m_removalsSeen < removals.size(); ++m_removalsSeen) {
        remove(removals[m_removalsSeen]);
        --m_recordsSeen;
    }
    while (m_recordsSeen < m_recordset.RecordCount())
        m_records.push_back(++m_recordsSeen);
}

void RecordView::remove(qint64 record)
{
    std::erase(m_records, record);
    for (qint64 &other : m_records)
        other -= other > record;
}

qint64 RecordView::count()
{
    if (isWhole())
        return m_recordset.RecordCount();
    follow();
    return static_cast<qint64>(m_records.size());
}

qint64 RecordView::recordAt(qint64 place)
{
    if (isWhole())
        return place;
    follow();
    m_latestPlace = place;
    return m_records[static_cast<std::size_t>(place) - 1];
}

RecordView::Place RecordView::placeOf(qint64 record)
{
    if (isWhole())
        return {record, true};
    follow();
    if (m_latestPlace >= 1 && m_latestPlace <= count() && recordAt(m_latestPlace) == record)
        return {m_latestPlace, true};
    const auto found = m_isSorted ? std::find(m_records.begin(), m_records.end(), record)
                                  : std::lower_bound(m_records.begin(), m_records.end(), record);
    const qint64 before = found - m_records.begin();
    if (found != m_records.end() && *found == record)
        return {before + 1, true};
    return {m_isSorted ? 0 : before, false};
}

} // namespace ADODB
