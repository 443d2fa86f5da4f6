#pragma once

#include "export/RecordWriter.h"
#include "export/TextSink.h"

namespace KOVAVSFDataGridLib {

// A web page with one table. Numbers are right-aligned.
class HtmlWriter final : public RecordWriter
{
public:
    // `device` must be open for writing and outlive this object.
    HtmlWriter(QIODevice &device, bool hasHeadings);

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

private:
    const bool m_hasHeadings;
    TextSink m_sink;
    ExportColumns m_columns;
    std::vector<bool> m_isNumeric; // by column
    QByteArray m_value;
};

} // namespace KOVAVSFDataGridLib
