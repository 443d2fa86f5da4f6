#include "query/derivation/DerivationMemo.h"

namespace KOVAVSFDataGridLib {

std::shared_ptr<const Derivation> DerivationMemo::of(const QString &statement,
                                                     const std::vector<SourceField> &fields,
                                                     const Dialect &dialect, const StarSizes &sizes)
{
    if (const auto *const known = m_derivations.find(std::tie(statement, fields, dialect, sizes)))
        return *known;
    return m_derivations.insert(Key(statement, fields, dialect, sizes),
                                std::make_shared<const Derivation>(statement, fields, dialect, sizes));
}

} // namespace KOVAVSFDataGridLib
