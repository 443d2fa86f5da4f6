// What a frame of the grid costs, beside a plain QTableView over a QSqlQueryModel that shows the same
// statement at the same size in the same run: everything painted again, scrolled by one row, scrolled by a
// page. Each scale runs in a process of its own. Times are the processor's, so that other programs disturb
// them little.
// `--picture FOLDER` saves what was measured as pictures; `--grid` leaves the peer out, for a profile.
#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "grid/FlexGrid.h"
#include "grid/cells/RecordWindow.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlQueryModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr int rowCount = 5000;
constexpr int frames = 41;

struct Shape
{
    int columns;
    int columnTwips;
    QSize size;
};

const std::vector<Shape> shapes{
    {12, 2100, {1850, 983}}, {29, 930, {1850, 983}}, {200, FlexGrid::defaultColWidth, {1920, 1080}}};

[[noreturn]] void stop(const QString &why)
{
    std::fprintf(stderr, "bench_paint: %s\n", qUtf8Printable(why));
    std::exit(1);
}

// Numbers, Latin and Chinese texts, timestamps and codes in turn; all rows are different.
QString table(int columns)
{
    const QStringList values{
        u"i * 7919 % 1000003"_s,
        u"'Product number ' || (i * 31 % 1200)"_s,
        u"substr('北京市上海市广州市深圳市成都市杭州市', 1 + (i + %1) % 6 * 3, 3) || '第' || i || '号仓库'"_s,
        u"round(i % 100000 / 7.0, 2)"_s,
        u"datetime('2015-01-01', '+' || (i * 37 % 5000000) || ' minutes')"_s,
        u"printf('C-%010d', i)"_s};
    QStringList names;
    QStringList fields;
    for (int column = 0; column < columns; ++column) {
        names.append(u"字段F%1"_s.arg(column + 1));
        QString value = values[column % values.size()];
        fields.append(value.contains(u"%1"_s) ? value.arg(column) : value);
    }
    return u"CREATE TABLE T%1(%2);"
           "WITH RECURSIVE N(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM N WHERE i < %3) "
           "INSERT INTO T%1 SELECT %4 FROM N"_s.arg(columns)
               .arg(names.join(u", "_s))
               .arg(rowCount)
               .arg(fields.join(u", "_s));
}

void makeTables(QSqlDatabase &database)
{
    for (const Shape &shape : shapes) {
        for (const QString &statement : table(shape.columns).split(u';')) {
            if (QSqlQuery query(database); !query.exec(statement))
                stop(query.lastError().text());
        }
    }
}

void paintWhatIsDue()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

struct Frame
{
    double median = 0; // milliseconds
    double worst = 0;
};

Frame measure(const std::function<void()> &frame)
{
    std::vector<double> all;
    for (int i = 0; i < frames; ++i) {
        const std::clock_t start = std::clock();
        frame();
        all.push_back(static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC);
    }
    std::sort(all.begin(), all.end());
    return {all[all.size() / 2], all.back()};
}

int cellsInView(const QTableView &view)
{
    const auto inView = [](int last, int count) { return (last < 0 ? count - 1 : last) + 1; };
    const int rows =
        inView(view.rowAt(view.viewport()->height() - 1), view.model()->rowCount()) - view.rowAt(0);
    const int columns =
        inView(view.columnAt(view.viewport()->width() - 1), view.model()->columnCount()) - view.columnAt(0);
    return rows * columns;
}

struct Costs
{
    int cells = 0;
    Frame whole;
    Frame row;
    Frame page;
    Frame lastColumns;
    Frame selected;
};

// Never scrolls back to rows that were shown before, so that caches from earlier frames don't help.
Costs measure(QTableView &view)
{
    paintWhatIsDue();
    QScrollBar &bar = *view.verticalScrollBar();
    const int page = view.rowAt(view.viewport()->height() - 1) - view.rowAt(0);
    Costs costs;
    costs.cells = cellsInView(view);
    const auto whole = [&] {
        for (QWidget *part :
             {view.viewport(), view.horizontalHeader()->viewport(), view.verticalHeader()->viewport()})
            part->update();
        paintWhatIsDue();
    };
    costs.whole = measure(whole);
    costs.row = measure([&] {
        bar.setValue(bar.value() + 1);
        paintWhatIsDue();
    });
    costs.page = measure([&] {
        bar.setValue(bar.value() + page);
        paintWhatIsDue();
    });
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    paintWhatIsDue();
    costs.lastColumns = measure(whole);
    view.selectAll();
    paintWhatIsDue();
    costs.selected = measure(whole);
    view.setCurrentIndex(view.model()->index(1, 0));
    bar.setValue(0);
    paintWhatIsDue();
    return costs;
}

