#pragma once

#include "ado/providers/access/file/AccessReader.h"
#include "ado/providers/access/file/AccessTypes.h"

#include <optional>
#include <vector>

namespace ADODB {

// Finds the rows with a given value in one column, so that joining two tables does not read one of them again
// for each row of the other. The result contains all matching rows and possibly others, because only hashes
// are stored.
class AccessKeyIndex
{
public:
    // Reads the whole column.
    AccessKeyIndex(AccessReader &reader, int column);

    // Equal values have equal hashes. Empty if values of this kind can't be looked up in such a column.
    static std::optional<std::size_t> hashOf(const RawValue &value, AccessTypes::Family family);

    // See AccessReader::position().
    std::vector<qint64> find(std::size_t hash) const;

private:
    struct Entry
    {
        std::size_t hash;
        qint64 position;
    };
    std::vector<Entry> m_entries; // sorted by hash, then by position
    std::vector<qint64> m_others; // rows whose value has no hash
};

} // namespace ADODB
