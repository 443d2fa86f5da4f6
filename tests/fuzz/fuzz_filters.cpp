#include "FuzzInput.h"

#include "filter/saved/SavedFilters.h"

using namespace KOVAVSFDataGridLib;
using KovaTest::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    auto read = SavedFilters::fromText(text);
    if (const auto *reason = std::get_if<QString>(&read)) {
        Require(!reason->isEmpty());
        return 0;
    }
    auto &filters = std::get<SavedFilters>(read);
    Require(filters.recent().size() <= SavedFilters::mostRecent);
    for (const SavedFilters::Named &named : filters.named()) {
        Require(!named.name.isEmpty() && SavedFilters::nameOf(named.name) == named.name);
        Require(named.filter.condition.isEmpty() != named.filter.rows.isEmpty());
    }
    const auto again = SavedFilters::fromText(filters.toText());
    Require(std::holds_alternative<SavedFilters>(again) && std::get<SavedFilters>(again) == filters);
    return 0;
}
