#pragma once

#include "export/RecordWriter.h"

namespace KOVAVSFDataGridLib {

// Records as lines of comma-separated values.
class CsvRows final : public RowTexts
{
public:
    // For `guardsFormulas`, see CsvWriter.
    CsvRows(ExportColumns columns, bool guardsFormulas);

    void appendHeadings(QByteArray &text) const;
    void append(QByteArray &text, const std::vector<ADODB::RawValue> &cells) override;

private:
    // What is asked for each value, together.
    struct Column
    {
        std::size_t field;
        ADODB::DataTypeEnum type;
        bool isText; // see isTextType()
    };

    // The maximum size of a record.
    qsizetype roomFor(const std::vector<ADODB::RawValue> &cells) const;
    // Reserves space at the end of the text; the caller must cut off what it doesn't use.
    static char *writableEnd(QByteArray &text, qsizetype room);
    // Writes a cell and returns its end; null if the cell must be converted to text first.
    char *write(char *to, const ADODB::RawValue &cell, const Column &column) const;
    void appendValue(QByteArray &text, QByteArrayView value, bool isText) const;

    const ExportColumns m_exported;
    std::vector<Column> m_columns;
    const bool m_guardsFormulas;
    QByteArray m_value;
};

} // namespace KOVAVSFDataGridLib
