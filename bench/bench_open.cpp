// What a recordset costs over the database library alone: opens 999,999 rows of 12 columns with
// Recordset::Open and with a bare loop that reads every cell and keeps none, in turn, each in a process of
// its own so that the memory peaks are its own; and up to the painted screen with the grid and with a
// QTableView over a QSqlQueryModel that has fetched all its rows. Then times reading single cells at random.
// Unix only.

#include "OpenTable.h"

#include "ado/Recordset.h"
#include "grid/FlexGrid.h"
#include "grid/cells/RecordWindow.h"

#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlQueryModel>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 rowCount = 999'999;
constexpr int columnCount = 12;
constexpr int rounds = 7;

BenchTable makeTable(const QByteArray &path)
{
    makeFile(path, "CREATE TABLE sales(id INTEGER PRIMARY KEY, customer INTEGER, product VARCHAR(40),"
                   " city TEXT, quantity SMALLINT, price DECIMAL(10,2), discount REAL, paid BOOLEAN,"
                   " ordered DATE, shipped TIMESTAMP, code CHAR(12), note TEXT);"
                   "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                       QByteArray::number(rowCount) +
                       ") INSERT INTO sales SELECT i, i * 7919 % 50000, 'Product number ' || (i * 31 % 1200),"
                       " substr('北京市上海市广州市深圳市', 1 + i % 4 * 3, 3), i % 100, round(i % 100000 / "
                       "7.0, 2), i % 10 "
                       "/ 20.0,"
                       " i % 3 = 0, date('2015-01-01', '+' || (i % 3650) || ' days'),"
                       " CASE WHEN i % 5 THEN datetime('2015-01-01', '+' || (i % 5000000) || ' minutes') END,"
                       " printf('C-%010d', i), CASE WHEN i % 4 THEN 'note for row ' || i END FROM n;");
    return {path, rowCount, columnCount, true};
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
    grid.Show(std::make_unique<KOVAVSFDataGridLib::RecordWindow>(recordset, 1, static_cast<int>(rowCount)));
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

struct Summary
{
    double best = 0;
    double median = 0;
    double peak = 0;
};

Summary summarize(std::vector<Measurement> all)
{
    std::sort(all.begin(), all.end(),
              [](const Measurement &a, const Measurement &b) { return a.seconds < b.seconds; });
    const auto highest =
        std::max_element(all.begin(), all.end(), [](const Measurement &a, const Measurement &b) {
            return a.peakMegabytes < b.peakMegabytes;
        });
    return {all.front().seconds, all[all.size() / 2].seconds, highest->peakMegabytes};
}

void printCellTimes(const BenchTable &table)
{
    constexpr int reads = 500'000;
    ADODB::Recordset recordset;
    open(recordset, table, false);
    std::printf("\n%-12s %16s\n", "column", "ns per CellText");
    std::mt19937_64 engine(1);
    std::uniform_int_distribution<qint64> anyRecord(1, rowCount);
    std::vector<qint64> records(reads);
    std::generate(records.begin(), records.end(), [&] { return anyRecord(engine); });
    for (int column = 0; column < columnCount; ++column) {
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

} // namespace

int main()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    const BenchTable table = makeTable(folder.filePath(u"bench.db"_s).toUtf8());
    inChild(readByBareLoop, table); // loads the file into the system's cache

    std::vector<Measurement> bare;
    std::vector<Measurement> recordset;
    std::vector<Measurement> grid;
    std::vector<Measurement> tableView;
    for (int i = 0; i < rounds; ++i) {
        bare.push_back(inChild(readByBareLoop, table));
        recordset.push_back(inChild(openRecordset, table));
        grid.push_back(inChild(paintGrid, table));
        tableView.push_back(inChild(paintTableView, table));
    }
    const Summary a = summarize(bare);
    const Summary b = summarize(recordset);
    const Summary c = summarize(grid);
    const Summary d = summarize(tableView);
    std::printf("%lld rows x %d columns, %d rounds\n", static_cast<long long>(rowCount), columnCount, rounds);
    std::printf("%-18s %10s %10s %12s\n", "", "best s", "median s", "peak MB");
    const auto print = [](const char *what, const Summary &summary) {
        std::printf("%-18s %10.3f %10.3f %12.1f\n", what, summary.best, summary.median, summary.peak);
    };
    const auto printRatio = [](const Summary &ours, const Summary &peer) {
        std::printf("%-18s %10.2f %10.2f", "ratio", ours.best / peer.best, ours.median / peer.median);
    };
    print("bare sqlite3 loop", a);
    print("Recordset::Open", b);
    printRatio(b, a);
    std::printf("\n");
    print("painted QTableView", d);
    print("painted grid", c);
    printRatio(c, d);
    std::printf(" %12.2f\n", c.peak / d.peak);
    printCellTimes(table);
    return 0;
}
