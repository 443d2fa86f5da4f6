#include "Printing.h"
#include "TemporaryFolder.h"

#include "ado/Error.h"
#include "ado/rows/RowStore.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <utility>

using namespace ADODB;

namespace {

// The simplest form of a row, to compare the packed one with.
using PlainRow = std::vector<QVariant>;

RawValue rawOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::LongLong:
        return RawValue::fromInteger(value.toLongLong());
    case QMetaType::Double:
        return RawValue::fromReal(value.toDouble());
    case QMetaType::QByteArray: {
        // The tests keep texts as bytes too; the first byte tells which is meant.
        const auto *bytes = static_cast<const QByteArray *>(value.constData());
        return bytes->startsWith('T') ? RawValue::fromText(*bytes) : RawValue::fromBlob(*bytes);
    }
    default:
        return {};
    }
}

QVariant plainOf(const RawValue &raw)
{
    switch (raw.kind) {
    case RawValue::Kind::Null:
        return {};
    case RawValue::Kind::Integer:
        return raw.integer;
    case RawValue::Kind::Real:
        return raw.real;
    case RawValue::Kind::Text:
        EXPECT_TRUE(raw.bytes.startsWith("T"));
        return raw.bytes.toByteArray();
    case RawValue::Kind::Blob:
        EXPECT_FALSE(raw.bytes.startsWith("T"));
        return raw.bytes.toByteArray();
    }
    return {};
}

class Generator
{
public:
    explicit Generator(unsigned seed) : m_engine(seed) {}

    qint64 number(qint64 low, qint64 high)
    {
        return std::uniform_int_distribution<qint64>(low, high)(m_engine);
    }

    QVariant cell()
    {
        switch (number(0, 6)) {
        case 0:
            return {};
        case 1:
            return qlonglong{number(-200, 200)};
        case 2:
            return qlonglong{number(-70000, 70000)};
        case 3:
            return qlonglong{number(std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max())};
        case 4:
            return static_cast<double>(number(-1000, 1000)) / 8;
        case 5:
            return QByteArray("T") + QByteArray(number(0, 600), 'x');
        default:
            return QByteArray("B") + QByteArray(number(0, 600), '\0');
        }
    }

    PlainRow row(int columns)
    {
        PlainRow row;
        for (int i = 0; i < columns; ++i)
            row.push_back(cell());
        return row;
    }

private:
    std::mt19937 m_engine;
};

void append(RowStore &store, const PlainRow &row)
{
    for (const QVariant &cell : row)
        store.add(rawOf(cell));
    store.endRow();
}

void replace(RowStore &store, qint64 at, const PlainRow &row)
{
    std::vector<RawValue> cells;
    for (const QVariant &cell : row)
        cells.push_back(rawOf(cell));
    store.replace(at, cells);
}

void expectSame(const RowStore &store, const std::vector<PlainRow> &model)
{
    ASSERT_EQ(store.rows(), static_cast<qint64>(model.size()));
    for (std::size_t r = 0; r < model.size(); ++r) {
        const auto row = store.row(static_cast<qint64>(r));
        for (std::size_t c = 0; c < model[r].size(); ++c) {
            ASSERT_EQ(plainOf(row[c]), model[r][c]) << r << ',' << c;
            ASSERT_EQ(plainOf(store.cell(static_cast<qint64>(r), static_cast<int>(c))), model[r][c]);
        }
    }
}

TEST(RowStore, StaysEqualToAPlainTableUnderRandomEdits)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        Generator random(seed);
        const int columns = static_cast<int>(random.number(1, 12));
        RowStore store(columns);
        std::vector<PlainRow> model;
        for (int step = 0; step < 600; ++step) {
            const qint64 action = random.number(0, 9);
            if (action < 6 || model.empty()) {
                const PlainRow row = random.row(columns);
                append(store, row);
                model.push_back(row);
                continue;
            }
            const qint64 at = random.number(0, static_cast<qint64>(model.size()) - 1);
            if (action < 8) {
                store.remove(at);
                model.erase(model.begin() + at);
            } else {
                const PlainRow row = random.row(columns);
                replace(store, at, row);
                model[static_cast<std::size_t>(at)] = row;
            }
        }
        ASSERT_NO_FATAL_FAILURE(expectSame(store, model)) << "seed " << seed;
    }
}

