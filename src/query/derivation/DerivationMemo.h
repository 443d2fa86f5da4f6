#pragma once

#include "query/derivation/Derivation.h"

#include <list>
#include <memory>

namespace KOVAVSFDataGridLib {

// A cache of the last derivations: one user action needs the one of the shown statement many times, and
// parsing a long statement takes milliseconds. Copies share the cached objects.
class DerivationMemo
{
public:
    std::shared_ptr<const Derivation> of(const QString &statement, const std::vector<SourceField> &fields,
                                         const Dialect &dialect, const StarSizes &sizes = {});

private:
    struct Entry
    {
        QString statement;
        std::vector<SourceField> fields;
        Dialect dialect;
        StarSizes sizes;
        std::shared_ptr<const Derivation> derivation;
    };

    std::list<Entry> m_entries; // most recently used first
};

} // namespace KOVAVSFDataGridLib
