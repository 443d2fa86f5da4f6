#include "ado/providers/access/file/AccessDefinition.h"

#include "ado/providers/access/file/AccessFile.h"

#include <algorithm>

namespace ADODB::AccessDefinition {

namespace {

using AccessBytes::number;
using AccessBytes::part;

// Offsets of the numbers in a definition: first those of the definition, then those within its parts.
struct Layout
{
    int rows;
    int variableColumns;
    int columns;
    int indices;     // as users see them; two can share a real index
    int realIndices; // as they are stored
    int usageMap;
    int end; // of the fixed part; one count for each real index follows
    int realIndexCountSize;

    int columnSize;
    int columnNumber;
    int columnVariableNumber;
    int columnPrecision; // the scale is in the next byte
    int columnFlags;
    int columnOffset;
    int columnLength;

    int realIndexSize;
    int realIndexColumns;
    int indexSize;
    int indexReal;
    int indexKind;
};
constexpr Layout jet3{12, 23, 25, 27, 31, 35, 43, 8, 18, 1, 3, 9, 13, 14, 16, 39, 0, 20, 4, 19};
constexpr Layout jet4{16, 43, 45, 47, 51, 55, 63, 12, 25, 5, 7, 11, 15, 21, 23, 52, 4, 28, 8, 23};

constexpr int mostColumns = 255;
constexpr int mostIndices = 1000; // more than Access creates, but a limit
constexpr int keyColumns = 10;    // in one index, at most

// A definition can span several pages. The first 8 bytes of each contain the number of the next.
QByteArray bytesOf(const AccessFile &file, quint32 page)
{
    constexpr quint8 definitionPage = 2;
    constexpr int headSize = 8;
    constexpr int mostPages = 256;
    QByteArray bytes;
    for (int pages = 0; page != 0; ++pages) {
        const auto holder = file.page(page);
        const QByteArrayView all = holder->bytes();
        if (number<quint8>(all, 0) != definitionPage || pages == mostPages)
            AccessBytes::throwDamaged("a table's definition is missing");
        bytes += bytes.isEmpty() ? all : all.sliced(headSize);
        page = number<quint32>(all, 4);
    }
    return bytes;
}

int count(QByteArrayView definition, int at, int most)
{
    const auto value = number<quint32>(definition, at);
    if (value > static_cast<quint32>(most))
        AccessBytes::throwDamaged("a table's definition claims too many parts");
    return static_cast<int>(value);
}

// In a row. 0 if the column's own length applies.
int fixedSize(AccessType type)
{
    switch (type) {
    case AccessType::Byte:
        return 1;
    case AccessType::Integer:
        return 2;
    case AccessType::LongInteger:
    case AccessType::Single:
    case AccessType::Complex:
        return 4;
    case AccessType::Currency:
    case AccessType::Double:
    case AccessType::DateTime:
    case AccessType::LargeNumber:
        return 8;
    case AccessType::Guid:
        return 16;
    case AccessType::Numeric: // whatever length the column declares
        return 17;
    default:
        return 0;
    }
}

class Reader
{
public:
    Reader(const AccessFile &file, quint32 page)
        : m_file(file), m_layout(file.isJet3() ? jet3 : jet4), m_definition(bytesOf(file, page))
    {
        m_table.definitionPage = page;
    }

    AccessTable read()
    {
        m_table.rows = number<quint32>(m_definition, m_layout.rows);
        m_table.hasVariableColumns = number<quint16>(m_definition, m_layout.variableColumns) > 0;
        const int realIndices = count(m_definition, m_layout.realIndices, mostIndices);
        readColumns(m_layout.end + realIndices * m_layout.realIndexCountSize);
        readKey(realIndices);
        std::sort(m_table.columns.begin(), m_table.columns.end(),
                  [](const AccessColumn &a, const AccessColumn &b) { return a.number < b.number; });
        readPages();
        return std::move(m_table);
    }

private:
    // All columns come first, then all names.
    void readColumns(int at)
    {
        const int columns = number<quint16>(m_definition, m_layout.columns);
        if (columns == 0 || columns > mostColumns)
            AccessBytes::throwDamaged("a table has no columns or too many");
        for (int i = 0; i < columns; ++i, at += m_layout.columnSize)
            m_table.columns.push_back(columnOf(part(m_definition, at, m_layout.columnSize)));
        for (AccessColumn &column : m_table.columns) {
            const int lengthSize = m_file.isJet3() ? 1 : 2;
            const int length =
                m_file.isJet3() ? number<quint8>(m_definition, at) : number<quint16>(m_definition, at);
            column.name = QString::fromUtf8(m_file.text(part(m_definition, at + lengthSize, length)));
            at += lengthSize + length;
        }
        m_indices = at;
    }

