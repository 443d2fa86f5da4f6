#pragma once

#include "ado/providers/access/file/AccessReader.h"
#include "ado/providers/access/file/AccessTypes.h"

#include <optional>
#include <vector>

namespace ADODB {

// Where to find the rows with a given value in one column, so that joining two tables does not read the one
// again for each row of the other. It answers all rows that can have the value, and perhaps others: only
// hashes are kept.
class AccessKeyIndex
{
public:
    // Reads the whole column.
    AccessKeyIndex(AccessReader &reader, int column);

    // Equal values have equal hashes. Nothing when values of this kind can't be looked up in such a column.
    static std::optional<std::size_t> hashOf(const RawValue &value, AccessTypes::Family family);

    // Positions of the reader.
    std::vector<qint64> find(std::size_t hash) const;

private:
    struct Entry
    {
        std::size_t hash;
        qint64 position;
    };
    std::vector<Entry> m_entries; // by hash, then position
    std::vector<qint64> m_others; // rows whose value has no hash
};

} // namespace ADODB
