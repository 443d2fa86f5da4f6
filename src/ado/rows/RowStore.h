#pragma once

#include "ado/rows/SpillFile.h"
#include "ado/values/RawValue.h"

#include <QtCore/QByteArray>

#include <array>
#include <cstring>
#include <memory>
#include <unordered_map>
#include <vector>

namespace ADODB {

// The rows of a result in packed form: each cell is a tag byte and as many bytes as its value needs. The tag
// includes the length of a short text, and a small number whole. Rows are stored one after another in blocks;
// their offsets are at the end of the block, in reverse order. A small result needs little memory: the first
// block has 64 KiB, and each has twice as many as the one before, up to 4 MiB. Values are unpacked only on
// demand. Edits are kept apart from the blocks: removed rows in a sorted list, replaced ones in a small
// table.
//
// Full blocks beyond the memory limit are moved to a spill file.
//
// A copy contains the complete rows of its original and shares their blocks, so it is cheap. Changes to one
// of the two never affect the other: a copy can be read in one thread while the original grows in another
// one.
//
// Rows and columns are numbered from 0. Row numbers refer to the live sequence.
class RowStore
{
public:
    static constexpr qint64 defaultMemoryLimit = qint64{512} << 20; // bytes

    // Full blocks use at most `memoryLimit` bytes of memory.
    explicit RowStore(int columns, qint64 memoryLimit = defaultMemoryLimit);
    RowStore(const RowStore &other);
    RowStore(RowStore &&other) = default;
    RowStore &operator=(const RowStore &other) { return *this = RowStore(other); }
    RowStore &operator=(RowStore &&other) = default;
    ~RowStore() = default;

    // Removes all rows.
    void clear() { *this = RowStore(m_columns, m_memoryLimit); }

    int columns() const { return m_columns; }
    qint64 rows() const { return m_stored - static_cast<qint64>(m_removed.size()); }
    // The number of bytes written so far; grows with every cell.
    qint64 bytesWritten() const { return m_closedBytes + (m_write - m_blockStart); }

    qint64 bytesSpilled() const { return m_spilledBytes; }

    // Appends a row: one call per column from left to right, then endRow(). They throw Error if a spill file
    // can't be written because the disk is full; the unfinished row must then be dropped.
    void addNull() { putTag(Null, 0); }
    void addInteger(qint64 value);
    void addReal(double value);
    void addText(QByteArrayView utf8) { addBytes(ShortText, shortTexts, LongText, utf8); }
    void addBlob(QByteArrayView bytes) { addBytes(ShortBlob, shortBlobs, LongBlob, bytes); }
    void add(const RawValue &value);
    void endRow();
    // Discards the cells after the last complete row.
    void dropBegunRow() { m_write = m_rowStart; }

    // The bytes of the result are valid until the row is replaced or removed, a cell is added, or the store
    // is destroyed.
    RawValue cell(qint64 row, int column) const;
    std::vector<RawValue> row(qint64 row) const;
    // Reads the columns of a row from `first` on into `cells`, which determines how many. Of each cell, only
    // the kind and the members for that kind are written.
    void read(qint64 row, int first, std::vector<RawValue> &cells) const;

    void remove(qint64 row);
    // Replaces the cells of a row; their number must be that of the columns.
    void replace(qint64 row, const std::vector<RawValue> &cells);

private:
    // The last three are each the first of many: the value of a small integer, or the length of a short blob
    // or text, is added to them.
    enum Tag : quint8 {
        Null,
        Integer8,
        Integer16,
        Integer24,
        Integer32,
        Integer48,
        Integer64,
        Real,
        LongText, // with four bytes for the length
        LongBlob,
        SmallInteger = 16,
        ShortBlob = 80,
        ShortText = 112
    };
    static constexpr quint64 smallIntegers = ShortBlob - SmallInteger;
    static constexpr qsizetype shortBlobs = ShortText - ShortBlob;
    static constexpr qsizetype shortTexts = 256 - ShortText;

    struct Block
    {
        const char *start(qint64 storedRow) const;

        std::shared_ptr<char[]> memory; // null after the block was spilled
        const char *bytes = nullptr;    // in memory or in the spill file
        qsizetype size = 0;
        qint64 firstRow = 0; // counting removed rows
    };

    static int tagAt(const char *cell) { return static_cast<quint8>(*cell); }
    static const std::array<quint8, 256> sizeAfterTag;
    static const char *nextCell(const char *cell);
    // Reads a value and returns the address of the next cell.
    static const char *decode(const char *cell, RawValue &value);

    void addBytes(Tag shortTag, qsizetype shortLengths, Tag longTag, QByteArrayView bytes);
    // Writes the tag and reserves `size` bytes after it.
    void putTag(int tag, qsizetype size)
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
    void mapNextPages();
    void keepOrSpill(Block &block);
    qint64 storedRow(qint64 row) const;
    const char *rowStart(qint64 row) const;

    int m_columns;
    qint64 m_memoryLimit;
    qint64 m_stored = 0;                // rows written, including removed ones
    std::shared_ptr<SpillFile> m_spill; // null until needed
    std::vector<Block> m_blocks;
    qint64 m_memoryBytes = 0;  // of full blocks in memory
    qint64 m_spilledBytes = 0; // of spilled blocks
    qint64 m_closedBytes = 0;
    char *m_blockStart = nullptr; // of the block being filled; null if there is none
    char *m_rowStart = nullptr;
    char *m_write = nullptr;
    char *m_end = nullptr;         // of the space for cells; the unfinished row's offset is already reserved
    char *m_mapped = nullptr;      // up to here the block's pages were mapped ahead
    std::vector<qint64> m_removed; // stored rows, ascending
    std::unordered_map<qint64, QByteArray> m_replaced;
};

inline void RowStore::addInteger(qint64 value)
{
    const auto fits = [value](int bits) { return value == (value << (64 - bits)) >> (64 - bits); };
    if (static_cast<quint64>(value) < smallIntegers) {
        putTag(SmallInteger + static_cast<int>(value), 0);
    } else if (fits(8)) {
        putTag(Integer8, 1);
        putNumber(static_cast<qint8>(value));
    } else if (fits(16)) {
        putTag(Integer16, 2);
        putNumber(static_cast<qint16>(value));
    } else if (fits(24)) {
        putTag(Integer24, 3);
        putNumber(static_cast<quint16>(value));
        putNumber(static_cast<qint8>(value >> 16));
    } else if (fits(32)) {
        putTag(Integer32, 4);
        putNumber(static_cast<qint32>(value));
    } else if (fits(48)) {
        putTag(Integer48, 6);
        putNumber(static_cast<quint32>(value));
        putNumber(static_cast<qint16>(value >> 32));
    } else {
        putTag(Integer64, 8);
        putNumber(value);
    }
}

inline void RowStore::addReal(double value)
{
    putTag(Real, 8);
    putNumber(value);
}

inline void RowStore::addBytes(Tag shortTag, qsizetype shortLengths, Tag longTag, QByteArrayView bytes)
{
    if (bytes.size() < shortLengths) {
        putTag(shortTag + static_cast<int>(bytes.size()), bytes.size());
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
