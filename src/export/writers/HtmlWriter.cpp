#include "export/writers/HtmlWriter.h"

#include "ado/values/FieldText.h"
#include "ado/values/NumericTypes.h"
#include "export/writers/HtmlText.h"

namespace KOVAVSFDataGridLib {

namespace {

constexpr char pageHead[] =
    "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<style>\n"
    "table { border-collapse: collapse; font-family: sans-serif; font-size: 10pt; }\n"
    "th, td { border: 1px solid #b0b0b0; padding: 2px 6px; text-align: left; vertical-align: top;"
    " white-space: pre-wrap; }\n"
    "th { background: #e8e8e8; position: sticky; top: 0; }\n"
    ".n { text-align: right; }\n</style>\n</head>\n<body>\n<table>\n";

} // namespace

HtmlWriter::HtmlWriter(QIODevice &device, bool hasHeadings)
    : m_hasHeadings(hasHeadings), m_sink(device, TextEncoding::Utf8)
{
}

void HtmlWriter::begin(const ExportColumns &columns)
{
    m_columns = columns;
    for (const ExportColumn &column : m_columns)
        m_isNumeric.push_back(ADODB::isNumericType(column.type));
    QByteArray &html = m_sink.text();
    html += pageHead;
    if (m_hasHeadings) {
        html += "<thead>\n<tr>";
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            html += m_isNumeric[i] ? "<th class=\"n\">" : "<th>";
            appendHtml(html, m_columns[i].heading.toUtf8());
            html += "</th>";
        }
        html += "</tr>\n</thead>\n";
    }
    html += "<tbody>\n";
}

void HtmlWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    QByteArray &html = m_sink.text();
    html += "<tr>";
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        html += m_isNumeric[i] ? "<td class=\"n\">" : "<td>";
        m_value.resize(0);
        ADODB::appendText(m_value, cells[static_cast<std::size_t>(m_columns[i].field)], m_columns[i].type);
        appendHtml(html, m_value);
        html += "</td>";
    }
    html += "</tr>\n";
    m_sink.flushWhenFull();
}

void HtmlWriter::end()
{
    m_sink.text() += "</tbody>\n</table>\n</body>\n</html>\n";
    m_sink.flush();
}

} // namespace KOVAVSFDataGridLib
