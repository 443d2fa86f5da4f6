#pragma once

#include "query/derivation/Derivation.h"

#include <list>
#include <memory>

namespace KOVAVSFDataGridLib {

// Keeps the derivations that were asked for last: one user action asks for that of the shown statement many
// times, and taking a long statement apart takes milliseconds. Copies share what they keep.
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

    std::list<Entry> m_entries; // the latest first
};

} // namespace KOVAVSFDataGridLib