TEST(RowStore, KeepsTheLimitsOfEveryWidth)
{
    std::vector<PlainRow> model{PlainRow()};
    for (int bits : {5, 6, 7, 8, 15, 16, 23, 24, 31, 32, 47, 48, 62}) {
        const qint64 edge = qint64{1} << bits;
        for (const qint64 value : {edge - 1, edge, -edge, -edge - 1})
            model[0].push_back(qlonglong{value});
    }
    model[0].push_back(qlonglong{std::numeric_limits<qint64>::max()});
    model[0].push_back(qlonglong{std::numeric_limits<qint64>::min()});
    // All short lengths, and those around the limits of the length itself.
    for (qsizetype size = 0; size < 300; ++size)
        model[0].push_back(QByteArray("T") + QByteArray(size, 'x'));
    for (qsizetype size = 0; size < 300; ++size)
        model[0].push_back(QByteArray("B") + QByteArray(size, 'x'));
    for (qsizetype size : {65535, 65536})
        model[0].push_back(QByteArray("T") + QByteArray(size, 'x'));
    RowStore store(static_cast<int>(model[0].size()));
    append(store, model[0]);
    expectSame(store, model);
}

TEST(RowStore, MovesARowThatOutgrowsItsBlock)
{
    // Rows of about 1 MB fill blocks unevenly; one row of 30 MB needs a block of its own.
    RowStore store(3);
    std::vector<PlainRow> model;
    for (qsizetype size : {1'000'000, 1'500'000, 900'000, 10'000'000, 5, 4'194'303, 7}) {
        model.push_back({QByteArray("T") + QByteArray(size, 'a'), qlonglong{size},
                         QByteArray("B") + QByteArray(size * 2, 'b')});
        append(store, model.back());
    }
    expectSame(store, model);
    EXPECT_GT(store.bytesWritten(), 3 * 10'000'000);
}

qint64 bytesOf(const RawValue &value)
{
    RowStore store(1);
    store.add(value);
    store.endRow();
    return store.bytesWritten();
}

TEST(RowStore, NeedsAByteForAValueAndThoseOfTheValueItself)
{
    EXPECT_EQ(bytesOf({}), 1);
    EXPECT_EQ(bytesOf(RawValue::fromText("")), 1);
    EXPECT_EQ(bytesOf(RawValue::fromText("A code of twelve")), 1 + 16);
    EXPECT_EQ(bytesOf(RawValue::fromText(QByteArray(143, 'x'))), 1 + 143);
    EXPECT_EQ(bytesOf(RawValue::fromText(QByteArray(144, 'x'))), 5 + 144) << "a long one has its length, too";
    EXPECT_EQ(bytesOf(RawValue::fromBlob(QByteArray(16, 'x'))), 1 + 16);
    EXPECT_EQ(bytesOf(RawValue::fromReal(0.5)), 1 + 8);
    // Integers: the value, and how many bytes it has.
    const std::pair<qint64, qint64> integers[] = {{0, 0},
                                                  {63, 0},
                                                  {64, 1},
                                                  {-1, 1},
                                                  {30'000, 2},
                                                  {8'000'000, 3},
                                                  {-8'000'000, 3},
                                                  {2'000'000'000, 4},
                                                  {1'700'000'000'000, 6},
                                                  {std::numeric_limits<qint64>::min(), 8}};
    for (const auto &[value, bytes] : integers)
        EXPECT_EQ(bytesOf(RawValue::fromInteger(value)), 1 + bytes) << value;
}

TEST(RowStore, TakesRowsWithoutColumns)
{
    RowStore store(0);
    store.endRow();
    store.endRow();
    EXPECT_EQ(store.rows(), 2);
    EXPECT_TRUE(store.row(1).empty());
}

// 9 MB a step, so that a limit of 8 MiB is soon passed.
void appendBigRows(RowStore &store, std::vector<PlainRow> &model)
{
    for (int i = 0; i < 90; ++i) {
        const auto row = static_cast<qlonglong>(model.size());
        model.push_back({row,
                         QByteArray("T") + QByteArray(50'000 + i, static_cast<char>('a' + i % 26)),
                         QByteArray("B") + QByteArray(50'000, static_cast<char>(i)),
                         {}});
        append(store, model.back());
    }
}

constexpr qint64 smallLimit = qint64{8} << 20;

TEST(RowStore, ReadsBackWhatIsTooMuchForMemoryAndLeavesNoFile)
{
    const AdoTest::TemporaryFolder folder;
    {
        RowStore store(4, smallLimit);
        std::vector<PlainRow> model;
        for (int i = 0; i < 5; ++i)
            appendBigRows(store, model);
        EXPECT_GT(store.bytesSpilled(), 30'000'000);
        store.clear();
        EXPECT_EQ(store.rows(), 0);
        model.clear();
        for (int i = 0; i < 5; ++i)
            appendBigRows(store, model);
        EXPECT_GT(store.bytesSpilled(), 30'000'000) << "the limit is still the same";
        EXPECT_GE(store.bytesSpilled() + smallLimit + (4 << 20), store.bytesWritten());
#if defined(Q_OS_UNIX)
        EXPECT_EQ(folder.names(), QStringList()) << "not even while it is in use";
#endif
        expectSame(store, model);

        // Edits lie over it as over memory.
        store.remove(17);
        model.erase(model.begin() + 17);
        replace(store, 200, {qlonglong{1}, 2.5, QByteArray("T"), {}});
        model[200] = {qlonglong{1}, 2.5, QByteArray("T"), {}};
        appendBigRows(store, model);
        expectSame(store, model);
    }
    EXPECT_EQ(folder.names(), QStringList());
}

TEST(RowStore, SpillsNothingThatMemoryHolds)
{
    AdoTest::TemporaryFolder folder;
    folder.makeUnusable();
    RowStore store(4);
    std::vector<PlainRow> model;
    for (int i = 0; i < 5; ++i)
        appendBigRows(store, model);
    EXPECT_EQ(store.bytesSpilled(), 0);
    expectSame(store, model);
}

TEST(RowStore, SpillsARowOfAnySize)
{
    RowStore store(1, 0);
    const std::vector<QByteArray> texts{"a", QByteArray(300'000'000, 'b'), "c", QByteArray(5'000'000, 'd'),
                                        ""};
    for (const QByteArray &text : texts) {
        store.addText(text);
        store.endRow();
    }
    EXPECT_GT(store.bytesSpilled(), 300'000'000);
    for (std::size_t row = 0; row < texts.size(); ++row)
        EXPECT_TRUE(store.cell(static_cast<qint64>(row), 0).bytes == texts[row]) << row;
}

TEST(RowStore, KeepsItsRowsWhenTheDiskTakesNoMore)
{
    AdoTest::TemporaryFolder folder;
    folder.makeUnusable();
    RowStore store(4, smallLimit);
    std::vector<PlainRow> model;
    EXPECT_THROW(
        {
            for (int i = 0; i < 5; ++i)
                appendBigRows(store, model);
        },
        Error);
    model.pop_back(); // the row for which the disk was too full
    store.dropBegunRow();
    ASSERT_GT(store.bytesWritten(), smallLimit);
    expectSame(store, model);
}

TEST(RowStore, ACopyKeepsItsRowsWhileTheOriginalGrows)
{
    // A row of 100 bytes; blocks have up to 4 MiB, and most are spilled.
    constexpr qint64 rowsOfABlock = (qint64{4} << 20) / 106;
    RowStore store(1, qint64{4} << 20);
    const auto add = [&store](qint64 count) {
        for (qint64 i = 0; i < count; ++i) {
            store.addText(QByteArray::number(store.rows()).rightJustified(100, '0'));
            store.endRow();
        }
    };
    const auto expectRows = [](const RowStore &rows, qint64 count) {
        ASSERT_EQ(rows.rows(), count);
        for (const qint64 row : {qint64{0}, count / 2, count - 1})
            EXPECT_EQ(rows.cell(row, 0).bytes.toByteArray().toLongLong(), row);
    };
    add(10);
    const RowStore ten = store;
    add(3 * rowsOfABlock);
    store.addText("a row that has only begun"); // no column of the copy's
    const RowStore many = store;
    store.dropBegunRow();
    add(3 * rowsOfABlock);
    EXPECT_GT(store.bytesSpilled(), 0);
    expectRows(ten, 10);
    expectRows(many, 10 + 3 * rowsOfABlock);
    store.clear();
    expectRows(ten, 10);
    expectRows(many, 10 + 3 * rowsOfABlock);
}

TEST(RowStore, ACopyAndItsOriginalCanBothBeChanged)
{
    RowStore store(1);
    for (int i = 0; i < 3; ++i) {
        store.addInteger(i);
        store.endRow();
    }
    RowStore copy = store;
    copy.addInteger(30);
    copy.endRow();
    copy.remove(0);
    store.addInteger(40);
    store.endRow();
    store.replace(1, {RawValue::fromInteger(10)});
    const auto all = [](const RowStore &rows) {
        std::vector<qint64> numbers;
        for (qint64 row = 0; row < rows.rows(); ++row)
            numbers.push_back(rows.cell(row, 0).integer);
        return numbers;
    };
    EXPECT_EQ(all(copy), (std::vector<qint64>{1, 2, 30}));
    EXPECT_EQ(all(store), (std::vector<qint64>{0, 10, 2, 40}));
    EXPECT_LT(copy.bytesWritten(), 100);
}

} // namespace
