#include "export/writers/CsvRows.h"

#include "ado/values/FieldText.h"
#include "export/writers/FormulaGuard.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace KOVAVSFDataGridLib {

namespace {

// What the bytes of a text are, in one number: to put together a struct of truth values takes longer than to
// copy most texts.
enum Look : unsigned { NeedsQuotes = 1, HasQuotes = 2, IsNotAscii = 4 };

constexpr quint64 inEachByte(unsigned char byte)
{
    return ~quint64{0} / 0xff * byte;
}

// Not 0 if one of the eight bytes is zero.
constexpr quint64 zeroByte(quint64 bytes)
{
    return (bytes - inEachByte(1)) & ~bytes & inEachByte(0x80);
}

// Not 0 when one of the eight bytes is at most a comma, but no space: as the four are that need quotes, and
// few others.
constexpr quint64 suspiciousByte(quint64 bytes)
{
    constexpr quint64 high = inEachByte(0x80);
    const quint64 aboveComma = (bytes | high) - inEachByte(',' + 1);
    const quint64 difference = bytes ^ inEachByte(' ');
    const quint64 noBlank = ((difference & ~high) + ~high) | difference;
    return ~aboveComma & noBlank & ~bytes & high;
}

// Hands over a text in words, without branches. Some bytes are handed over twice, and zeros may follow.
template<typename Take>
void eachWord(QByteArrayView text, Take take)
{
    const qsizetype size = text.size();
    if (size >= 8) {
        for (qsizetype at = 0; at < size - 8; at += 8)
            take(at, quint64{});
        take(size - 8, quint64{});
    } else if (size >= 4) {
        take(0, quint32{});
        take(size - 4, quint32{});
    } else if (size > 0) {
        take(0, quint8{});
        take(size / 2, quint8{});
        take(size - 1, quint8{});
    }
}

// Copies a text and looks at it on the way. Only a suspicious one takes a second look.
unsigned copyText(char *to, QByteArrayView text)
{
    quint64 suspicious = 0;
    quint64 bits = 0;
    const char *const from = text.data();
    eachWord(text, [&]<typename Word>(qsizetype at, Word word) {
        std::memcpy(&word, from + at, sizeof word);
        std::memcpy(to + at, &word, sizeof word);
        // Where a word is short, what is missing is not suspicious.
        suspicious |= suspiciousByte(word | ~quint64{std::numeric_limits<Word>::max()});
        bits |= word;
    });
    const unsigned look = (bits & inEachByte(0x80)) == 0 ? 0U : IsNotAscii;
    if (suspicious == 0)
        return look;
    quint64 special = 0;
    quint64 quotes = 0;
    eachWord(text, [&]<typename Word>(qsizetype at, Word word) {
        std::memcpy(&word, from + at, sizeof word);
        const quint64 bytes = word;
        special |= zeroByte(bytes ^ inEachByte(',')) | zeroByte(bytes ^ inEachByte('\r')) |
                   zeroByte(bytes ^ inEachByte('\n'));
        quotes |= zeroByte(bytes ^ inEachByte('"'));
    });
    return look | (quotes != 0 ? NeedsQuotes | HasQuotes : special != 0 ? NeedsQuotes : 0U);
}

char *writeQuoted(char *to, QByteArrayView text, bool hasQuotes, bool isGuarded)
{
    *to++ = '"';
    if (isGuarded)
        *to++ = '\'';
    if (!hasQuotes)
        to = std::copy(text.begin(), text.end(), to);
    while (hasQuotes && !text.isEmpty()) {
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
    : m_exported(std::move(columns)), m_guardsFormulas(guardsFormulas)
{
    for (const ExportColumn &column : m_exported) {
        m_columns.push_back(
            {static_cast<std::size_t>(column.field), column.type, ADODB::isTextType(column.type)});
    }
}

void CsvRows::appendHeadings(QByteArray &text) const
{
    for (const ExportColumn &column : m_exported) {
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
    for (const Column &column : m_columns) {
        const ADODB::RawValue &cell = cells[column.field];
        if (char *const end = write(to, cell, column)) {
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
    for (const Column &column : m_columns) {
        const ADODB::RawValue &cell = cells[column.field];
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

char *CsvRows::write(char *to, const ADODB::RawValue &cell, const Column &column) const
{
    if (cell.kind == ADODB::RawValue::Kind::Null)
        return to;
    if (cell.kind != ADODB::RawValue::Kind::Text)
        return ADODB::writeNumber(to, cell, column.type);
    const unsigned look = copyText(to, cell.bytes);
    const bool isAscii = (look & IsNotAscii) == 0;
    if (!(isAscii && column.isText) && !ADODB::isShownAsStored(cell.bytes, column.type, isAscii))
        return nullptr;
    const bool isGuarded = m_guardsFormulas && looksLikeFormula(cell.bytes);
    if (isGuarded || look & NeedsQuotes)
        return writeQuoted(to, cell.bytes, (look & HasQuotes) != 0, isGuarded);
    return to + cell.bytes.size();
}

void CsvRows::appendValue(QByteArray &text, QByteArrayView value, bool isText) const
{
    const bool isGuarded = isText && m_guardsFormulas && looksLikeFormula(value);
    char *const to = writableEnd(text, longestText(value));
    const unsigned look = copyText(to, value);
    const bool isQuoted = isGuarded || look & NeedsQuotes;
    char *const end =
        isQuoted ? writeQuoted(to, value, (look & HasQuotes) != 0, isGuarded) : to + value.size();
    text.truncate(end - text.constData());
}

} // namespace KOVAVSFDataGridLib
