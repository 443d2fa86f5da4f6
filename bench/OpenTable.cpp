#include "OpenTable.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"

#include <QtCore/QFile>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQueryModel>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

// Of this process, at present.
double residentMegabytes()
{
    QFile file(u"/proc/self/statm"_s);
    const QByteArrayList pages =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ') : QByteArrayList();
    return pages.size() > 1
               ? pages[1].toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / bytesPerMegabyte
               : 0;
}

} // namespace

Measurement Stopwatch::read() const
{
    const double processor = static_cast<double>(std::clock() - m_processor) / CLOCKS_PER_SEC;
    return {std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count(), processor,
            residentMegabytes(), 0};
}

void stop(const char *why)
{
    std::fprintf(stderr, "bench: %s\n", why);
    std::exit(1);
}

void makeFile(const QByteArray &path, const QByteArray &script)
{
    const QByteArray all = "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF;" + script;
    sqlite3 *db = nullptr;
    if (sqlite3_open(path.constData(), &db) != SQLITE_OK ||
        sqlite3_exec(db, all.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        stop(sqlite3_errmsg(db));
    sqlite3_close(db);
}

namespace {

Measurement readAll(const BenchTable &table, const char *sql)
{
    const Stopwatch watch;
    sqlite3 *db = nullptr;
    sqlite3_stmt *query = nullptr;
    if (sqlite3_open_v2(table.path.constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) !=
            SQLITE_OK ||
        sqlite3_prepare_v2(db, sql, -1, &query, nullptr) != SQLITE_OK)
        stop(sqlite3_errmsg(db));
    const int columns = sqlite3_column_count(query);
    qint64 rows = 0;
    qint64 sum = 0; // prevents the compiler from removing the reads
    for (; sqlite3_step(query) == SQLITE_ROW; ++rows) {
        for (int i = 0; i < columns; ++i) {
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
    if (rows != table.rows || sum < 0)
        stop("the bare loop did not read the table");
    return watch.read();
}

} // namespace

Measurement readByBareLoop(const BenchTable &table)
{
    return readAll(table, wholeTable);
}

Measurement readWithKey(const BenchTable &table)
{
    return readAll(table, table.showsKey ? wholeTable : withKey);
}

void open(ADODB::Recordset &recordset, const BenchTable &table, bool isEditable)
{
    const auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(u"Provider=SQLite;Data Source="_s + QString::fromUtf8(table.path));
    recordset.Open(QString::fromUtf8(wholeTable), connection, ADODB::adOpenKeyset,
                   isEditable ? ADODB::adLockOptimistic : ADODB::adLockReadOnly, ADODB::adCmdText);
    if (recordset.RecordCount() != table.rows || recordset.Fields().Count() != table.columns)
        stop("the recordset did not read the table");
}

Measurement openRecordset(const BenchTable &table)
{
    const Stopwatch watch;
    ADODB::Recordset recordset;
    recordset.SetProgress([](qint64) { return true; });
    open(recordset, table, true);
    return watch.read();
}

void fetch(QSqlQueryModel &model, const BenchTable &table)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    database.setDatabaseName(QString::fromUtf8(table.path));
    if (!database.open())
        stop(qPrintable(database.lastError().text()));
    model.setQuery(QString::fromLatin1(wholeTable), database);
    while (model.canFetchMore())
        model.fetchMore();
    if (model.rowCount() != table.rows || model.columnCount() != table.columns)
        stop("the query model did not read the table");
}

Measurement inChild(Measurement (*work)(const BenchTable &), const BenchTable &table)
{
    std::array<int, 2> channel{};
    if (pipe(channel.data()) != 0)
        stop("no pipe");
    const pid_t child = fork();
    if (child < 0)
        stop("no child process");
    if (child == 0) {
        Measurement taken;
        try {
            taken = work(table);
        } catch (const ADODB::Error &error) {
            stop(error.what());
        }
        _exit(write(channel[1], &taken, sizeof taken) == sizeof taken ? 0 : 1);
    }
    Measurement measurement;
    rusage usage{};
    int status = 0;
    const bool told = read(channel[0], &measurement, sizeof measurement) > 0;
    wait4(child, &status, 0, &usage);
    close(channel[0]);
    close(channel[1]);
    if (!told || status != 0)
        stop("a child process failed");
    measurement.peakMegabytes = static_cast<double>(usage.ru_maxrss) * 1024 / bytesPerMegabyte;
    return measurement;
}
