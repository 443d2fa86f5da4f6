// Two grids. The lower one shows the rows that belong to the current record of the upper one:
// `master_detail sample-en.db customers orders customer`, where both tables have the field customer.
#include <KOVAVSFDataGrid>

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSplitter>

#include <cstdio>

namespace {

// A quoted name or string for an SQL statement. Quote marks inside are doubled.
QString quoted(QString text, QChar mark)
{
    return mark + text.replace(mark, QString(2, mark)) + mark;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 5) {
        std::fputs("usage: master_detail DATABASE MASTER_TABLE DETAIL_TABLE FIELD\n", stderr);
        return 2;
    }
    const QString connection = QStringLiteral("Provider=SQLite;Data Source=") + arguments.at(1);
    const QString field = arguments.at(4);
    const QString detailStatement = QStringLiteral("select * from %1 where %2 = ")
                                        .arg(quoted(arguments.at(3), u'"'), quoted(field, u'"'));

    QSplitter window(Qt::Vertical);
    auto *master = new KOVAVSFDataGrid(&window);
    auto *detail = new KOVAVSFDataGrid(&window);
    master->PutConnectionString(connection);
    master->PutSQLShow(QStringLiteral("select * from ") + quoted(arguments.at(2), u'"'));
    detail->PutConnectionString(connection);

    // Holding an arrow key down passes many records. Only the rows of the last one are loaded.
    QTimer pause;
    pause.setSingleShot(true);
    pause.setInterval(100);
    QObject::connect(master, &KOVAVSFDataGrid::RecordChanged, &pause, qOverload<>(&QTimer::start));
    QObject::connect(master, &KOVAVSFDataGrid::RecordsetChanged, &pause, qOverload<>(&QTimer::start));
    QObject::connect(&pause, &QTimer::timeout, detail, [=] {
        const QString key = master->CellTextL(master->GetGridRowL(), master->GetBindFieldIndex(field));
        detail->PutSQLShow(detailStatement + quoted(key, u'\''));
        if (detail->IsLoadData())
            std::printf("%s: %d rows\n", qPrintable(key),
                        detail->RecordSet()->property("RecordCount").toInt());
    });

    window.resize(960, 700);
    window.show();
    if (!master->IsLoadData())
        return 1; // the grid has shown the user the reason
    const int result = QApplication::exec();
    pause.stop();
    detail->ClearObject();
    master->ClearObject();
    return result;
}
