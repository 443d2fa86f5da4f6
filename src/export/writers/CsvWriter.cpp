#include "export/writers/CsvWriter.h"

#include "ado/values/FieldText.h"
#include "export/writers/FormulaGuard.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

// What the bytes of a text need, found in one pass without branches, several bytes at a time.
struct TextLook
{
    bool needsQuotes = false;
    bool isAscii = true;
};

TextLook lookAt(QByteArrayView text)
{
    unsigned special = 0;
    unsigned bits = 0;
    for (const char c : text) {
        special |= static_cast<unsigned>(c == ',') | static_cast<unsigned>(c == '"') |
                   static_cast<unsigned>(c == '\r') | static_cast<unsigned>(c == '\n');
        bits |= static_cast<unsigned char>(c);
    }
    return {special != 0, bits < 0x80};
}

char *writeQuoted(char *to, QByteArrayView text, bool isGuarded)
{
    *to++ = '"';
    if (isGuarded)
        *to++ = '\'';
    for (const char c : text) {
        if (c == '"')
            *to++ = '"';
        *to++ = c;
    }
    *to++ = '"';
    return to;
}

// The most that a text can take: each quote twice, two around it, and an apostrophe.
qsizetype longestText(QByteArrayView text)
{
    return 2 * text.size() + 3;
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
        appendValue(column.heading.toUtf8(), true);
        text += ',';
    }
    text.chop(1);
    text += "\r\n";
}

// Room is made once for a whole record, and what is written needs no further look at it.
void CsvWriter::row(const std::vector<ADODB::RawValue> &cells)
{
    QByteArray &text = m_sink.text();
    const qsizetype room = roomFor(cells);
    char *to = writableEnd(room);
    for (const ExportColumn &column : m_columns) {
        const ADODB::RawValue &cell = cells[static_cast<std::size_t>(column.field)];
        if (char *const end = write(to, cell, column.type)) {
            to = end;
        } else { // which is rare
            text.truncate(to - text.constData());
            m_value.clear();
            ADODB::appendText(m_value, cell, column.type);
            appendValue(m_value, cell.kind == ADODB::RawValue::Kind::Text);
            to = writableEnd(room);
        }
        *to++ = ',';
    }
    if (!m_columns.empty())
        --to; // the comma after the last value
    *to++ = '\r';
    *to++ = '\n';
    text.truncate(to - text.constData());
    m_sink.flushWhenFull();
}

void CsvWriter::end()
{
    m_sink.flush();
}

qsizetype CsvWriter::roomFor(const std::vector<ADODB::RawValue> &cells) const
{
    qsizetype room = 2; // the line's end
    for (const ExportColumn &column : m_columns) {
        const ADODB::RawValue &cell = cells[static_cast<std::size_t>(column.field)];
        const bool isText = cell.kind == ADODB::RawValue::Kind::Text;
        room += 1 + (isText ? longestText(cell.bytes) : ADODB::longestNumber);
    }
    return room;
}

char *CsvWriter::writableEnd(qsizetype room)
{
    QByteArray &text = m_sink.text();
    const qsizetype end = text.size();
    text.resize(end + room);
    return text.data() + end;
}

char *CsvWriter::write(char *to, const ADODB::RawValue &cell, ADODB::DataTypeEnum type) const
{
    if (cell.kind != ADODB::RawValue::Kind::Text)
        return ADODB::writeNumber(to, cell, type);
    const TextLook look = lookAt(cell.bytes);
    if (!ADODB::isShownAsStored(cell.bytes, type, look.isAscii))
        return nullptr;
    const bool isGuarded = m_options.guardsFormulas && looksLikeFormula(cell.bytes);
    if (isGuarded || look.needsQuotes)
        return writeQuoted(to, cell.bytes, isGuarded);
    return std::copy(cell.bytes.begin(), cell.bytes.end(), to);
}

void CsvWriter::appendValue(QByteArrayView value, bool isText)
{
    const bool isGuarded = isText && m_options.guardsFormulas && looksLikeFormula(value);
    QByteArray &text = m_sink.text();
    if (!isGuarded && !lookAt(value).needsQuotes) {
        text += value;
        return;
    }
    char *const to = writableEnd(longestText(value));
    text.truncate(writeQuoted(to, value, isGuarded) - text.constData());
}

} // namespace KOVAVSFDataGridLib
