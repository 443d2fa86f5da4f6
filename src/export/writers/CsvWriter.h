#pragma once

#include "export/RecordWriter.h"
#include "export/TextSink.h"

namespace KOVAVSFDataGridLib {

// Comma-separated values after RFC 4180: lines end with CR LF, and a value with a comma, a quote or a line
// end is quoted. Null is an empty value.
class CsvWriter final : public RecordWriter
{
public:
    struct Options
    {
        TextEncoding encoding = TextEncoding::Utf8WithMark;
        bool hasHeadings = true;
        // An apostrophe before each text that a spreadsheet would take for a formula.
        bool guardsFormulas = true;
    };

    // `device` is open for writing and must outlive this object.
    CsvWriter(QIODevice &device, const Options &options);

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

private:
    // Makes a value of what was appended from `start` on.
    void finishValue(qsizetype start, bool isText);

    const Options m_options;
    TextSink m_sink;
    ExportColumns m_columns;
};

} // namespace KOVAVSFDataGridLib
