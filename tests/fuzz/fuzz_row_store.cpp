// The packed rows against a plain list of rows: written, read, replaced and removed in any order, in memory
// and in the spill file.
#include "FuzzInput.h"

#include "ado/rows/RowComparison.h"
#include "ado/rows/RowStore.h"

#include <algorithm>
#include <cstring>
#include <vector>

using namespace ADODB;
using KovaTest::Require;

namespace {

struct Cell
{
    RawValue::Kind kind = RawValue::Kind::Null;
    qint64 integer = 0;
    double real = 0;
    QByteArray bytes;

    RawValue raw() const { return {kind, integer, real, bytes}; }
};
using Row = std::vector<Cell>;

class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size) : m_data(data), m_left(size) {}
    bool isEmpty() const { return m_left == 0; }
    unsigned byte()
    {
        if (m_left == 0)
            return 0;
        --m_left;
        return *m_data++;
    }
    qint64 number()
    {
        quint64 value = 0;
        for (int i = 0; i < 8; ++i)
            value = (value << 8) | byte();
        return static_cast<qint64>(value >> (8 * (byte() % 8)));
    }

private:
    const std::uint8_t *m_data;
    std::size_t m_left;
};

Cell cellFrom(Input &input)
{
    Cell cell;
    cell.kind = static_cast<RawValue::Kind>(input.byte() % 5);
    switch (cell.kind) {
    case RawValue::Kind::Null:
        break;
    case RawValue::Kind::Integer:
        cell.integer = input.number();
        break;
    case RawValue::Kind::Real: {
        const qint64 bits = input.number();
        std::memcpy(&cell.real, &bits, sizeof bits);
        break;
    }
    case RawValue::Kind::Text:
    case RawValue::Kind::Blob: {
        // Short, around the limits of the short form, and large enough to fill blocks.
        static constexpr qsizetype sizes[] = {0, 1, 31, 32, 143, 144, 4000, 1 << 20, 5 << 20};
        const qsizetype size = sizes[input.byte() % std::size(sizes)];
        cell.bytes = QByteArray(size, static_cast<char>(input.byte()));
        break;
    }
    }
    return cell;
}

void check(const RowStore &store, const std::vector<Row> &model, qint64 row)
{
    const std::vector<RawValue> cells = store.row(row);
    const Row &expected = model[static_cast<std::size_t>(row)];
    Require(cells.size() == expected.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
        Require(RowComparison::isSame(cells[i], expected[i].raw()));
        Require(RowComparison::isSame(store.cell(row, static_cast<int>(i)), expected[i].raw()));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const auto columns = static_cast<int>(input.byte() % 5);
    const qint64 limit = (input.byte() % 2) != 0 ? 0 : RowStore::defaultMemoryLimit;
    RowStore store(columns, limit);
    std::vector<Row> model;
    qint64 large = 0;
    const auto rowFrom = [&] {
        Row row;
        for (int i = 0; i < columns; ++i) {
            row.push_back(cellFrom(input));
            large += row.back().bytes.size();
        }
        return row;
    };
    while (!input.isEmpty() && large < (qint64{16} << 20)) {
        const unsigned what = input.byte() % 8;
        const qint64 rows = store.rows();
        const qint64 place = rows > 0 ? static_cast<qint64>(input.byte()) % rows : 0;
        if (what < 4 || rows == 0) {
            Row row = rowFrom();
            const bool isDropped = what == 3;
            for (const Cell &cell : row)
                store.add(cell.raw());
            if (isDropped) {
                store.dropBegunRow();
            } else {
                store.endRow();
                model.push_back(std::move(row));
            }
        } else if (what == 4) {
            store.remove(place);
            model.erase(model.begin() + place);
        } else if (what == 5) {
            model[static_cast<std::size_t>(place)] = rowFrom();
            std::vector<RawValue> cells;
            for (const Cell &cell : model[static_cast<std::size_t>(place)])
                cells.push_back(cell.raw());
            store.replace(place, cells);
        } else if (what == 6) {
            check(store, model, place);
        } else if (input.byte() % 16 == 0) {
            store.clear();
            model.clear();
        }
        Require(store.rows() == static_cast<qint64>(model.size()));
    }
    for (qint64 i = 0; i < store.rows(); ++i)
        check(store, model, i);
    return 0;
}
