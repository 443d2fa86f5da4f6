#include "support/AccessWriter.h"

#include <QtCore/QDateTime>
#include <QtCore/QtEndian>

#include <array>
#include <numeric>

using namespace ADODB;
using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

constexpr int pageSize = 4096;
constexpr int objectsPage = 2;
constexpr int countAt = 12; // of a data page: offset of its row count

template<typename Number>
QByteArray bytesOf(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template<typename Number>
void put(QByteArray &bytes, qsizetype at, Number number)
{
    qToLittleEndian(number, bytes.data() + at);
}

QByteArray wide(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes += bytesOf(c.unicode());
    return bytes;
}

void rc4(QByteArrayView key, char *bytes, qsizetype size)
{
    std::array<quint8, 256> state{};
    std::iota(state.begin(), state.end(), quint8{0});
    for (unsigned i = 0, j = 0; i < state.size(); ++i) {
        j = (j + state[i] + static_cast<quint8>(key[static_cast<qsizetype>(i) % key.size()])) % 256;
        std::swap(state[i], state[j]);
    }
    unsigned x = 0;
    unsigned y = 0;
    for (qsizetype at = 0; at < size; ++at) {
        x = (x + 1) % 256;
        y = (y + state[x]) % 256;
        std::swap(state[x], state[y]);
        bytes[at] = static_cast<char>(bytes[at] ^ state[(state[x] + state[y]) % 256U]);
    }
}

// In the row; 0 if the length is variable.
int fixedSize(AccessType type)
{
    switch (type) {
    case AccessType::Byte:
        return 1;
    case AccessType::Integer:
        return 2;
    case AccessType::LongInteger:
    case AccessType::Single:
        return 4;
    case AccessType::Currency:
    case AccessType::Double:
    case AccessType::DateTime:
        return 8;
    case AccessType::Guid:
        return 16;
    case AccessType::Numeric:
        return 17;
    default:
        return 0;
    }
}

bool isVariable(const AccessField &field)
{
    return field.type != AccessType::YesNo && fixedSize(field.type) == 0;
}

double days(const QString &text)
{
    const QDateTime moment = QDateTime::fromString(
        text.size() > 10 ? QString(text).replace(u' ', u'T') : text + u"T00:00:00"_s, Qt::ISODateWithMs);
    const QDate day = moment.date();
    const double time = moment.time().msecsSinceStartOfDay() / 86'400'000.0;
    const auto whole = static_cast<double>(QDate(1899, 12, 30).daysTo(day));
    return whole < 0 ? whole - time : whole + time;
}

// A sign and a 16-byte integer in four words, most significant word first.
QByteArray decimal(const QString &text, int scale)
{
    const qsizetype point = text.indexOf(u'.');
    QString digits = QString(text).remove(u'-').remove(u'.');
    digits += QString(scale - (point < 0 ? 0 : text.size() - point - 1), u'0');
    std::array<quint32, 4> words{};
    for (const QChar digit : digits) {
        quint64 carry = static_cast<quint64>(digit.digitValue());
        for (auto word = words.rbegin(); word != words.rend(); ++word) {
            carry += quint64{*word} * 10;
            *word = static_cast<quint32>(carry);
            carry >>= 32;
        }
    }
    QByteArray bytes(1, text.startsWith(u'-') ? '\1' : '\0');
    for (const quint32 word : words)
        bytes += bytesOf(word);
    return bytes;
}

QByteArray currency(const QString &text)
{
    const qsizetype point = text.indexOf(u'.');
    const QString fraction = point < 0 ? QString() : text.sliced(point + 1);
    const QString units = text.left(point) + fraction.leftJustified(4, u'0'); // of 1/10000
    return bytesOf(units.toLongLong());
}

} // namespace

AccessWriter::AccessWriter() : m_pages(objectsPage + 1, QByteArray(pageSize, '\0')) {}

