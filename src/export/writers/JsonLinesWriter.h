#pragma once

#include "export/RecordWriter.h"
#include "export/TextSink.h"

namespace KOVAVSFDataGridLib {

// One JSON object per line, with the headings as member names; a repeated heading gets a number. Numbers keep
// all their digits, binary values are in Base64.
class JsonLinesWriter final : public RecordWriter
{
public:
    // `device` must be open for writing and outlive this object.
    explicit JsonLinesWriter(QIODevice &device);

    void begin(const ExportColumns &columns) override;
    void row(const std::vector<ADODB::RawValue> &cells) override;
    void end() override;

private:
    void appendValue(const ADODB::RawValue &cell, ADODB::DataTypeEnum type);

    TextSink m_sink;
    ExportColumns m_columns;
    std::vector<QByteArray> m_names; // including quotes and colon
    QByteArray m_value;
};

} // namespace KOVAVSFDataGridLib
