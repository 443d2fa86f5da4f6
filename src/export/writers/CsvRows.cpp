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

// Not 0 when one of the eight bytes is.
constexpr quint64 zeroByte(quint64 bytes)
{
    return (bytes - inEachByte(1)) & ~bytes & inEachByte(0x80);
}

template<typename Word>
quint64 wordAt(const char *at)
{
    Word word = 0;
    std::memcpy(&word, at, sizeof word);
    return word;
}

// Eight bytes at a time, without branches. Some are looked at twice, and zeros are added to a short text.
TextLook lookAt(QByteArrayView text)
{
    quint64 special = 0;
    quint64 bits = 0;
    const auto look = [&](quint64 bytes) {
        special |= zeroByte(bytes ^ inEachByte(',')) | zeroByte(bytes ^ inEachByte('"')) |
                   zeroByte(bytes ^ inEachByte('\r')) | zeroByte(bytes ^ inEachByte('\n'));
        bits |= bytes;
    };
    const qsizetype size = text.size();
    const char *const begin = text.data();
    const char *const end = begin + size;
    if (size >= 8) {
        for (const char *at = begin; at < end - 8; at += 8)
            look(wordAt<quint64>(at));
        look(wordAt<quint64>(end - 8));
    } else if (size >= 4) {
        look(wordAt<quint32>(begin) | wordAt<quint32>(end - 4) << 32);
    } else if (size > 0) {
        look(wordAt<quint8>(begin) | wordAt<quint8>(begin + size / 2) << 8 | wordAt<quint8>(end - 1) << 16);
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

// The most that a text can take: each quote twice, two around it, and an apostrophe.
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

// Room is made once for a whole record, and what is written needs no further look at it.
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
    const TextLook look = lookAt(cell.bytes);
    if (!ADODB::isShownAsStored(cell.bytes, type, look.isAscii))
        return nullptr;
    const bool isGuarded = m_guardsFormulas && looksLikeFormula(cell.bytes);
    if (isGuarded || look.needsQuotes)
        return writeQuoted(to, cell.bytes, isGuarded);
    return std::copy(cell.bytes.begin(), cell.bytes.end(), to);
}

void CsvRows::appendValue(QByteArray &text, QByteArrayView value, bool isText) const
{
    const bool isGuarded = isText && m_guardsFormulas && looksLikeFormula(value);
    if (!isGuarded && !lookAt(value).needsQuotes) {
        text += value;
        return;
    }
    char *const to = writableEnd(text, longestText(value));
    text.truncate(writeQuoted(to, value, isGuarded) - text.constData());
}

} // namespace KOVAVSFDataGridLib
