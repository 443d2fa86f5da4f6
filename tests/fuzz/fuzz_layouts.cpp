#include "FuzzInput.h"

#include "ado/values/DisplayFormat.h"
#include "session/layout/SavedLayout.h"

using namespace KOVAVSFDataGridLib;
using KovaTest::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto read = SavedLayout::fromText(text);
    if (const auto *reason = std::get_if<QString>(&read)) {
        Require(!reason->isEmpty());
    } else {
        const auto &layout = std::get<SavedLayout>(read);
        Require(!layout.columns.empty() && layout.frozen >= 0);
        Require(layout.frozen <= static_cast<int>(layout.columns.size()));
        for (const SavedLayout::Column &column : layout.columns) {
            Require(!column.field.isEmpty() && column.width <= SavedLayout::widest);
            Require(ADODB::DisplayFormat::fromText(column.format).has_value());
        }
        const auto again = SavedLayout::fromText(layout.toText());
        Require(std::holds_alternative<SavedLayout>(again) && std::get<SavedLayout>(again) == layout);
    }

    const QStringList texts = KovaTest::TextsOf(data, size);
    if (const auto format = ADODB::DisplayFormat::fromText(texts.value(0))) {
        Require(ADODB::DisplayFormat::fromText(format->toText()) == format);
        format->applied(texts.value(1));
    }
    return 0;
}
