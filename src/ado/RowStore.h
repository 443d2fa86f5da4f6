#pragma once

#include "ado/RawValue.h"

#include <QtCore/QByteArray>

#include <cstring>
#include <memory>
#include <unordered_map>
#include <vector>

namespace ADODB {

// The rows of a result, packed: each cell is a tag byte and as many bytes as its value needs, rows stand one
// behind the other in blocks of 4 MiB, and each block knows where its rows start. Values are taken out only
// when they are asked for. Edits lie over the blocks: removed rows are a sorted list, replaced ones a small
// table.
//
// Rows and columns are counted from 0; rows in the live sequence.
class RowStore
{
public:
    explicit RowStore(int columns);

    int columns() const { return m_columns; }
    qint64 rows() const { return m_stored - static_cast<qint64>(m_removed.size()); }
    // All that was written so far, in bytes; grows with every cell.
    qint64 bytesWritten() const { return m_closedBytes + (m_write - m_blockStart); }

    // Appending: one call for each column from left to right, then endRow().
    void addNull() { putTag(Tag::Null, 0); }
    void addInteger(qint64 value);
    void addReal(double value);
    void addText(QByteArrayView utf8) { addBytes(Tag::ShortText, Tag::LongText, utf8); }
    void addBlob(QByteArrayView bytes) { addBytes(Tag::ShortBlob, Tag::LongBlob, bytes); }
    void add(const RawValue &value);
    void endRow();

    // The bytes of an answer stay valid until this row is replaced or removed, or the store dies.
    RawValue cell(qint64 row, int column) const;
    std::vector<RawValue> row(qint64 row) const;

    void remove(qint64 row);
    // Takes the cells of a row with the same number of columns.
    void replace(qint64 row, const std::vector<RawValue> &cells);

private:
    enum class Tag : char {
        Null,
        Integer8,
        Integer16,
        Integer32,
        Integer64,
        Real,
        ShortText, // one byte of length
        LongText,  // four bytes of length
        ShortBlob,
        LongBlob
    };

    struct Block
    {
        std::unique_ptr<char[]> bytes;
        qint64 firstRow = 0; // counted with the removed ones
        std::vector<quint32> starts;
    };

    static Tag tagAt(const char *cell) { return static_cast<Tag>(*cell); }
    static const char *nextCell(const char *cell);
    static RawValue decode(const char *cell);

    void addBytes(Tag shortTag, Tag longTag, QByteArrayView bytes);
    // Writes the tag and makes room for `size` bytes behind it.
    void putTag(Tag tag, qsizetype size)
    {
        if (m_end - m_write < size + 1)
            newBlock(size + 1);
        *m_write++ = static_cast<char>(tag);
    }
    template<typename T>
    void putNumber(T value)
    {
        std::memcpy(m_write, &value, sizeof value);
        m_write += sizeof value;
    }
    void newBlock(qsizetype room);
    qint64 storedRow(qint64 row) const;
    const char *rowStart(qint64 row) const;

    int m_columns;
    qint64 m_stored = 0; // rows written, with the removed ones
    std::vector<Block> m_blocks;
    qint64 m_closedBytes = 0;
    char *m_blockStart = nullptr;
    char *m_rowStart = nullptr;
    char *m_write = nullptr;
    char *m_end = nullptr;
    std::vector<qint64> m_removed; // stored rows, ascending
    std::unordered_map<qint64, QByteArray> m_replaced;
};

inline void RowStore::addInteger(qint64 value)
{
    if (value == static_cast<qint8>(value)) {
        putTag(Tag::Integer8, 1);
        putNumber(static_cast<qint8>(value));
    } else if (value == static_cast<qint16>(value)) {
        putTag(Tag::Integer16, 2);
        putNumber(static_cast<qint16>(value));
    } else if (value == static_cast<qint32>(value)) {
        putTag(Tag::Integer32, 4);
        putNumber(static_cast<qint32>(value));
    } else {
        putTag(Tag::Integer64, 8);
        putNumber(value);
    }
}

inline void RowStore::addReal(double value)
{
    putTag(Tag::Real, 8);
    putNumber(value);
}

inline void RowStore::addBytes(Tag shortTag, Tag longTag, QByteArrayView bytes)
{
    if (bytes.size() <= 0xff) {
        putTag(shortTag, 1 + bytes.size());
        putNumber(static_cast<quint8>(bytes.size()));
    } else {
        putTag(longTag, 4 + bytes.size());
        putNumber(static_cast<quint32>(bytes.size()));
    }
    if (!bytes.isEmpty())
        std::memcpy(m_write, bytes.data(), static_cast<std::size_t>(bytes.size()));
    m_write += bytes.size();
}

} // namespace ADODB
