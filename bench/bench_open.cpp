// What a recordset costs over the database library alone: opens 999,999 rows of 12 columns with
// Recordset::Open and with a bare loop that reads every cell and keeps none, in turn, each in a process of
// its own so that the memory peaks are its own; and up to the painted screen with the grid and with a
// QTableView over a QSqlQueryModel that has fetched all its rows. Then times reading single cells at random.
// Unix only.

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "grid/FlexGrid.h"
#include "grid/cells/RecordWindow.h"

#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQueryModel>
#include <QtWidgets/QApplication>

#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 rowCount = 999'999;
constexpr int columnCount = 12;
constexpr int rounds = 7;
constexpr const char *statement = "SELECT * FROM sales";

[[noreturn]] void stop(const char *why)
{
    std::fprintf(stderr, "bench_open: %s\n", why);
    std::exit(1);
}

double secondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void makeTable(const QByteArray &path)
{
    const QByteArray script =
        "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF;"
        "CREATE TABLE sales(id INTEGER PRIMARY KEY, customer INTEGER, product VARCHAR(40),"
        " city TEXT, quantity SMALLINT, price DECIMAL(10,2), discount REAL, paid BOOLEAN,"
        " ordered DATE, shipped TIMESTAMP, code CHAR(12), note TEXT);"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
        QByteArray::number(rowCount) +
        ") INSERT INTO sales SELECT i, i * 7919 % 50000, 'Product number ' || (i * 31 % 1200),"
        " substr('北京市上海市广州市深圳市', 1 + i % 4 * 3, 3), i % 100, round(i % 100000 / 7.0, 2), i % 10 "
        "/ 20.0,"
        " i % 3 = 0, date('2015-01-01', '+' || (i % 3650) || ' days'),"
        " CASE WHEN i % 5 THEN datetime('2015-01-01', '+' || (i % 5000000) || ' minutes') END,"
        " printf('C-%010d', i), CASE WHEN i % 4 THEN 'note for row ' || i END FROM n;";
    sqlite3 *db = nullptr;
    if (sqlite3_open(path.constData(), &db) != SQLITE_OK ||
        sqlite3_exec(db, script.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        stop(sqlite3_errmsg(db));
    sqlite3_close(db);
}

double bareLoop(const QByteArray &path)
{
    const auto start = std::chrono::steady_clock::now();
    sqlite3 *db = nullptr;
    sqlite3_stmt *query = nullptr;
    if (sqlite3_open_v2(path.constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) !=
            SQLITE_OK ||
        sqlite3_prepare_v2(db, statement, -1, &query, nullptr) != SQLITE_OK)
        stop(sqlite3_errmsg(db));
    qint64 rows = 0;
    qint64 sum = 0; // keeps the reading from being optimised away
    for (; sqlite3_step(query) == SQLITE_ROW; ++rows) {
        for (int i = 0; i < columnCount; ++i) {
            switch (sqlite3_column_type(query, i)) {
            case SQLITE_INTEGER:
                sum += sqlite3_column_int64(query, i);
                break;
            case SQLITE_FLOAT:
                sum += sqlite3_column_double(query, i) > 0 ? 1 : 0;
                break;
            case SQLITE_TEXT:
                sum += *sqlite3_column_text(query, i);
                sum += sqlite3_column_bytes(query, i);
                break;
            default:
                break;
            }
        }
    }
    sqlite3_finalize(query);
    sqlite3_close(db);
    if (rows != rowCount || sum == 0)
        stop("the bare loop did not read the table");
    return secondsSince(start);
}

void open(ADODB::Recordset &recordset, const QByteArray &path, ADODB::LockTypeEnum lock)
{
    const auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(u"Provider=SQLite;Data Source="_s + QString::fromUtf8(path));
    recordset.Open(QString::fromUtf8(statement), connection, ADODB::adOpenKeyset, lock, ADODB::adCmdText);
    if (recordset.RecordCount() != rowCount || recordset.Fields().Count() != columnCount)
        stop("the recordset did not read the table");
}

double openRecordset(const QByteArray &path)
{
    const auto start = std::chrono::steady_clock::now();
    ADODB::Recordset recordset;
    // As a grid opens it: ready for editing, and with a report that looks at nothing.
    recordset.SetProgress([](qint64) { return true; });
    open(recordset, path, ADODB::adLockOptimistic);
    return secondsSince(start);
}

void showAndPaint(QTableView &view)
{
    view.resize(1850, 983);
    view.show();
    QApplication::processEvents();
    if (view.grab().isNull())
        stop("nothing was painted");
}

double paintGrid(const QByteArray &path)
{
    int argc = 0;
    const QApplication app(argc, nullptr);
    const auto start = std::chrono::steady_clock::now();
    const auto recordset = std::make_shared<ADODB::Recordset>();
    recordset->SetProgress([](qint64) { return true; });
    open(*recordset, path, ADODB::adLockOptimistic);
    KOVAVSFDataGridLib::VSFlexGrid grid;
    grid.Show(std::make_unique<KOVAVSFDataGridLib::RecordWindow>(recordset, 1, static_cast<int>(rowCount)));
    showAndPaint(grid);
    return secondsSince(start);
}

double paintTableView(const QByteArray &path)
{
    int argc = 0;
    const QApplication app(argc, nullptr);
    const auto start = std::chrono::steady_clock::now();
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    database.setDatabaseName(QString::fromUtf8(path));
    if (!database.open())
        stop(qPrintable(database.lastError().text()));
    QSqlQueryModel model;
    model.setQuery(QString::fromLatin1(statement), database);
    while (model.canFetchMore())
        model.fetchMore();
    if (model.rowCount() != rowCount || model.columnCount() != columnCount)
        stop("the query model did not read the table");
    QTableView view;
    view.setModel(&model);
    showAndPaint(view);
    return secondsSince(start);
}

struct Measurement
{
    double seconds = 0;
    double peakMegabytes = 0;
};

// Runs `work` in a child process and answers what it measured, with the child's memory peak.
Measurement inChild(double (*work)(const QByteArray &), const QByteArray &path)
{
    std::array<int, 2> channel{};
    if (pipe(channel.data()) != 0)
        stop("no pipe");
    const pid_t child = fork();
    if (child < 0)
        stop("no child process");
    if (child == 0) {
        double seconds = 0;
        try {
            seconds = work(path);
        } catch (const ADODB::Error &error) {
            stop(error.what());
        }
        _exit(write(channel[1], &seconds, sizeof seconds) == sizeof seconds ? 0 : 1);
    }
    Measurement measurement;
    rusage usage{};
    int status = 0;
    const bool told = read(channel[0], &measurement.seconds, sizeof measurement.seconds) > 0;
    wait4(child, &status, 0, &usage);
    close(channel[0]);
    close(channel[1]);
    if (!told || status != 0)
        stop("a child process failed");
    measurement.peakMegabytes = static_cast<double>(usage.ru_maxrss) / 1024;
    return measurement;
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

void printCellTimes(const QByteArray &path)
{
    constexpr int reads = 500'000;
    ADODB::Recordset recordset;
    open(recordset, path, ADODB::adLockReadOnly);
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
        const double nanoseconds = secondsSince(start) * 1e9 / reads;
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
    const QByteArray path = folder.filePath(u"bench.db"_s).toUtf8();
    makeTable(path);
    inChild(bareLoop, path); // brings the file into the system's cache

    std::vector<Measurement> bare;
    std::vector<Measurement> recordset;
    std::vector<Measurement> grid;
    std::vector<Measurement> tableView;
    for (int i = 0; i < rounds; ++i) {
        bare.push_back(inChild(bareLoop, path));
        recordset.push_back(inChild(openRecordset, path));
        grid.push_back(inChild(paintGrid, path));
        tableView.push_back(inChild(paintTableView, path));
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
    printCellTimes(path);
    return 0;
}
