// The cost of the grid at sizes where it could matter: a full page, and a result with a thousand fields.
#include "ado/Connection.h"
#include "ado/Recordset.h"
#include "grid/FlexGrid.h"
#include "grid/cells/RecordWindow.h"
#include "grid/cells/TextCells.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr int pageRows = 999999;

// The best of several runs of `work`, in milliseconds. `prepare` runs before each and isn't measured.
double measure(const std::function<void()> &prepare, const std::function<void()> &work)
{
    double best = 1e9;
    for (int run = 0; run < 5; ++run) {
        prepare();
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

void report(const char *what, double milliseconds)
{
    std::printf("  %-58s %9.2f ms\n", what, milliseconds);
}

// The resident memory of this process in kilobytes; 0 if the system doesn't report it.
long residentKilobytes()
{
    QFile status(u"/proc/self/statm"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    return status.readAll().split(' ').value(1).toLong() * 4;
}

std::shared_ptr<ADODB::Recordset> numbers(int count)
{
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(u"Provider=SQLite;Data Source=:memory:"_s);
    auto recordset = std::make_shared<ADODB::Recordset>();
    recordset->Open(u"with recursive N(n) as (select 1 union all select n + 1 from N where n < %1) "
                    "select n as A, 'text of ' || n as B, n * 2 as C from N"_s.arg(count),
                    connection);
    return recordset;
}

void paint(VSFlexGrid &grid)
{
    QApplication::processEvents();
    grid.repaint();
}

std::unique_ptr<VSFlexGrid> shownGrid()
{
    auto grid = std::make_unique<VSFlexGrid>();
    grid->resize(1200, 800);
    grid->show();
    paint(*grid);
    return grid;
}

void fillPage(VSFlexGrid &grid, const std::shared_ptr<ADODB::Recordset> &recordset)
{
    grid.PutRedraw(false);
    grid.Show(std::make_unique<RecordWindow>(recordset, 1, pageRows));
    grid.PutRow(1);
    grid.PutRedraw(true);
}

void measurePage(const std::shared_ptr<ADODB::Recordset> &recordset)
{
    std::printf("A page of 999,999 rows\n");
    std::unique_ptr<VSFlexGrid> grid;
    const auto fresh = [&] { grid = shownGrid(); };
    const auto fill = [&] { fillPage(*grid, recordset); };
    const auto nothing = [] {};

    fresh();
    const long before = residentKilobytes();
    fill();
    paint(*grid);
    std::printf("  %-58s %9ld kB\n", "Memory", residentKilobytes() - before);
    report("Filling an empty grid", measure(fresh, fill));
    report("Filling an empty grid and painting it", measure(fresh, [&] {
               fill();
               paint(*grid);
           }));
    report("Filling it again and painting it", measure(nothing, [&] {
               fill();
               paint(*grid);
           }));
    report("Going to the last row and painting it", measure([&] { grid->PutTopRow(1); },
                                                            [&] {
                                                                grid->PutRow(pageRows);
                                                                grid->PutTopRow(pageRows);
                                                                paint(*grid);
                                                            }));
    grid->selectAll();
    report("Painting all of it with every cell selected", measure(nothing, [&] {
               for (QWidget *part : {grid->viewport(), grid->horizontalHeader()->viewport(),
                                     grid->verticalHeader()->viewport()})
                   part->update();
               QApplication::processEvents();
           }));
}

void measureColumns(int count)
{
    std::printf("%d columns\n", count);
    std::unique_ptr<VSFlexGrid> grid;
    const auto fresh = [&] { grid = shownGrid(); };
    const auto fill = [&] { grid->Show(std::make_unique<TextCells>(100, count + 1)); };
    const auto filled = [&] {
        fresh();
        fill();
        paint(*grid);
    };
    // Every third column is hidden; the others have different widths.
    const auto layOut = [&] {
        for (int col = 1; col <= count; ++col)
            grid->PutColWidth(col, col % 3 == 0 ? 0 : 15 * (30 + col % 50));
    };
    report("Filling an empty grid", measure(fresh, fill));
    report("Giving each its width", measure(filled, layOut));
    report("Filling it again with those widths", measure([] {}, fill));
    report("Painting it", measure([] {}, [&] { paint(*grid); }));
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    measurePage(numbers(pageRows));
    for (const int count : {250, 500, 1000, 2000})
        measureColumns(count);
}
