#pragma once

#include "ado/rows/SpillFile.h"
#include "ado/values/RawValue.h"

#include <QtCore/QByteArray>

#include <cstring>
#include <memory>
#include <unordered_map>
#include <vector>

namespace ADODB {

// The rows of a result, packed: each cell is a tag byte and as many bytes as its value needs, rows stand one
// behind the other in blocks of 4 MiB, and where they start stands at the block's end, backwards. Values are
// taken out only when they are asked for. Edits lie over the blocks: removed rows are a sorted list, replaced
// ones a small table.
//
// Blocks that are more than the memory limit move into a spill file when they are full.
//
// A copy has the whole rows of its original and shares their blocks, so it costs next to nothing. Whatever is
// done to one of the two, the other stays as it is: a copy can be read in one thread while the original grows
// in another.
//
// Rows and columns are counted from 0; rows in the live sequence.
class RowStore
{
public:
    static constexpr qint64 defaultMemoryLimit = qint64{512} << 20; // bytes

    // Full blocks take no more than `memoryLimit` bytes of memory.
    explicit RowStore(int columns, qint64 memoryLimit = defaultMemoryLimit);
    RowStore(const RowStore &other);
    RowStore(RowStore &&other) = default;
    RowStore &operator=(const RowStore &other) { return *this = RowStore(other); }
    RowStore &operator=(RowStore &&other) = default;
    ~RowStore() = default;

    // Forgets all rows.
    void clear() { *this = RowStore(m_columns, m_memoryLimit); }

    int columns() const { return m_columns; }
    qint64 rows() const { return m_stored - static_cast<qint64>(m_removed.size()); }
    // All that was written so far, in bytes; grows with every cell.
    qint64 bytesWritten() const { return m_closedBytes + (m_write - m_blockStart); }

    qint64 bytesSpilled() const { return m_spilledBytes; }

    // Appending: one call for each column from left to right, then endRow(). They throw Error when the disk
    // has no room for what is too much for memory; the row that was begun must be dropped then.
    void addNull() { putTag(Tag::Null, 0); }
    void addInteger(qint64 value);
    void addReal(double value);
    void addText(QByteArrayView utf8) { addBytes(Tag::ShortText, Tag::LongText, utf8); }
    void addBlob(QByteArrayView bytes) { addBytes(Tag::ShortBlob, Tag::LongBlob, bytes); }
    void add(const RawValue &value);
    void endRow();
    // Forgets the cells behind the last whole row.
    void dropBegunRow() { m_write = m_rowStart; }

    // The bytes of an answer stay valid until this row is replaced or removed, a cell is added, or the store
    // dies.
    RawValue cell(qint64 row, int column) const;
    std::vector<RawValue> row(qint64 row) const;
    // Columns of a row from `first` on, as many as there are cells. Of each cell only the kind and what
    // belongs to it are written.
    void read(qint64 row, int first, std::vector<RawValue> &cells) const;

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
        const char *start(qint64 storedRow) const;

        std::shared_ptr<char[]> memory; // null once the block is spilled
        const char *bytes = nullptr;    // there or in the spill file
        qsizetype size = 0;
        qint64 firstRow = 0; // counted with the removed ones
    };

    static Tag tagAt(const char *cell) { return static_cast<Tag>(*cell); }
    static const char *nextCell(const char *cell);
    // Takes the value out and answers where the next cell is.
    static const char *decode(const char *cell, RawValue &value);

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
    void keepOrSpill(Block &block);
    qint64 storedRow(qint64 row) const;
    const char *rowStart(qint64 row) const;

    int m_columns;
    qint64 m_memoryLimit;
    qint64 m_stored = 0;                // rows written, with the removed ones
    std::shared_ptr<SpillFile> m_spill; // null until it is needed
    std::vector<Block> m_blocks;
    qint64 m_memoryBytes = 0;  // of the full blocks
    qint64 m_spilledBytes = 0; // of the others
    qint64 m_closedBytes = 0;
    char *m_blockStart = nullptr; // of the block that is being filled; null when none is
    char *m_rowStart = nullptr;
    char *m_write = nullptr;
    char *m_end = nullptr;         // of the room for cells, with the begun row's start already left out
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

// Here, so that where the kind is known it isn't asked again.
inline void RowStore::add(const RawValue &value)
{
    switch (value.kind) {
    case RawValue::Kind::Null:
        return addNull();
    case RawValue::Kind::Integer:
        return addInteger(value.integer);
    case RawValue::Kind::Real:
        return addReal(value.real);
    case RawValue::Kind::Text:
        return addText(value.bytes);
    case RawValue::Kind::Blob:
        return addBlob(value.bytes);
    }
}

} // namespace ADODB
