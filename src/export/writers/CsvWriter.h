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
    // The most that a record takes.
    qsizetype roomFor(const std::vector<ADODB::RawValue> &cells) const;
    // Makes room behind the text; what isn't used is to be cut off.
    char *writableEnd(qsizetype room);
    // Writes a cell and answers its end; null where it has to be written by way of its text.
    char *write(char *to, const ADODB::RawValue &cell, ADODB::DataTypeEnum type) const;
    void appendValue(QByteArrayView value, bool isText);

    const Options m_options;
    TextSink m_sink;
    ExportColumns m_columns;
    QByteArray m_value;
};

} // namespace KOVAVSFDataGridLib
