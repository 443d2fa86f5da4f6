#include "ado/rows/RowStore.h"

#include "ado/rows/platform/MapPages.h"

#include <algorithm>
#include <utility>

namespace ADODB {

namespace {

constexpr qsizetype firstBlockSize = qsizetype{64} << 10;
constexpr qsizetype blockSize = qsizetype{4} << 20;
// Blocks of this size are new memory from the system; smaller ones often reuse memory that has its pages.
constexpr qsizetype newMemorySize = qsizetype{1} << 20;
// Small enough to be still in the processor's cache when the rows are written.
constexpr qsizetype mappedAtOnce = qsizetype{64} << 10;
constexpr qsizetype startSize = sizeof(quint32);

template<typename T>
T numberAt(const char *at)
{
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

} // namespace

// The bytes that follow each tag; a long text or blob has its own number.
constexpr std::array<quint8, 256> RowStore::sizeAfterTag = [] {
    std::array<quint8, 256> sizes{};
    for (const auto &[tag, size] : {std::pair{Integer8, 1},
                                    {Integer16, 2},
                                    {Integer24, 3},
                                    {Integer32, 4},
                                    {Integer48, 6},
                                    {Integer64, 8},
                                    {Real, 8}})
        sizes[tag] = static_cast<quint8>(size);
    for (std::size_t tag = ShortBlob; tag < ShortText; ++tag)
        sizes[tag] = static_cast<quint8>(tag - ShortBlob);
    for (std::size_t tag = ShortText; tag != sizes.size(); ++tag)
        sizes[tag] = static_cast<quint8>(tag - ShortText);
    return sizes;
}();

RowStore::RowStore(int columns, qint64 memoryLimit) : m_columns(columns), m_memoryLimit(memoryLimit) {}

// In the copy, the block that the original is filling is a full one. The copy's next row starts a new block.
RowStore::RowStore(const RowStore &other)
    : m_columns(other.m_columns),
      m_memoryLimit(other.m_memoryLimit),
      m_stored(other.m_stored),
      m_spill(other.m_spill),
      m_blocks(other.m_blocks),
      m_memoryBytes(other.m_memoryBytes),
      m_spilledBytes(other.m_spilledBytes),
      m_closedBytes(other.m_closedBytes + (other.m_rowStart - other.m_blockStart)),
      m_removed(other.m_removed),
      m_replaced(other.m_replaced)
{
    if (other.m_blockStart)
        m_memoryBytes += m_blocks.back().size;
}

const char *RowStore::Block::start(qint64 storedRow) const
{
    const char *const slot = bytes + size - (storedRow - firstRow + 1) * startSize;
    return bytes + numberAt<quint32>(slot);
}

void RowStore::endRow()
{
    // A row without columns still needs space for its offset.
    if (!m_blockStart || m_end < m_write)
        newBlock(0);
    const auto start = static_cast<quint32>(m_rowStart - m_blockStart);
    std::memcpy(m_end, &start, sizeof start);
    m_rowStart = m_write;
    ++m_stored;
    // A row larger than a normal block is the last in its block, so that offsets always fit 32 bits.
    m_end = m_blocks.back().size > blockSize ? m_write : m_end - startSize;
    if (m_write >= m_mapped)
        mapNextPages();
}

void RowStore::mapNextPages()
{
    char *const end = m_blockStart + m_blocks.back().size;
    m_mapped = m_write + std::min<qsizetype>(mappedAtOnce, end - m_write);
    mapPages(m_write, m_mapped);
}

// Moves the unfinished row to the new block, so a row never spans two blocks.
void RowStore::newBlock(qsizetype room)
{
    const qsizetype begun = m_write - m_rowStart;
    const qsizetype usual = m_blocks.empty() ? firstBlockSize : std::min(2 * m_blocks.back().size, blockSize);
    Block block;
    block.size = std::max(usual, begun + std::max(begun, room) + startSize);
    block.memory = std::make_shared_for_overwrite<char[]>(static_cast<std::size_t>(block.size));
    block.bytes = block.memory.get();
    block.firstRow = m_stored;
    char *const start = block.memory.get();
    if (begun > 0)
        std::memcpy(start, m_rowStart, static_cast<std::size_t>(begun));
    if (!m_blocks.empty() && m_blocks.back().firstRow == m_stored) {
        m_blocks.pop_back(); // it contained only the start of this row
    } else if (m_blockStart) {
        keepOrSpill(m_blocks.back());
        m_closedBytes += m_rowStart - m_blockStart;
    }
    m_end = start + block.size - startSize;
    m_blocks.push_back(std::move(block));
    m_blockStart = start;
    m_rowStart = start;
    m_write = start + begun;
    m_mapped = usual >= newMemorySize ? start : start + m_blocks.back().size;
}

void RowStore::keepOrSpill(Block &block)
{
    if (m_memoryBytes + block.size <= m_memoryLimit) {
        m_memoryBytes += block.size;
        return;
    }
    if (!m_spill)
        m_spill = std::make_shared<SpillFile>();
    // Clears the gap, so that uninitialized memory is not written to disk.
    char *const starts = block.memory.get() + block.size - (m_stored - block.firstRow) * startSize;
    std::fill(m_rowStart, starts, '\0');
    block.bytes = m_spill->append({block.bytes, block.size});
    block.memory.reset();
    m_spilledBytes += block.size;
}

const char *RowStore::nextCell(const char *cell)
{
    const int tag = tagAt(cell);
    if (tag == LongText || tag == LongBlob)
        return cell + 5 + numberAt<quint32>(cell + 1);
    return cell + 1 + sizeAfterTag[static_cast<std::size_t>(tag)];
}

const char *RowStore::decode(const char *cell, RawValue &value)
{
    using Kind = RawValue::Kind;
    const char *const at = cell + 1;
    const auto putInteger = [&](qint64 integer, int size) {
        value.kind = Kind::Integer;
        value.integer = integer;
        return at + size;
    };
    const auto putBytes = [&](Kind kind, const char *start, qsizetype size) {
        value.kind = kind;
        value.bytes = QByteArrayView(start, size);
        return start + size;
    };
    const int tag = tagAt(cell);
    if (tag >= ShortText)
        return putBytes(Kind::Text, at, tag - ShortText);
    if (tag >= ShortBlob)
        return putBytes(Kind::Blob, at, tag - ShortBlob);
    if (tag >= SmallInteger)
        return putInteger(tag - SmallInteger, 0);
    switch (static_cast<Tag>(tag)) {
    case Null:
        value.kind = Kind::Null;
        return at;
    case Integer8:
        return putInteger(numberAt<qint8>(at), 1);
    case Integer16:
        return putInteger(numberAt<qint16>(at), 2);
    case Integer24:
        return putInteger(numberAt<quint16>(at) + numberAt<qint8>(at + 2) * (qint64{1} << 16), 3);
    case Integer32:
        return putInteger(numberAt<qint32>(at), 4);
    case Integer48:
        return putInteger(numberAt<quint32>(at) + numberAt<qint16>(at + 4) * (qint64{1} << 32), 6);
    case Integer64:
        return putInteger(numberAt<qint64>(at), 8);
    case Real:
        value.kind = Kind::Real;
        value.real = numberAt<double>(at);
        return at + sizeof value.real;
    case LongText:
        return putBytes(Kind::Text, at + 4, numberAt<quint32>(at));
    case LongBlob:
        return putBytes(Kind::Blob, at + 4, numberAt<quint32>(at));
    default:
        Q_UNREACHABLE();
    }
}

RawValue RowStore::cell(qint64 row, int column) const
{
    const char *at = rowStart(row);
    for (int i = 0; i < column; ++i)
        at = nextCell(at);
    RawValue value;
    decode(at, value);
    return value;
}

std::vector<RawValue> RowStore::row(qint64 row) const
{
    std::vector<RawValue> cells(static_cast<std::size_t>(m_columns));
    read(row, 0, cells);
    return cells;
}

void RowStore::read(qint64 row, int first, std::vector<RawValue> &cells) const
{
    const char *at = rowStart(row);
    for (int i = 0; i < first; ++i)
        at = nextCell(at);
    for (RawValue &cell : cells)
        at = decode(at, cell);
}

void RowStore::remove(qint64 row)
{
    const qint64 stored = storedRow(row);
    m_removed.insert(std::lower_bound(m_removed.begin(), m_removed.end(), stored), stored);
    m_replaced.erase(stored);
}

void RowStore::replace(qint64 row, const std::vector<RawValue> &cells)
{
    // Packed by a temporary store, so that there is only one implementation of packing.
    RowStore packed(m_columns);
    for (const RawValue &value : cells)
        packed.add(value);
    m_replaced[storedRow(row)] = QByteArray(packed.m_rowStart, packed.m_write - packed.m_rowStart);
}

// Live row n is stored row n + r, where r is the number of removed rows before it. m_removed[i] - i, the live
// row at the i-th removed one's place, never decreases, so a binary search finds r.
qint64 RowStore::storedRow(qint64 row) const
{
    std::size_t low = 0;
    std::size_t high = m_removed.size();
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (m_removed[middle] - static_cast<qint64>(middle) <= row)
            low = middle + 1;
        else
            high = middle;
    }
    return row + static_cast<qint64>(low);
}

const char *RowStore::rowStart(qint64 row) const
{
    Q_ASSERT(row >= 0 && row < rows());
    const qint64 stored = m_removed.empty() ? row : storedRow(row);
    if (!m_replaced.empty()) {
        if (const auto found = m_replaced.find(stored); found != m_replaced.end())
            return found->second.constData();
    }
    const auto next =
        std::upper_bound(m_blocks.begin(), m_blocks.end(), stored,
                         [](qint64 wanted, const Block &block) { return wanted < block.firstRow; });
    return std::prev(next)->start(stored);
}

} // namespace ADODB