    AccessColumn columnOf(QByteArrayView bytes) const
    {
        constexpr quint8 isFixed = 0x01;
        constexpr quint8 countsUp = 0x04;
        constexpr quint8 makesGuids = 0x40;
        AccessColumn column;
        column.type = static_cast<AccessType>(number<quint8>(bytes, 0));
        const int length = number<quint16>(bytes, m_layout.columnLength);
        const int fixed = fixedSize(column.type);
        column.size = fixed > 0 ? fixed : length;
        const bool isWide = column.type == AccessType::Text && !m_file.isJet3();
        column.declaredSize = isWide ? column.size / 2 : column.size;
        column.precision = number<quint8>(bytes, m_layout.columnPrecision);
        column.scale = number<quint8>(bytes, m_layout.columnPrecision + 1);
        // In older files, both flags mean something else for columns of other types.
        const auto flags = number<quint8>(bytes, m_layout.columnFlags);
        column.isAutoNumber = (column.type == AccessType::LongInteger && flags & countsUp) ||
                              (column.type == AccessType::Guid && flags & makesGuids);
        column.number = number<quint16>(bytes, m_layout.columnNumber);
        column.isFixed = (flags & isFixed) != 0;
        column.fixedOffset = number<quint16>(bytes, m_layout.columnOffset);
        column.variableNumber = number<quint16>(bytes, m_layout.columnVariableNumber);
        return column;
    }

    // The real indices come first, then the logical ones that users see. One of those is the primary key.
    void readKey(int realIndices)
    {
        constexpr quint8 primaryKey = 1;
        const qsizetype firstIndex = m_indices + qsizetype{realIndices} * m_layout.realIndexSize;
        const int indices = count(m_definition, m_layout.indices, mostIndices);
        for (qsizetype i = 0; i < indices; ++i) {
            const QByteArrayView index =
                part(m_definition, firstIndex + i * m_layout.indexSize, m_layout.indexSize);
            if (number<quint8>(index, m_layout.indexKind) != primaryKey)
                continue;
            const auto real = number<quint32>(index, m_layout.indexReal);
            if (real < static_cast<quint32>(realIndices))
                markKey(part(m_definition, m_indices + qsizetype{real} * m_layout.realIndexSize,
                             m_layout.realIndexSize));
        }
    }

    void markKey(QByteArrayView realIndex)
    {
        constexpr int noColumn = 0xffff;
        constexpr int columnSize = 3;
        for (int i = 0; i < keyColumns; ++i) {
            const int key = number<quint16>(realIndex, m_layout.realIndexColumns + i * columnSize);
            for (AccessColumn &column : m_table.columns)
                column.isKey = column.isKey || (key != noColumn && column.number == key);
        }
    }

    // The map has one bit per page. It is stored inline or as a list of pages that contain the bits.
    void readPages()
    {
        const AccessAddress address(number<quint32>(m_definition, m_layout.usageMap));
        const auto holder = m_file.page(address.page);
        const QByteArrayView map = holder->row(address.row).bytes;
        const auto kind = number<quint8>(map, 0);
        if (kind == 0) {
            addPages(part(map, 5, map.size() - 5), number<quint32>(map, 1));
        } else if (kind == 1) {
            constexpr int headSize = 4;
            qint64 first = 0;
            for (qsizetype at = 1; at + 4 <= map.size() && first < m_file.pages(); at += 4) {
                if (const auto bitsPage = number<quint32>(map, at); bitsPage != 0)
                    addPages(m_file.page(bitsPage)->bytes().sliced(headSize), first);
                first += qint64{holder->size - headSize} * 8;
            }
        } else {
            AccessBytes::throwDamaged("the pages of a table are not listed");
        }
    }

    void addPages(QByteArrayView bits, qint64 first)
    {
        for (qsizetype i = 0; i < bits.size() * 8; ++i) {
            if (bits[i / 8] >> (i % 8) & 1 && first + i < m_file.pages())
                m_table.pages.push_back(static_cast<quint32>(first + i));
        }
    }

    const AccessFile &m_file;
    const Layout &m_layout;
    const QByteArray m_definition;
    qsizetype m_indices = 0; // where they start
    AccessTable m_table;
};

} // namespace

AccessTable read(const AccessFile &file, quint32 page)
{
    return Reader(file, page).read();
}

} // namespace ADODB::AccessDefinition
