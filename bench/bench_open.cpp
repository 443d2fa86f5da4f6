// What a result costs over the database library alone, in time and memory, in several shapes of table: a bare
// loop over SQLite's functions that reads every cell, and the number of the row as the key, and keeps none;
// Recordset::Open; and up to the painted screen with the grid and with a QTableView over a QSqlQueryModel
// that has fetched all its rows. They take turns, each in a process of its own. Then times reading single
// cells at random.
//   bench_open [SHAPE [ROUNDS]]           one shape only, or all that are given as "all"; 7 rounds unless
//   given bench_open --once SHAPE WAY           one way in this process, for a profiler
// Unix only.

#include "OpenTable.h"

#include "ado/Recordset.h"
#include "grid/FlexGrid.h"
#include "grid/cells/RecordWindow.h"

#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlQueryModel>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Column
{
    const char *type;
    const char *value; // of the row with the number i
};

constexpr Column mixed[] = {
    {"INTEGER", "i * 7919 % 50000"},
    {"VARCHAR(40)", "'Product number ' || (i * 31 % 1200)"},
    {"TEXT", "substr('北京市上海市广州市深圳市', 1 + i % 4 * 3, 3)"},
    {"SMALLINT", "i % 100"},
    {"DECIMAL(10,2)", "round(i % 100000 / 7.0, 2)"},
    {"REAL", "i % 10 / 20.0"},
    {"BOOLEAN", "i % 3 = 0"},
    {"DATE", "date('2015-01-01', '+' || (i % 3650) || ' days')"},
    {"TIMESTAMP", "CASE WHEN i % 5 THEN datetime('2015-01-01', '+' || (i % 5000000) || ' minutes') END"},
    {"CHAR(12)", "printf('C-%010d', i)"},
    {"TEXT", "CASE WHEN i % 4 THEN 'note for row ' || i END"},
};
constexpr Column shortText[] = {{"VARCHAR(8)", "substr('北京 a1b2', 1 + i % 5, 1 + i % 4)"}};
constexpr Column longText[] = {{"TEXT", "substr(printf('%0400d', i), 1, 200 + i % 200)"}};
constexpr Column null[] = {{"VARCHAR(40)", "NULL"}};

struct Shape
{
    const char *name;
    qint64 rows;
    int columns;
    bool showsKey; // the first column is the number of the row
    const Column *kinds;
    std::size_t kindCount;
};

