#include "query/derivation/DerivationMemo.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

// Enough for the shown statement, all fields and the part fields, each without fields, with fields and with
// star sizes, and for statements derived from them.
constexpr std::size_t entriesKept = 16;

} // namespace

std::shared_ptr<const Derivation> DerivationMemo::of(const QString &statement,
                                                     const std::vector<SourceField> &fields,
                                                     const Dialect &dialect, const StarSizes &sizes)
{
    const auto known = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
        return entry.statement == statement && entry.dialect == dialect && entry.sizes == sizes &&
               entry.fields == fields;
    });
    if (known != m_entries.end()) {
        m_entries.splice(m_entries.begin(), m_entries, known);
    } else {
        m_entries.push_front({statement, fields, dialect, sizes,
                              std::make_shared<const Derivation>(statement, fields, dialect, sizes)});
        if (m_entries.size() > entriesKept)
            m_entries.pop_back();
    }
    return m_entries.front().derivation;
}

} // namespace KOVAVSFDataGridLib
