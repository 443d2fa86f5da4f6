#include "export/writers/JsonLinesWriter.h"

#include "ado/values/FieldText.h"
#include "ado/values/NumericTypes.h"

#include <QtCore/QSet>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace KOVAVSFDataGridLib {

namespace {

void appendString(QByteArray &json, QByteArrayView utf8)
{
    json += '"';
    for (const char c : utf8) {
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (c == '\n') {
            json += "\\n";
        } else if (c == '\r') {
            json += "\\r";
        } else if (c == '\t') {
            json += "\\t";
        } else if (static_cast<unsigned char>(c) < 0x20) {
            json += "\\u00" + QByteArray(1, c).toHex();
        } else {
            json += c;
        }
    }
    json += '"';
}

QByteArrayView withoutDigits(QByteArrayView text)
{
    const auto end = std::find_if(text.begin(), text.end(), [](char c) { return c < '0' || c > '9'; });
    return text.sliced(end - text.begin());
}

// Whether a database's decimal text is also a JSON number.
bool isJsonNumber(QByteArrayView text)
{
    if (text.startsWith('-'))
        text = text.sliced(1);
    const QByteArrayView fraction = withoutDigits(text);
    const bool hasLeadingZero = text.startsWith('0') && text.size() - fraction.size() > 1;
    if (fraction.size() == text.size() || hasLeadingZero)
        return false;
    return fraction.isEmpty() ||
           (fraction[0] == '.' && fraction.size() > 1 && withoutDigits(fraction.sliced(1)).isEmpty());
}

void appendReal(QByteArray &json, double value)
{
    std::array<char, 32> text;
    const auto end = std::to_chars(text.begin(), text.end(), value).ptr; // reads back as the same number
    json.append(text.data(), end - text.data());
}

} // namespace

JsonLinesWriter::JsonLinesWriter(QIODevice &device) : m_sink(device, TextEncoding::Utf8) {}

void JsonLinesWriter::begin(const ExportColumns &columns)
{
    m_columns = columns;
    QSet<QString> taken;
    for (const ExportColumn &column : m_columns)
        taken.insert(column.heading);
    QSet<QString> used;
    for (const ExportColumn &column : m_columns) {
        QString name = column.heading;
        for (int number = 2; used.contains(name); ++number) {
            const QString numbered = column.heading + u'_' + QString::number(number);
            if (!taken.contains(numbered))
                name = numbered;
        }
        used.insert(name);
        taken.insert(name);
        QByteArray member;
        appendString(member, name.toUtf8());
        m_names.push_back(member + ':');
    }
}

void JsonLinesWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    QByteArray &json = m_sink.text();
    json += '{';
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (i > 0)
            json += ',';
        json += m_names[i];
        appendValue(cells[static_cast<std::size_t>(m_columns[i].field)], m_columns[i].type);
    }
    json += "}\n";
    m_sink.flushWhenFull();
}

void JsonLinesWriter::appendValue(const ADODB::RawValue &cell, ADODB::DataTypeEnum type)
{
    using Kind = ADODB::RawValue::Kind;
    QByteArray &json = m_sink.text();
    if (cell.kind == Kind::Null || (cell.kind == Kind::Real && !std::isfinite(cell.real))) {
        json += "null";
        return;
    }
    if (cell.kind == Kind::Real && type != ADODB::adSingle)
        return appendReal(json, cell.real);
    if (cell.kind == Kind::Blob) {
        json += '"' + cell.bytes.toByteArray().toBase64() + '"';
        return;
    }
    m_value.resize(0);
    ADODB::appendText(m_value, cell, type);
    if (type == ADODB::adBoolean && (m_value == "True" || m_value == "False"))
        json += m_value.toLower();
    else if ((cell.kind != Kind::Text || ADODB::isNumericType(type)) && isJsonNumber(m_value))
        json += m_value;
    else
        appendString(json, m_value);
}

void JsonLinesWriter::end()
{
    m_sink.flush();
}

} // namespace KOVAVSFDataGridLib
