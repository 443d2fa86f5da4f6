#include "export/writers/CsvRows.h"

#include "ado/values/FieldText.h"
#include "export/writers/FormulaGuard.h"

#include <algorithm>
#include <cstring>

namespace KOVAVSFDataGridLib {

namespace {

// What the bytes of a text need.
struct TextLook
{
    bool needsQuotes = false;
    bool isAscii = true;
};

constexpr quint64 inEachByte(unsigned char byte)
{
    return ~quint64{0} / 0xff * byte;
}

// Not 0 if one of the eight bytes is zero.
constexpr quint64 zeroByte(quint64 bytes)
{
    return (bytes - inEachByte(1)) & ~bytes & inEachByte(0x80);
}

// Copies a text and looks at it on the way: eight bytes at a time, without branches. Some are taken twice.
TextLook copyText(char *to, QByteArrayView text)
{
    quint64 special = 0;
    quint64 bits = 0;
    const char *const from = text.data();
    const auto copy = [&]<typename Word>(qsizetype at, Word word) {
        std::memcpy(&word, from + at, sizeof word);
        std::memcpy(to + at, &word, sizeof word);
        const quint64 bytes = word;
        special |= zeroByte(bytes ^ inEachByte(',')) | zeroByte(bytes ^ inEachByte('"')) |
                   zeroByte(bytes ^ inEachByte('\r')) | zeroByte(bytes ^ inEachByte('\n'));
        bits |= bytes;
    };
    const qsizetype size = text.size();
    if (size >= 8) {
        for (qsizetype at = 0; at < size - 8; at += 8)
            copy(at, quint64{});
        copy(size - 8, quint64{});
    } else if (size >= 4) {
        copy(0, quint32{});
        copy(size - 4, quint32{});
    } else if (size > 0) {
        copy(0, quint8{});
        copy(size / 2, quint8{});
        copy(size - 1, quint8{});
    }
    return {special != 0, (bits & inEachByte(0x80)) == 0};
}

char *writeQuoted(char *to, QByteArrayView text, bool isGuarded)
{
    *to++ = '"';
    if (isGuarded)
        *to++ = '\'';
    while (!text.isEmpty()) {
        const qsizetype quote = text.indexOf('"');
        const QByteArrayView part = quote < 0 ? text : text.first(quote + 1);
        to = std::copy(part.begin(), part.end(), to);
        if (quote >= 0)
            *to++ = '"';
        text = text.sliced(part.size());
    }
    *to++ = '"';
    return to;
}

// The maximum length of a text: every quote doubled, two quotes around it, and an apostrophe.
qsizetype longestText(QByteArrayView text)
{
    return 2 * text.size() + 3;
}

} // namespace

CsvRows::CsvRows(ExportColumns columns, bool guardsFormulas)
    : m_columns(std::move(columns)), m_guardsFormulas(guardsFormulas)
{
}

void CsvRows::appendHeadings(QByteArray &text) const
{
    for (const ExportColumn &column : m_columns) {
        appendValue(text, column.heading.toUtf8(), true);
        text += ',';
    }
    text.chop(1);
    text += "\r\n";
}

// Allocates once per record, so that writing needs no further checks.
void CsvRows::append(QByteArray &text, const std::vector<ADODB::RawValue> &cells)
{
    const qsizetype room = roomFor(cells);
    char *to = writableEnd(text, room);
    for (const ExportColumn &column : m_columns) {
        const ADODB::RawValue &cell = cells[static_cast<std::size_t>(column.field)];
        if (char *const end = write(to, cell, column.type)) {
            to = end;
        } else { // which is rare
            text.truncate(to - text.constData());
            m_value.clear();
            ADODB::appendText(m_value, cell, column.type);
            appendValue(text, m_value, cell.kind == ADODB::RawValue::Kind::Text);
            to = writableEnd(text, room);
        }
        *to++ = ',';
    }
    if (!m_columns.empty())
        --to; // the comma after the last value
    *to++ = '\r';
    *to++ = '\n';
    text.truncate(to - text.constData());
}

qsizetype CsvRows::roomFor(const std::vector<ADODB::RawValue> &cells) const
{
    qsizetype room = 2; // the line's end
    for (const ExportColumn &column : m_columns) {
        const ADODB::RawValue &cell = cells[static_cast<std::size_t>(column.field)];
        const bool isText = cell.kind == ADODB::RawValue::Kind::Text;
        room += 1 + (isText ? longestText(cell.bytes) : ADODB::longestNumber);
    }
    return room;
}

char *CsvRows::writableEnd(QByteArray &text, qsizetype room)
{
    const qsizetype end = text.size();
    text.resize(end + room);
    return text.data() + end;
}

char *CsvRows::write(char *to, const ADODB::RawValue &cell, ADODB::DataTypeEnum type) const
{
    if (cell.kind != ADODB::RawValue::Kind::Text)
        return ADODB::writeNumber(to, cell, type);
    const TextLook look = copyText(to, cell.bytes);
    if (!ADODB::isShownAsStored(cell.bytes, type, look.isAscii))
        return nullptr;
    const bool isGuarded = m_guardsFormulas && looksLikeFormula(cell.bytes);
    if (isGuarded || look.needsQuotes)
        return writeQuoted(to, cell.bytes, isGuarded);
    return to + cell.bytes.size();
}

void CsvRows::appendValue(QByteArray &text, QByteArrayView value, bool isText) const
{
    const bool isGuarded = isText && m_guardsFormulas && looksLikeFormula(value);
    char *const to = writableEnd(text, longestText(value));
    const bool isQuoted = copyText(to, value).needsQuotes || isGuarded;
    char *const end = isQuoted ? writeQuoted(to, value, isGuarded) : to + value.size();
    text.truncate(end - text.constData());
}

} // namespace KOVAVSFDataGridLib