// Most of a scroll by one row is moving the picture, so the cost per cell is meaningless: `cells` is 0.
void print(const char *what, const Frame &frame, int cells, const Frame *peer)
{
    std::printf("    %-16s %8.2f %8.2f", what, frame.median, frame.worst);
    if (cells > 0)
        std::printf(" %10.1f", frame.median * 1000 / cells);
    else
        std::printf(" %10s", "");
    if (peer)
        std::printf(" %8.2f", frame.median / peer->median);
    std::printf("\n");
}

void print(const char *who, const Costs &costs, const Costs *peer)
{
    std::printf("  %-18s %8s %8s %10s%s\n", who, "median", "worst", "µs/cell", peer ? "    ratio" : "");
    print("whole", costs.whole, costs.cells, peer ? &peer->whole : nullptr);
    print("by one row", costs.row, 0, peer ? &peer->row : nullptr);
    print("by a page", costs.page, costs.cells, peer ? &peer->page : nullptr);
    print("last columns", costs.lastColumns, costs.cells, peer ? &peer->lastColumns : nullptr);
    print("all selected", costs.selected, costs.cells, peer ? &peer->selected : nullptr);
}

std::shared_ptr<ADODB::Recordset> openRecordset(const QString &path, const QString &statement)
{
    const auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(u"Provider=SQLite;Data Source="_s + path);
    auto recordset = std::make_shared<ADODB::Recordset>();
    recordset->Open(statement, connection);
    return recordset;
}

struct Options
{
    QString pictures; // folder
    bool withPeer = true;
};

Costs measurePeer(const Shape &shape, QSqlDatabase &database, const QTableView &grid)
{
    QSqlQueryModel model;
    model.setQuery(u"SELECT * FROM T%1"_s.arg(shape.columns), database);
    while (model.canFetchMore())
        model.fetchMore();
    if (model.rowCount() != rowCount)
        stop(u"the query model did not read the table"_s);
    QTableView peer;
    peer.resize(shape.size);
    peer.setModel(&model);
    peer.verticalHeader()->setDefaultSectionSize(grid.rowHeight(0));
    for (int column = 0; column < shape.columns; ++column)
        peer.setColumnWidth(column, grid.columnWidth(column));
    peer.show();
    return measure(peer);
}

// The C library sorts the memory that the peer has freed when somebody next wants a large block, which would
// be the grid's first frame.
void sortFreedMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

void measureShape(const Shape &shape, QSqlDatabase &database, const Options &options)
{
    const QString statement = u"SELECT * FROM T%1"_s.arg(shape.columns);
    VSFlexGrid grid;
    grid.resize(shape.size);
    grid.Show(std::make_unique<RecordWindow>(openRecordset(database.databaseName(), statement), 1, rowCount));
    for (int column = 1; column <= shape.columns; ++column)
        grid.PutColWidth(column, shape.columnTwips);
    grid.PutRow(2);
    grid.show();

    const Costs peerCosts = options.withPeer ? measurePeer(shape, database, grid) : Costs();
    sortFreedMemory();
    const Costs gridCosts = measure(grid);
    std::printf("\n%d columns of %d pixels at %d x %d, scale %.0f %%: %d cells in view\n", shape.columns,
                grid.columnWidth(0), shape.size.width(), shape.size.height(), grid.devicePixelRatioF() * 100,
                gridCosts.cells);
    if (options.withPeer)
        print("QTableView, ms", peerCosts, nullptr);
    print("grid, ms", gridCosts, options.withPeer ? &peerCosts : nullptr);
    std::fflush(stdout);
    if (!options.pictures.isEmpty()) {
        const QString name = u"%1/grid-%2-%3.png"_s.arg(options.pictures)
                                 .arg(shape.columns)
                                 .arg(grid.devicePixelRatioF() * 100);
        grid.grab().save(name);
    }
}

int measureAll(const QString &path, const Options &options)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s);
    database.setDatabaseName(path);
    if (!database.open())
        stop(database.lastError().text());
    if (database.tables().isEmpty())
        makeTables(database);
    for (const Shape &shape : shapes)
        measureShape(shape, database, options);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Options options;
    for (int i = 1; i < argc; ++i) {
        const QByteArrayView argument(argv[i]);
        if (argument == "--grid")
            options.withPeer = false;
        else if (argument == "--picture" && i + 1 < argc)
            options.pictures = QString::fromLocal8Bit(argv[++i]);
        else
            stop(u"bench_paint [--grid] [--picture FOLDER]"_s);
    }
    if (const QString path = qEnvironmentVariable("BENCH_PAINT_TABLES"); !path.isEmpty()) {
        const QApplication app(argc, argv);
        try {
            return measureAll(path, options);
        } catch (const ADODB::Error &error) {
            stop(QString::fromUtf8(error.what()));
        }
    }
    const QCoreApplication app(argc, argv);
    const QTemporaryDir folder;
    for (const QString &scale : {u"1"_s, u"2"_s}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"BENCH_PAINT_TABLES"_s, folder.filePath(u"paint.db"_s));
        environment.insert(u"QT_SCALE_FACTOR"_s, scale);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            return 1;
    }
    return 0;
}
