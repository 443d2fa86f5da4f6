#include "export/writers/CsvWriter.h"

#include "ado/values/FieldText.h"
#include "export/writers/FormulaGuard.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

bool needsQuotes(QByteArrayView value)
{
    return std::any_of(value.begin(), value.end(),
                       [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; });
}

} // namespace

CsvWriter::CsvWriter(QIODevice &device, const Options &options)
    : m_options(options), m_sink(device, options.encoding)
{
}

void CsvWriter::begin(const ExportColumns &columns)
{
    m_columns = columns;
    if (!m_options.hasHeadings)
        return;
    QByteArray &text = m_sink.text();
    for (const ExportColumn &column : m_columns) {
        const qsizetype start = text.size();
        text += column.heading.toUtf8();
        finishValue(start, true);
        text += ',';
    }
    text.chop(1);
    text += "\r\n";
}

void CsvWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    QByteArray &text = m_sink.text();
    for (const ExportColumn &column : m_columns) {
        const ADODB::RawValue &cell = cells[static_cast<std::size_t>(column.field)];
        const qsizetype start = text.size();
        ADODB::appendText(text, cell, column.type);
        if (cell.kind == ADODB::RawValue::Kind::Text)
            finishValue(start, true);
        text += ',';
    }
    text.chop(1);
    text += "\r\n";
    m_sink.flushWhenFull();
}

void CsvWriter::end()
{
    m_sink.flush();
}

void CsvWriter::finishValue(qsizetype start, bool isText)
{
    QByteArray &text = m_sink.text();
    QByteArrayView value = QByteArrayView(text).sliced(start);
    const bool isGuarded = isText && m_options.guardsFormulas && looksLikeFormula(value);
    if (!isGuarded && !needsQuotes(value))
        return;
    QByteArray quoted = value.toByteArray().replace('"', "\"\"");
    if (isGuarded)
        quoted.prepend('\'');
    text.truncate(start);
    text += '"' + quoted + '"';
}

} // namespace KOVAVSFDataGridLib
