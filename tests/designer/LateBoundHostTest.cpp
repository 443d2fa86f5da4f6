// Runs the example of a host that uses the grid only by name.
#include "support/TestDatabase.h"

#include <QtCore/QProcess>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct LateBoundHost : testing::Test
{
    void run(const QString &pluginPath)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"QT_PLUGIN_PATH"_s, pluginPath);
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(KOVA_LATE_BOUND),
                      {u"--print"_s, database.path(), u"select * from Goods"_s, u"Price > 10"_s});
        if (!process.waitForFinished(60'000))
            ADD_FAILURE() << "the host did not end";
        exitCode = process.exitCode();
        output = QString::fromUtf8(process.readAllStandardOutput());
        errors = QString::fromUtf8(process.readAllStandardError());
    }

    QTemporaryDir home;
    TestDatabase database{u"CREATE TABLE Goods (ID INTEGER PRIMARY KEY, Price INTEGER);"
                          "INSERT INTO Goods VALUES (1,5),(2,15),(3,25)"_s};
    int exitCode = -1;
    QString output;
    QString errors;
};

} // namespace

TEST_F(LateBoundHost, LoadsAndFiltersByTheConditionThatItsEventGave)
{
    run(QStringLiteral(KOVA_PLUGIN_DIR));
    EXPECT_EQ(exitCode, 0) << qPrintable(errors);
    EXPECT_EQ(output.toStdString(), "3 records; filter: \n"
                                    "QurryFilter 1 select * from Goods\n"
                                    "2 records; filter: select * from Goods WHERE Price > 10\n");
}

TEST_F(LateBoundHost, SaysSoWhenThePluginIsNotFound)
{
    run(home.path());
    EXPECT_EQ(exitCode, 1);
    EXPECT_TRUE(errors.contains(u"QT_PLUGIN_PATH"_s)) << qPrintable(errors);
    EXPECT_TRUE(output.isEmpty());
}
