// A host with its own filter dialog: `own_filter sample-en.db orders customer`. The grid applies the
// condition, shows it above the records and keeps it in its history, like one of its own dialog.
#include <KOVAVSFDataGrid>

#include <QtWidgets/QApplication>
#include <QtWidgets/QInputDialog>

#include <cstdio>

namespace {

// A condition that a field contains a text. In a
// pattern, % and _ are wildcards, so they are escaped.
QString contains(QString field, QString text)
{
    field.replace(u'"', QStringLiteral("\"\""));
    text.replace(u'!', QStringLiteral("!!"))
        .replace(u'%', QStringLiteral("!%"))
        .replace(u'_', QStringLiteral("!_"));
    text.replace(u'\'', QStringLiteral("''"));
    return QStringLiteral("\"%1\" LIKE '%%2%' ESCAPE '!'").arg(field, text);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: own_filter DATABASE TABLE FIELD\n", stderr);
        return 2;
    }
    const QString table = QString(arguments.at(2)).replace(u'"', QStringLiteral("\"\""));
    const QString field = arguments.at(3);

    KOVAVSFDataGrid grid;
    grid.PutConnectionString(QStringLiteral("Provider=SQLite;Data Source=") + arguments.at(1));
    grid.PutSQLShow(QStringLiteral("select * from \"%1\"").arg(table));

    // Emitted before the grid opens its own dialog.
    QObject::connect(&grid, &KOVAVSFDataGrid::QurryFilter, &grid, [&](qint32 &Cancel, const QString &) {
        bool isGiven = false;
        const QString text =
            QInputDialog::getText(&grid, QStringLiteral("Filter"), field + QStringLiteral(" contains:"),
                                  QLineEdit::Normal, {}, &isGiven);
        Cancel = 0;                                                           // not the grid's own dialog
        grid.PutPassQurryFilter(isGiven ? contains(field, text) : QString()); // an empty one has no effect
    });
    QObject::connect(&grid, &KOVAVSFDataGrid::RecordsetChanged, &grid, [&] {
        if (const QObject *records = grid.RecordSet())
            std::printf("%d records\n", records->property("RecordCount").toInt());
    });

    grid.resize(960, 600);
    grid.show();
    if (!grid.IsLoadData())
        return 1; // the grid has shown the user the reason
    const int result = QApplication::exec();
    grid.ClearObject();
    return result;
}