constexpr Shape shapes[] = {
    {"mixed", 999'999, 12, true, mixed, std::size(mixed)},
    {"wide", 60'000, 200, false, mixed, std::size(mixed)},
    {"short", 999'999, 12, false, shortText, std::size(shortText)},
    {"long", 60'000, 12, false, longText, std::size(longText)},
    {"null", 999'999, 12, false, null, std::size(null)},
};

BenchTable makeTable(const QByteArray &path, const Shape &shape, qint64 rows)
{
    QByteArray declared = shape.showsKey ? "c0 INTEGER PRIMARY KEY" : "";
    QByteArray values = shape.showsKey ? "i" : "";
    for (int column = shape.showsKey ? 1 : 0; column < shape.columns; ++column) {
        const Column &kind = shape.kinds[static_cast<std::size_t>(column - shape.showsKey) % shape.kindCount];
        const QByteArray comma = column > 0 ? ", " : "";
        declared += comma + 'c' + QByteArray::number(column) + ' ' + kind.type;
        values += comma + kind.value;
    }
    const BenchTable table{path, rows, shape.columns, shape.showsKey};
    if (QFile::exists(QString::fromUtf8(path)))
        return table;
    makeFile(path, "CREATE TABLE sales(" + declared +
                       "); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                       QByteArray::number(rows) + ") INSERT INTO sales SELECT " + values + " FROM n;");
    return table;
}

void showAndPaint(QTableView &view)
{
    view.resize(1850, 983);
    view.show();
    QApplication::processEvents();
    if (view.grab().isNull())
        stop("nothing was painted");
}

Measurement paintGrid(const BenchTable &table)
{
    int argc = 0;
    const QApplication app(argc, nullptr);
    const Stopwatch watch;
    const auto recordset = std::make_shared<ADODB::Recordset>();
    recordset->SetProgress([](qint64) { return true; });
    open(*recordset, table, true);
    KOVAVSFDataGridLib::VSFlexGrid grid;
    grid.Show(std::make_unique<KOVAVSFDataGridLib::RecordWindow>(recordset, 1, static_cast<int>(table.rows)));
    showAndPaint(grid);
    return watch.read();
}

Measurement paintTableView(const BenchTable &table)
{
    int argc = 0;
    const QApplication app(argc, nullptr);
    const Stopwatch watch;
    QSqlQueryModel model;
    fetch(model, table);
    QTableView view;
    view.setModel(&model);
    showAndPaint(view);
    return watch.read();
}

struct Way
{
    const char *name;
    Measurement (*read)(const BenchTable &);
    int peer; // index of the way that it is compared with
};

constexpr Way ways[] = {
    {"loop", readWithKey, -1},
    {"recordset", openRecordset, 0},
    {"tableview", paintTableView, -1},
    {"grid", paintGrid, 2},
};

struct Summary
{
    double best = 0;
    double median = 0;
    double processor = 0; // the best
    double megabytes = 0; // the most, above those with a table of one row
    double peak = 0;      // the same
    double allPeak = 0;   // of the whole process
};

template<typename Value>
double most(const std::vector<Measurement> &all, Value value)
{
    return std::ranges::max(all, {}, value).*value;
}

Summary summarize(std::vector<Measurement> all, const Measurement &empty)
{
    std::ranges::sort(all, {}, &Measurement::seconds);
    const double peak = most(all, &Measurement::peakMegabytes);
    return {all.front().seconds,
            all[all.size() / 2].seconds,
            std::ranges::min(all, {}, &Measurement::processorSeconds).processorSeconds,
            most(all, &Measurement::megabytes) - empty.megabytes,
            peak - empty.peakMegabytes,
            peak};
}

void printCellTimes(const BenchTable &table)
{
    constexpr int reads = 500'000;
    ADODB::Recordset recordset;
    open(recordset, table, false);
    std::printf("\n%-12s %16s\n", "column", "ns per CellText");
    std::mt19937_64 engine(1);
    std::uniform_int_distribution<qint64> anyRecord(1, table.rows);
    std::vector<qint64> records(reads);
    std::generate(records.begin(), records.end(), [&] { return anyRecord(engine); });
    for (int column = 0; column < table.columns; ++column) {
        qsizetype length = 0;
        const auto start = std::chrono::steady_clock::now();
        for (const qint64 record : records)
            length += recordset.CellText(record, column).size();
        const double nanoseconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() * 1e9 / reads;
        if (length == 0)
            stop("the cells are empty");
        std::printf("%-12s %16.0f\n", qUtf8Printable(recordset.Fields().Item(column).Name()), nanoseconds);
    }
}

void compare(const QTemporaryDir &folder, const Shape &shape, int rounds)
{
    const auto file = [&](const QByteArray &name) {
        return folder.filePath(QString::fromLatin1(shape.name + name)).toUtf8();
    };
    const BenchTable table = makeTable(file(".db"), shape, shape.rows);
    const BenchTable oneRow = makeTable(file("-one-row.db"), shape, 1);
    const double bytes =
        static_cast<double>(QFileInfo(QString::fromUtf8(table.path)).size()) / bytesPerMegabyte;
    std::array<std::vector<Measurement>, std::size(ways)> measured;
    inChild(readByBareLoop, table); // loads the file into the system's cache
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t way = 0; way < measured.size(); ++way)
            measured[way].push_back(inChild(ways[way].read, table));
    }
    std::printf("\n%s: %lld rows x %d columns, a table of %.1f MB, %d rounds\n", shape.name,
                static_cast<long long>(table.rows), table.columns, bytes, rounds);
    std::printf("%-12s %8s %8s %8s %9s %9s %9s %9s\n", "", "best s", "median s", "CPU s", "stays MB",
                "peak MB", "per table", "process");
    std::array<Summary, std::size(ways)> summaries;
    for (std::size_t way = 0; way < measured.size(); ++way) {
        const Summary &own = summaries[way] = summarize(measured[way], inChild(ways[way].read, oneRow));
        std::printf("%-12s %8.3f %8.3f %8.3f %9.1f %9.1f %9.2f %9.1f\n", ways[way].name, own.best, own.median,
                    own.processor, own.megabytes, own.peak, own.peak / bytes, own.allPeak);
        if (ways[way].peer < 0)
            continue;
        const Summary &peer = summaries[static_cast<std::size_t>(ways[way].peer)];
        std::printf("%-12s %8.2f %8.2f %8.2f", "  ratio", own.best / peer.best, own.median / peer.median,
                    own.processor / peer.processor);
        if (ways[way].peer > 0)
            std::printf(" %9.2f %9.2f %9s %9.2f", own.megabytes / peer.megabytes, own.peak / peer.peak, "",
                        own.allPeak / peer.allPeak);
        std::printf("\n");
    }
    if (shape.showsKey)
        printCellTimes(table);
    std::fflush(stdout);
    QFile::remove(QString::fromUtf8(table.path));
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    const bool isOnce = argc == 5 && QByteArrayView(argv[1]) == "--once";
    const QByteArrayView wanted = argc > 1 ? argv[isOnce ? 2 : 1] : "all";
    const int rounds = argc > 2 && !isOnce ? std::atoi(argv[2]) : 7;
    for (const Shape &shape : shapes) {
        if (wanted != "all" && wanted != shape.name)
            continue;
        if (!isOnce) {
            compare(folder, shape, rounds);
            continue;
        }
        const auto way = std::ranges::find(ways, QByteArrayView(argv[3]), &Way::name);
        if (way == std::end(ways))
            stop("there is no such way");
        way->read(makeTable(argv[4], shape, shape.rows));
    }
    return 0;
}
