#pragma once

#include "export/RecordWriter.h"
#include "export/TextSink.h"

namespace KOVAVSFDataGridLib {

// A web page of one table. Numbers are on the right.
class HtmlWriter final : public RecordWriter
{
public:
    // `device` is open for writing and must outlive this object.
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
