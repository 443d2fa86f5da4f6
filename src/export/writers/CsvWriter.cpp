#include "export/writers/CsvWriter.h"

namespace KOVAVSFDataGridLib {

CsvWriter::CsvWriter(QIODevice &device, const Options &options)
    : m_options(options), m_sink(device, options.encoding)
{
}

void CsvWriter::begin(const ExportColumns &columns)
{
    m_columns = columns;
    m_rows.emplace(m_columns, m_options.guardsFormulas);
    if (m_options.hasHeadings)
        m_rows->appendHeadings(m_sink.text());
}

void CsvWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    m_rows->append(m_sink.text(), cells); // NOLINT(bugprone-unchecked-optional-access): begin() made it
    m_sink.flushWhenFull();
}

std::unique_ptr<RowTexts> CsvWriter::newRowTexts() const
{
    return std::make_unique<CsvRows>(m_columns, m_options.guardsFormulas);
}

void CsvWriter::add(QByteArrayView text)
{
    m_sink.write(text);
}

void CsvWriter::end()
{
    m_sink.flush();
}

} // namespace KOVAVSFDataGridLib
