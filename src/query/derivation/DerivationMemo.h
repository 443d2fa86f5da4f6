#pragma once

#include "query/RecentlyUsed.h"
#include "query/derivation/Derivation.h"

#include <memory>
#include <tuple>
#include <vector>

namespace KOVAVSFDataGridLib {

// A cache of the last derivations: one user action needs the one of the shown statement many times, and
// parsing a long statement takes milliseconds. Copies share the cached objects.
class DerivationMemo
{
public:
    std::shared_ptr<const Derivation> of(const QString &statement, const std::vector<SourceField> &fields,
                                         const Dialect &dialect, const StarSizes &sizes = {});

private:
    using Key = std::tuple<QString, std::vector<SourceField>, Dialect, StarSizes>;

    // Enough for the shown statement, all fields and the part fields, each without fields, with fields and
    // with star sizes, and for statements derived from them.
    RecentlyUsed<Key, std::shared_ptr<const Derivation>> m_derivations{16};
};

} // namespace KOVAVSFDataGridLib
