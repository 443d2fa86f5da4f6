// How long a user waits for the first records of a result and for the last one: loads tables of 10^3, 10^4 …
// records into a control and prints when their first rows were painted and when IsLoadData returned, with the
// time at which the engine gave its first records to a recordset alone.
//   bench_first [CONNECTION [MOST]]      MOST is the number of records of the largest table, 1,000,000 unless
//   given
//   bench_first CONNECTION STATEMENT...  the same for statements
// Without a connection, or with an empty one, a SQLite file is made; a PostgreSQL needs the right to make a
// table.

#include <KOVAVSFDataGrid>

#include "ado/Connection.h"
#include "ado/Recordset.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTableView>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rounds = 5;

[[noreturn]] void stop(const char *why)
{
    std::fprintf(stderr, "bench_first: %s\n", why);
    std::exit(1);
}

// Records when a table view first painted cells.
class FirstPainting : public QObject
{
public:
    explicit FirstPainting(const QElapsedTimer &timer) : m_timer(timer) { qApp->installEventFilter(this); }
    double milliseconds() const { return m_milliseconds; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const view = qobject_cast<QTableView *>(watched->parent());
        if (m_milliseconds > 0 || m_isPainting || event->type() != QEvent::Paint || !view ||
            view->viewport() != watched || view->model()->columnCount() < 3 || view->model()->rowCount() == 0)
            return false;
        m_isPainting = true;
        QCoreApplication::sendEvent(watched, event);
        m_isPainting = false;
        m_milliseconds = static_cast<double>(m_timer.nsecsElapsed()) / 1e6;
        return true;
    }

private:
    const QElapsedTimer &m_timer;
    double m_milliseconds = 0;
    bool m_isPainting = false;
};

struct Times
{
    double engine = 0; // milliseconds until the first record
    double painted = 0;
    double returned = 0;
};

double firstRecord(const QString &connectionString, const QString &statement)
{
    QElapsedTimer timer;
    timer.start();
    const auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(connectionString);
    ADODB::Recordset recordset;
    double first = 0;
    recordset.SetProgress([&](qint64 rows) {
        if (rows > 0 && first == 0)
            first = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        return true;
    });
    recordset.Open(statement, connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic, ADODB::adCmdText);
    return first > 0 ? first : static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

Times load(const QString &connection, const QString &statement)
{
    KOVAVSFDataGrid grid;
    grid.resize(1850, 983);
    grid.show();
    QApplication::processEvents();
    grid.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    grid.PutConnectionString(connection);
    grid.PutSQLShow(statement);
    Times times;
    QElapsedTimer timer;
    timer.start();
    const FirstPainting painting(timer);
    if (!grid.IsLoadData())
        stop("a load failed");
    times.returned = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    QApplication::processEvents();
    times.painted = painting.milliseconds();
    return times;
}

double median(std::vector<Times> all, double Times::*what)
{
    std::ranges::sort(all, {}, what);
    return all[all.size() / 2].*what;
}

QString makeFile(const QTemporaryDir &folder, qint64 records)
{
    const QString path = folder.filePath(u"first.db"_s);
    sqlite3 *db = nullptr;
    const QByteArray script =
        "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF;"
        "CREATE TABLE kova_first(id INTEGER PRIMARY KEY, customer INTEGER, city TEXT, amount REAL, placed "
        "TIMESTAMP, note TEXT);"
        "WITH RECURSIVE n(g) AS (SELECT 1 UNION ALL SELECT g + 1 FROM n WHERE g < " +
        QByteArray::number(records) +
        ") INSERT INTO kova_first SELECT g, g * 7919 % 100000, 'city ' || g % 100, g % 9973 / 100.0,"
        " datetime('2020-01-01', g * 13 || ' seconds'), 'order number ' || g FROM n;";
    if (sqlite3_open(path.toUtf8().constData(), &db) != SQLITE_OK ||
        sqlite3_exec(db, script.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        stop(sqlite3_errmsg(db));
    sqlite3_close(db);
    return u"Provider=SQLite;Data Source="_s + path;
}

void measure(const QString &connection, const QString &statement, int times)
{
    std::vector<Times> all;
    for (int round = 0; round < times; ++round) {
        Times taken = load(connection, statement);
        taken.engine = firstRecord(connection, statement);
        all.push_back(taken);
    }
    std::printf("%14.1f %14.1f %14.1f\n", median(all, &Times::engine), median(all, &Times::painted),
                median(all, &Times::returned));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const QTemporaryDir folder;
    const QString given = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (argc > 2 && std::strtoll(argv[2], nullptr, 10) == 0) {
        std::printf("%14s %14s %14s\n", "engine ms", "painted ms", "returned ms");
        for (int i = 2; i < argc; ++i) {
            std::printf("%s\n", argv[i]);
            measure(given, QString::fromLocal8Bit(argv[i]), 3);
        }
        return 0;
    }
    const qint64 most = argc > 2 ? std::strtoll(argv[2], nullptr, 10) : 1'000'000;
    const QString connection = given.isEmpty() ? makeFile(folder, most) : given;
    std::printf("%-12s %-10s %14s %14s %14s\n", "records", "", "engine ms", "painted ms", "returned ms");
    for (const bool isSorted : {false, true}) {
        for (qint64 records = 1000; records <= most; records *= 10) {
            std::printf("%-12lld %-10s ", records, isSorted ? "sorted" : "");
            measure(connection,
                    u"SELECT * FROM kova_first WHERE id <= %1%2"_s.arg(
                        QString::number(records), isSorted ? u" ORDER BY amount"_s : QString()),
                    records < 1'000'000 ? rounds : 3);
        }
    }
    return 0;
}
