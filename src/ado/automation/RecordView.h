#pragma once

#include "ado/automation/Criteria.h"
#include "ado/automation/ValueOrder.h"

#include <optional>
#include <vector>

namespace ADODB {

class Recordset;

// The records of a recordset that are visited, and their order: ADO's Filter and Sort. Both are evaluated
// when they are set. Later, deleted records are removed and new ones added at the end.
//
// Places are numbered from 1.
class RecordView
{
public:
    explicit RecordView(const Recordset &recordset) : m_recordset(recordset) {}

    // Whether all records are visited in their original order. A record's place is then its number.
    bool isWhole() const { return !m_isRestricted; }
    void reset();
    // Selects the records that match the criteria, or those of `records`, sorted as in ADO's property ("name
    // DESC, id"). Empty arguments don't restrict. Throws 3001 and 3265; the view is then unchanged.
    void set(const std::optional<Criteria> &criteria, const std::optional<std::vector<qint64>> &records,
             const QString &sort);

    qint64 count();
    qint64 recordAt(qint64 place);
    // A record's place. If it is not visited, the place before it, and `isThere` is false.
    struct Place
    {
        qint64 number;
        bool isThere;
    };
    Place placeOf(qint64 record);

private:
    struct SortColumn
    {
        int column;
        bool isDescending;
        ComparedAs as;
    };
    std::vector<SortColumn> parseSort(const QString &sort) const;
    void sortBy(const std::vector<SortColumn> &columns, std::vector<qint64> &records) const;
    // Applies the deletions and additions since the last call.
    void follow();
    void remove(qint64 record);

    const Recordset &m_recordset;
    bool m_isRestricted = false;
    bool m_isSorted = false;
    std::vector<qint64> m_records; // by place
    qint64 m_latestPlace = 0;      // a cache: most callers ask for the place they just took a record from
    std::size_t m_removalsSeen = 0;
    qint64 m_recordsSeen = 0;
};

} // namespace ADODB
