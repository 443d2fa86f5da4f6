// What reading a table costs by its number of rows (of 4 columns) and of columns (1,000,000 cells in all):
// SQLite alone, without and with the number of each row, Recordset::Open, and a QSqlQueryModel that has
// fetched all its rows, in turn, each in a process of its own. Before each measurement the process reads
// another table of 1,000 rows in the same way, so that what it pays only once (loading the pages of libraries
// and of its heap) is left out. The line "first" is 1,000 rows without that.
//   bench_curves [MOST]                  MOST is the number of rows of the longest table, 10,000,000 unless
//   given
// Prints milliseconds of the processor, the median of several runs. bench/curves draws them. Unix only.

#include "OpenTable.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlQueryModel>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

// The kinds of columns, repeated.
constexpr const char *kinds[][2] = {
    {"INTEGER", "i * 7919"},
    {"VARCHAR(40)", "'text number ' || (i * 31 % 1200)"},
    {"REAL", "i % 100000 / 7.0"},
    {"DATE", "CASE WHEN i % 5 THEN date('2015-01-01', (i % 3650) || ' days') END"}};

BenchTable makeTable(const QTemporaryDir &folder, qint64 rows, int columns, const char *file = "curves.db")
{
    QByteArray declared;
    QByteArray values;
    for (int column = 0; column < columns; ++column) {
        const auto &kind = kinds[static_cast<std::size_t>(column) % std::size(kinds)];
        const QByteArray comma = column > 0 ? "," : "";
        declared += comma + 'c' + QByteArray::number(column) + ' ' + kind[0];
        values += comma + kind[1];
    }
    const BenchTable table{folder.filePath(QString::fromLatin1(file)).toUtf8(), rows, columns};
    makeFile(table.path, "DROP TABLE IF EXISTS sales; CREATE TABLE sales(" + declared +
                             "); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                             QByteArray::number(rows) + ") INSERT INTO sales SELECT " + values + " FROM n;");
    return table;
}

Measurement fetchModel(const BenchTable &table)
{
    int argc = 0;
    const QCoreApplication app(argc, nullptr);
    const Stopwatch watch;
    QSqlQueryModel model;
    fetch(model, table);
    return watch.read();
}

BenchTable earlier;

template<auto read>
Measurement again(const BenchTable &table)
{
    read(earlier);
    return read(table);
}

double median(std::vector<Measurement> all)
{
    std::ranges::sort(all, {}, &Measurement::processorSeconds);
    return all[all.size() / 2].processorSeconds * 1000;
}

void measure(const char *curve, const BenchTable &table, bool isFirst = false)
{
    constexpr qint64 mostForModel = 4'000'000; // cells; it takes gigabytes
    constexpr qint64 manyCells = 10'000'000;
    const qint64 cells = table.rows * table.columns;
    const bool hasModel = cells <= mostForModel;
    std::vector<Measurement> bare;
    std::vector<Measurement> keyed;
    std::vector<Measurement> ours;
    std::vector<Measurement> model;
    readByBareLoop(table); // loads the file into the system's cache
    for (int round = 0; round < (cells < manyCells ? 9 : 5); ++round) {
        bare.push_back(inChild(isFirst ? readByBareLoop : again<readByBareLoop>, table));
        keyed.push_back(inChild(isFirst ? readWithKey : again<readWithKey>, table));
        ours.push_back(inChild(isFirst ? openRecordset : again<openRecordset>, table));
        if (hasModel && round < 3)
            model.push_back(inChild(fetchModel, table));
    }
    const double peer = median(keyed);
    const double opened = median(ours);
    const double fetched = hasModel ? median(model) : 0;
    std::printf("%-8s %10lld %8d %10.2f %10.2f %10.2f %10.2f %8.2f %8.2f\n", curve,
                static_cast<long long>(table.rows), table.columns, median(bare), peer, opened, fetched,
                opened / peer, hasModel ? fetched / opened : 0);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    const qint64 most = argc > 1 ? std::strtoll(argv[1], nullptr, 10) : 10'000'000;
    const QTemporaryDir folder;
    std::printf("%-8s %10s %8s %10s %10s %10s %10s %8s %8s\n", "curve", "rows", "columns", "bare ms",
                "key ms", "open ms", "model ms", "ratio", "model x");
    constexpr int columnsOfRows = 4;
    constexpr qint64 fewRows = 1000;
    earlier = makeTable(folder, fewRows, columnsOfRows, "earlier.db");
    measure("first", makeTable(folder, fewRows, columnsOfRows), true);
    for (qint64 rows = fewRows; rows <= most; rows *= 10)
        measure("rows", makeTable(folder, rows, columnsOfRows));
    constexpr qint64 cells = 1'000'000;
    for (const int columns : {1, 2, 5, 10, 20, 50, 100, 200, 500, 1000})
        measure("columns", makeTable(folder, cells / columns, columns));
    return 0;
}
