#pragma once

#include "export/TextSink.h"
#include "export/writers/CsvRows.h"

#include <optional>

namespace KOVAVSFDataGridLib {

// Comma-separated values as in RFC 4180: lines end with CR LF, and values that contain a comma, a quote or a
// line end are quoted. Null is an empty value.
class CsvWriter final : public RecordWriter
{
public:
    struct Options
    {
        TextEncoding encoding = TextEncoding::Utf8WithMark;
        bool hasHeadings = true;
        // Writes an apostrophe before each text that a spreadsheet would evaluate as a formula.
        bool guardsFormulas = true;
    };

    // `device` must be open for writing and outlive this object.
    CsvWriter(QIODevice &device, const Options &options);

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    std::unique_ptr<RowTexts> newRowTexts() const override;
    void add(QByteArrayView text) override;
    void end() override;

private:
    const Options m_options;
    TextSink m_sink;
    ExportColumns m_columns;
    std::optional<CsvRows> m_rows;
};

} // namespace KOVAVSFDataGridLib
