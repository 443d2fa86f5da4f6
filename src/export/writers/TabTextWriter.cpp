#include "export/writers/TabTextWriter.h"

#include "ado/values/FieldText.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

bool needsQuotes(QByteArrayView value)
{
    return value.startsWith('"') || std::any_of(value.begin(), value.end(),
                                                [](char c) { return c == '\t' || c == '\r' || c == '\n'; });
}

void quoteFrom(QByteArray &text, qsizetype start)
{
    const QByteArrayView value = QByteArrayView(text).sliced(start);
    if (!needsQuotes(value))
        return;
    const QByteArray quoted = '"' + value.toByteArray().replace('"', "\"\"") + '"';
    text.truncate(start);
    text += quoted;
}

} // namespace

void TabTextWriter::appendValue(QByteArray &text, QByteArrayView value)
{
    const qsizetype start = text.size();
    text += value;
    quoteFrom(text, start);
}

void TabTextWriter::begin(const ExportColumns &columns)
{
    m_columns = columns;
    if (!m_hasHeadings)
        return;
    for (const ExportColumn &column : m_columns) {
        appendValue(m_text, column.heading.toUtf8());
        m_text += '\t';
    }
    m_text.chop(1);
    m_text += "\r\n";
}

void TabTextWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    for (const ExportColumn &column : m_columns) {
        const ADODB::RawValue &cell = cells[static_cast<std::size_t>(column.field)];
        const qsizetype start = m_text.size();
        ADODB::appendText(m_text, cell, column.type);
        if (m_rows == 0 && m_columns.size() == 1)
            m_onlyValue = m_text.sliced(start);
        if (cell.kind == ADODB::RawValue::Kind::Text)
            quoteFrom(m_text, start);
        m_text += '\t';
    }
    m_text.chop(1);
    m_text += "\r\n";
    ++m_rows;
}

void TabTextWriter::end()
{
    if (m_rows == 1 && m_columns.size() == 1 && !m_hasHeadings)
        m_text = m_onlyValue;
}

} // namespace KOVAVSFDataGridLib
