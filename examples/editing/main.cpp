// A form for entering records: `editing sample-en.db customers`. The grid shows one record at a time, as a
// list of fields. The buttons are the host's; each runs a command of the grid, which also has it in its menu
// and on a key.
#include <KOVAVSFDataGrid>

#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>

#include <cstdio>
#include <utility>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: editing DATABASE TABLE\n", stderr);
        return 2;
    }
    const QString table = QString(arguments.at(2)).replace(u'"', QStringLiteral("\"\""));

    QMainWindow window;
    auto *grid = new KOVAVSFDataGrid(&window);
    window.setCentralWidget(grid);
    grid->PutLanguage(QStringLiteral("en"));
    grid->PutConnectionString(QStringLiteral("Provider=SQLite;Data Source=") + arguments.at(1));
    // All fields of one table with a primary key: so the grid knows where a value is stored and can write it.
    grid->PutSQLShow(QStringLiteral("select * from \"%1\"").arg(table));

    // The reference lists the numbers of the menu entries.
    QToolBar *bar = window.addToolBar(QStringLiteral("Records"));
    const std::pair<int, const char *> commands[] = {
        {24, "Previous"}, {25, "Next"}, {8, "New"}, {9, "Delete"}};
    for (const auto &[number, caption] : commands) {
        auto *command = grid->findChild<QAction *>(QStringLiteral("PopMnuDataAction%1").arg(number));
        QObject::connect(bar->addAction(QString::fromLatin1(caption)), &QAction::triggered, command,
                         &QAction::trigger);
    }
    // A record is saved when the user moves to another one or closes the window. If the database refuses it,
    // a message shows the reason, and the input is kept.
    QObject::connect(grid, &KOVAVSFDataGrid::RecordChanged, &window, [&](qint32, qint32 record) {
        window.statusBar()->showMessage(QStringLiteral("Record %1").arg(record));
    });

    window.resize(640, 480);
    window.show();
    if (!grid->IsLoadData())
        return 1; // the grid has shown the user the reason
    grid->findChild<QAction *>(QStringLiteral("SingleRecord"))->trigger();
    const int result = QApplication::exec();
    grid->ClearObject();
    return result;
}