int AccessWriter::newPage(const QByteArray &content)
{
    m_pages.push_back(content.leftJustified(pageSize, '\0'));
    return static_cast<int>(m_pages.size()) - 1;
}

// One page per piece, from the last to the first, because each contains the address of the next one.
quint32 AccessWriter::longValue(const QByteArray &value)
{
    constexpr qsizetype pieceSize = 4000;
    quint32 next = 0;
    for (qsizetype at = (value.size() - 1) / pieceSize * pieceSize; at >= 0; at -= pieceSize) {
        const QByteArray piece = bytesOf(next) + value.mid(at, pieceSize);
        QByteArray page(pageSize, '\0');
        put(page, 0, quint16{0x0101});
        page.replace(4, 4, "LVAL");
        put(page, countAt, quint16{1});
        const auto start = static_cast<quint16>(pageSize - piece.size());
        put(page, countAt + 2, start);
        page.replace(start, piece.size(), piece);
        next = static_cast<quint32>(newPage(page)) << 8;
    }
    return next;
}

QByteArray AccessWriter::field(const AccessField &field, const QVariant &value)
{
    switch (field.type) {
    case AccessType::Byte:
        return bytesOf(static_cast<quint8>(value.toUInt()));
    case AccessType::Integer:
        return bytesOf(static_cast<qint16>(value.toInt()));
    case AccessType::LongInteger:
        return bytesOf(qint32{value.toInt()});
    case AccessType::Currency:
        return currency(value.toString());
    case AccessType::Single:
        return bytesOf(value.toFloat());
    case AccessType::Double:
        return bytesOf(value.toDouble());
    case AccessType::DateTime:
        return bytesOf(days(value.toString()));
    case AccessType::Numeric:
        return decimal(value.toString(), field.scale);
    case AccessType::Text:
        return wide(value.toString());
    case AccessType::Memo:
    case AccessType::OleObject: {
        constexpr quint32 isInline = 0x80000000;
        constexpr qsizetype mostInline = 64;
        const QByteArray bytes =
            field.type == AccessType::Memo ? wide(value.toString()) : value.toByteArray();
        const auto size = static_cast<quint32>(bytes.size());
        if (bytes.size() <= mostInline)
            return bytesOf(size | isInline) + QByteArray(8, '\0') + bytes;
        return bytesOf(size) + bytesOf(longValue(bytes)) + QByteArray(4, '\0');
    }
    default:
        return value.toByteArray();
    }
}

// Fixed fields, the others, the offsets of those (from the last to the first), and a bitmap of the fields
// that are not Null.
QByteArray AccessWriter::row(const std::vector<AccessField> &fields, const QVariantList &values)
{
    QByteArray bytes = bytesOf(static_cast<quint16>(fields.size()));
    QByteArray flags((static_cast<qsizetype>(fields.size()) + 7) / 8, '\0');
    QByteArray variable;
    std::vector<quint16> starts;
    int fixed = 0;
    for (const AccessField &each : fields)
        fixed += fixedSize(each.type);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const AccessField &each = fields[i];
        const QVariant value = values.value(static_cast<qsizetype>(i));
        const bool isSet = each.type == AccessType::YesNo ? value.toBool() : !value.isNull();
        const auto at = static_cast<qsizetype>(i / 8);
        if (isSet)
            flags[at] = static_cast<char>(flags[at] | 1 << i % 8);
        if (isVariable(each)) {
            starts.push_back(static_cast<quint16>(2 + fixed + variable.size()));
            if (isSet)
                variable += field(each, value);
        } else if (each.type != AccessType::YesNo) {
            bytes += isSet ? field(each, value) : QByteArray(fixedSize(each.type), '\0');
        }
    }
    bytes += variable;
    if (!starts.empty()) {
        bytes += bytesOf(static_cast<quint16>(2 + fixed + variable.size()));
        for (auto start = starts.rbegin(); start != starts.rend(); ++start)
            bytes += bytesOf(*start);
        bytes += bytesOf(static_cast<quint16>(starts.size()));
    }
    return bytes + flags;
}

