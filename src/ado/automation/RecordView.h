#pragma once

#include "ado/automation/Criteria.h"

#include <optional>
#include <vector>

namespace ADODB {

class Recordset;

// Which records of a recordset are visited, and in which order: ADO's Filter and Sort. Both are determined
// when they are set. Later, deleted records leave, and new ones join at the end.
//
// Places are counted from 1.
class RecordView
{
public:
    explicit RecordView(const Recordset &recordset) : m_recordset(recordset) {}

    // Whether all records are visited in their own order. A record's place is its number then.
    bool isWhole() const { return !m_isRestricted; }
    void reset();
    // The records that meet the criteria, or those of `records`, in the order of `sort` as ADO's property has
    // it ("name DESC, id"). Empty ones don't restrict. Throws 3001 and 3265, and changes nothing then.
    void set(const std::optional<Criteria> &criteria, const std::optional<std::vector<qint64>> &records,
             const QString &sort);

    qint64 count();
    qint64 recordAt(qint64 place);
    // The place of a record; of one that is not visited, the one before it, and then `isThere` is false.
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
        bool isNumeric;
    };
    std::vector<SortColumn> parseSort(const QString &sort) const;
    void sortBy(const std::vector<SortColumn> &columns, std::vector<qint64> &records) const;
    // Takes over what was deleted and added since.
    void follow();
    void remove(qint64 record);

    const Recordset &m_recordset;
    bool m_isRestricted = false;
    bool m_isSorted = false;
    std::vector<qint64> m_records; // by place
    qint64 m_latestPlace = 0;      // most walks ask for the place that they took a record from
    std::size_t m_removalsSeen = 0;
    qint64 m_recordsSeen = 0;
};

} // namespace ADODB
