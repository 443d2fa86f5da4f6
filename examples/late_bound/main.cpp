// A host that uses the grid by name only, like a script, or a program that is older than the grid. The form
// comes from a .ui file and the grid from its plugin; properties are set, methods called and events received
// by name.
//
// late_bound [--print] DATABASE STATEMENT CONDITION
// shows the statement; the button 筛选 filters by the condition instead of asking the user. --print presses
// that button, writes what is shown, and leaves.
#include <QtCore/QFile>
#include <QtGui/QAction>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdio>
#include <memory>

// Receives the grid's events. A slot is found by its name and its types, so they must be written exactly as
// in the event.
class Host : public QObject
{
    Q_OBJECT

public:
    Host(QWidget &grid, const QString &condition) : m_grid(grid), m_condition(condition)
    {
        // An argument by reference is shared with the grid while the slot runs, so the connection has to be
        // direct. Where there is no compiler, as in a script engine, the receiver's qt_metacall gets the
        // argument's address: there it writes to *static_cast<qint32 *>(arguments[1]).
        connect(&grid, SIGNAL(QurryFilter(qint32 &, QString)), this, SLOT(answerFilter(qint32 &, QString)),
                Qt::DirectConnection);
    }

public Q_SLOTS:
    // If Cancel stays 1, the grid asks the user.
    void answerFilter(qint32 &Cancel, const QString &strLastFilter)
    {
        std::printf("QurryFilter %d %s\n", Cancel, qUtf8Printable(strLastFilter));
        m_grid.setProperty("PassQurryFilter", m_condition);
        Cancel = 0;
    }

private:
    QWidget &m_grid;
    QString m_condition;
};

namespace {

void print(const QWidget &grid)
{
    const auto *records = grid.property("RecordSet").value<QObject *>();
    std::printf("%d records; filter: %s\n", records ? records->property("RecordCount").toInt() : 0,
                qUtf8Printable(grid.property("SQLFilter").toString().simplified()));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool isPrinting = arguments.removeAll(QStringLiteral("--print")) > 0;
    if (arguments.size() != 3) {
        std::fputs("usage: late_bound [--print] DATABASE STATEMENT CONDITION\n", stderr);
        return 2;
    }

    QFile file(QStringLiteral(":/form.ui"));
    file.open(QIODevice::ReadOnly);
    const std::unique_ptr<QWidget> form(QUiLoader().load(&file));
    QWidget *grid = form ? form->findChild<QWidget *>(QStringLiteral("grid")) : nullptr;
    if (!grid || !grid->setProperty("ConnectionString",
                                    QStringLiteral("Provider=SQLite;Data Source=") + arguments.at(0))) {
        std::fputs("Qt cannot find the grid's plugin. Is QT_PLUGIN_PATH set?\n", stderr);
        return 1;
    }
    grid->setProperty("DBType", QStringLiteral("dbAccess"));
    grid->setProperty("SQLShow", arguments.at(1));
    const Host host(*grid, arguments.at(2));

    form->show();
    bool isLoaded = false;
    QMetaObject::invokeMethod(grid, "IsLoadData", Q_RETURN_ARG(bool, isLoaded));
    if (!isLoaded)
        return 1; // the grid has shown the user the reason
    int result = 0;
    if (isPrinting) {
        print(*grid);
        grid->findChild<QAction *>(QStringLiteral("Filter"))->trigger();
        print(*grid);
    } else {
        result = QApplication::exec();
    }
    QMetaObject::invokeMethod(grid, "ClearObject");
    return result;
}

#include "main.moc"