// Rows fill each page from its end, their offsets from its start.
std::vector<int> AccessWriter::dataPages(int definition, const std::vector<QByteArray> &rows)
{
    constexpr int mostRows = 255;
    std::vector<int> pages;
    int count = mostRows;
    qsizetype end = 0;
    for (const QByteArray &row : rows) {
        if (count == mostRows || end - row.size() < countAt + 2 + (count + 1) * 2) {
            pages.push_back(newPage(bytesOf(quint16{0x0101}) + bytesOf(quint16{0}) +
                                    bytesOf(static_cast<quint32>(definition))));
            count = 0;
            end = pageSize;
        }
        QByteArray &page = m_pages.back();
        end -= row.size();
        page.replace(end, row.size(), row);
        put(page, countAt + 2 + count * 2, static_cast<quint16>(end));
        put(page, countAt, static_cast<quint16>(++count));
    }
    return pages;
}

// One bit per page: inline if that is short, else on separate pages.
quint32 AccessWriter::usageMap(const std::vector<int> &pages)
{
    constexpr int bitsAtOnce = 512;
    constexpr int bitsOnPage = (pageSize - 4) * 8;
    const int first = pages.empty() ? 0 : pages.front();
    const auto mark = [&](QByteArray &bits, qsizetype at, int number) {
        bits[at + number / 8] = static_cast<char>(bits[at + number / 8] | 1 << number % 8);
    };
    QByteArray map;
    if (pages.empty() || pages.back() - first < bitsAtOnce) {
        map = QByteArray(1, '\0') + bytesOf(static_cast<quint32>(first)) + QByteArray(bitsAtOnce / 8, '\0');
        for (const int page : pages)
            mark(map, 5, page - first);
    } else {
        map = QByteArray(1, '\1');
        QList<QByteArray> bits(pages.back() / bitsOnPage + 1,
                               QByteArray("\5\1\0\0", 4).leftJustified(pageSize, '\0'));
        for (const int page : pages)
            mark(bits[page / bitsOnPage], 4, page % bitsOnPage);
        for (const QByteArray &each : bits)
            map += bytesOf(static_cast<quint32>(newPage(each)));
    }
    return static_cast<quint32>(dataPages(0, {map, map}).front()) << 8;
}

