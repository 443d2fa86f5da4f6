// The smallest useful host: `minimal shop.db "select * from Orders"`.
#include <KOVAVSFDataGrid>

#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: minimal DATABASE STATEMENT\n", stderr);
        return 2;
    }

    KOVAVSFDataGrid grid;
    grid.PutConnectionString(QStringLiteral("Provider=SQLite;Data Source=") + arguments.at(1));
    grid.PutDBType(KOVAVSFDataGrid::dbAccess);
    grid.PutSQLShow(arguments.at(2));

    QObject::connect(&grid, &KOVAVSFDataGrid::RecordChanged, &grid,
                     [](qint32, qint32 position) { std::printf("record %d\n", position); });

    grid.resize(960, 600);
    grid.show();
    if (!grid.IsLoadData())
        return 1; // the grid has shown the user the reason
    const int result = QApplication::exec();
    grid.ClearObject();
    return result;
}