void AccessWriter::define(int page, const std::vector<AccessField> &fields,
                          const QList<QVariantList> &records)
{
    std::vector<QByteArray> rows;
    for (const QVariantList &record : records)
        rows.push_back(row(fields, record));
    const quint32 map = usageMap(dataPages(page, rows));
    QByteArray keys;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].isKey)
            keys += bytesOf(static_cast<quint16>(i)) + '\1';
    }
    const quint32 indices = keys.isEmpty() ? 0 : 1;
    const auto variables = std::count_if(fields.begin(), fields.end(), isVariable);
    const auto columns = static_cast<quint16>(fields.size());

    QByteArray bytes(55, '\0');
    put(bytes, 0, quint16{0x0102});
    put(bytes, 16, static_cast<quint32>(rows.size()));
    bytes[40] = page == objectsPage ? 'S' : 'N';
    put(bytes, 41, columns);
    put(bytes, 43, static_cast<quint16>(variables));
    put(bytes, 45, columns);
    put(bytes, 47, indices);
    put(bytes, 51, indices);
    bytes += bytesOf(map) + bytesOf(map + 1) + QByteArray(static_cast<qsizetype>(indices) * 12, '\0');
    QByteArray names;
    quint16 fixed = 0;
    quint16 variable = 0;
    for (quint16 i = 0; i < columns; ++i) {
        const AccessField &each = fields[i];
        QByteArray column(25, '\0');
        column[0] = static_cast<char>(each.type);
        put(column, 5, i);
        put(column, 7, variable);
        put(column, 9, i);
        column[11] = static_cast<char>(each.precision);
        column[12] = static_cast<char>(each.scale);
        column[15] = isVariable(each) ? '\2' : '\3';
        put(column, 21, fixed);
        const bool isText = each.type == AccessType::Text;
        const bool isLength = isText || each.type == AccessType::Binary;
        const int size = each.type == AccessType::YesNo ? 1 : fixedSize(each.type);
        put(column, 23, static_cast<quint16>(isLength ? each.size * (isText ? 2 : 1) : size));
        bytes += column;
        names += bytesOf(static_cast<quint16>(each.name.size() * 2)) + wide(each.name);
        fixed = static_cast<quint16>(fixed + fixedSize(each.type));
        variable = static_cast<quint16>(variable + (isVariable(each) ? 1 : 0));
    }
    bytes += names;
    if (indices > 0) {
        bytes += QByteArray(4, '\0') + keys.leftJustified(30, '\xff') + QByteArray(18, '\0');
        QByteArray index(28, '\0');
        put(index, 12, quint32{0xffffffff}); // no relation
        index[23] = '\1';                    // the key
        bytes += index + bytesOf(quint16{20}) + wide(u"PrimaryKey"_s);
    }
    put(bytes, 8, static_cast<quint32>(bytes.size() - 8));

    m_pages[static_cast<std::size_t>(page)] =
        bytes.first(std::min<qsizetype>(bytes.size(), pageSize)).leftJustified(pageSize, '\0');
    for (qsizetype at = pageSize; at < bytes.size(); at += pageSize - 8) {
        const int next =
            newPage(bytesOf(quint32{0x0102}) + bytesOf(quint32{0}) + bytes.mid(at, pageSize - 8));
        put(m_pages[static_cast<std::size_t>(page)], 4, static_cast<quint32>(next));
        page = next;
    }
}

void AccessWriter::addTable(const QString &name, const std::vector<AccessField> &fields,
                            const QList<QVariantList> &records)
{
    const int page = newPage();
    define(page, fields, records);
    addObject(page, 1, name);
}

QByteArray AccessWriter::header() const
{
    constexpr qint32 day = 39581; // the creation date of the file, which also masks its password
    QByteArray page(pageSize, '\0');
    put(page, 0, quint32{0x0100});
    page.replace(4, 15, m_version > 1 ? "Standard ACE DB" : "Standard Jet DB");
    page[0x14] = static_cast<char>(m_version);
    put(page, 0x3c, quint16{1252});
    put(page, 0x3e, m_key);
    for (int i = 0; i < 20; ++i) {
        const auto mask = static_cast<quint16>(i % 2 == 0 ? day : 0);
        const auto unit = static_cast<quint16>(m_password.size() > i ? m_password.at(i).unicode() : 0);
        put(page, 0x42 + 2 * i, static_cast<quint16>(unit ^ mask));
    }
    put(page, 0x6e, m_language);
    const double moment = day + 0.5;
    page.replace(0x72, 8, bytesOf(moment));
    rc4(QByteArrayView("\xc7\xda\x39\x6b"), page.data() + 0x18, 128);
    return page;
}

QByteArray AccessWriter::file() const
{
    AccessWriter whole = *this;
    whole.define(objectsPage,
                 {{u"Id"_s, AccessType::LongInteger},
                  {u"ParentId"_s, AccessType::LongInteger},
                  {u"Name"_s, AccessType::Text, 255},
                  {u"Type"_s, AccessType::Integer},
                  {u"Flags"_s, AccessType::LongInteger},
                  {u"LvProp"_s, AccessType::OleObject}},
                 m_objects);
    QByteArray bytes = header();
    for (std::size_t number = 1; number < whole.m_pages.size(); ++number) {
        QByteArray page = whole.m_pages[number];
        if (m_key != 0)
            rc4(bytesOf(m_key ^ static_cast<quint32>(number)), page.data(), page.size());
        bytes += page;
    }
    return bytes;
}

} // namespace KovaTest
