#include "support/TestDatabase.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtGui/QImage>
#include <gtest/gtest.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString errors;
    QStringList lines() const { return output.split(u'\n', Qt::SkipEmptyParts); }
};

// Without a display, and with settings and sample data in a folder that goes away.
struct Kovagrid : testing::Test
{
    Outcome run(const QStringList &arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        environment.insert(u"XDG_DATA_HOME"_s, home.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        process.setProcessEnvironment(environment);
        process.start(QString::fromUtf8(KOVAGRID), arguments);
        if (!process.waitForFinished(120000))
            ADD_FAILURE() << "kovagrid did not end";
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    Outcome runOnOrders(const QStringList &arguments)
    {
        return run(QStringList{u"--connection"_s, database.connectionString()} + arguments);
    }

    QTemporaryDir home;
    TestDatabase database{
        u"CREATE TABLE orders (ID INTEGER PRIMARY KEY, 名称 TEXT, Note TEXT);"
        "INSERT INTO orders VALUES (1,'甲','a' || char(9) || 'b' || char(10) || 'c'),(2,NULL,'x'),(3,'丙',NULL)"_s};
};

QByteArray digest(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256);
}

} // namespace

TEST_F(Kovagrid, PrintsAllRowsTabSeparatedUnderTheHeadings)
{
    const Outcome outcome = runOnOrders({u"--sql"_s, u"select * from orders"_s, u"--print"_s});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.output, u"ID\t名称\tNote\n1\t甲\ta b c\n2\t\tx\n3\t丙\t\n"_s);
}

TEST_F(Kovagrid, PrintsAsManyRowsAsAskedFor)
{
    EXPECT_EQ(runOnOrders({u"--print"_s, u"2"_s, u"--sql"_s, u"select ID from orders"_s}).output,
              u"ID\n1\n2\n"_s);
    EXPECT_EQ(runOnOrders({u"--sql"_s, u"select ID from orders"_s, u"--print=0"_s}).output, u"ID\n"_s);
}

TEST_F(Kovagrid, WithoutADisplayItTellsWhatItLoaded)
{
    const Outcome outcome = runOnOrders({u"--sql"_s, u"select * from orders"_s});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();
    const QRegularExpression summary(u"^Loaded 3 records, 3 fields in \\d+\\.\\d\\d s\n$"_s);
    EXPECT_TRUE(summary.match(outcome.output).hasMatch()) << outcome.output.toStdString();
}

TEST_F(Kovagrid, MakesItsSampleDatabaseOnce)
{
    const Outcome first = run({u"--print"_s, u"3"_s});
    ASSERT_EQ(first.exitCode, 0) << first.errors.toStdString();
    EXPECT_EQ(first.lines().size(), 4);
    EXPECT_TRUE(first.lines().constFirst().contains(u"客户名称"_s));
    EXPECT_TRUE(first.lines().constFirst().contains(u"送货 城市"_s)) << "a name with a blank";
    EXPECT_TRUE(first.lines().constFirst().contains(u"单价(元)"_s)) << "a name with parentheses";
    // The orders fit the customers and the products.
    const Outcome joined =
        run({u"--sql"_s,
             u"select count(*) as n from 订单 join 客户 using (客户名称) join 产品 using (产品名称) "
             "where 订单.[单价(元)] = 产品.[单价(元)] and typeof(已付款) = 'integer'"_s,
             u"--print"_s});
    EXPECT_EQ(joined.output, u"n\n120000\n"_s) << joined.errors.toStdString();
    const QByteArray made = digest(home.filePath(u"kovagrid/sample.db"_s));
    EXPECT_EQ(run({u"--print"_s, u"3"_s}).output, first.output);
    EXPECT_EQ(digest(home.filePath(u"kovagrid/sample.db"_s)), made);
    const Outcome all = run({});
    EXPECT_TRUE(all.output.startsWith(u"Loaded 120000 records, "_s)) << all.output.toStdString();
}

TEST_F(Kovagrid, SavesAPictureOfItsWindow)
{
    const QString file = home.filePath(u"window.png"_s);
    EXPECT_EQ(runOnOrders({u"--sql"_s, u"select * from orders"_s, u"--screenshot"_s, file}).exitCode, 0);
    const QImage picture(file);
    EXPECT_GT(picture.width(), 600);
    EXPECT_EQ(
        runOnOrders({u"--sql"_s, u"select * from orders"_s, u"--screenshot"_s, u"/nowhere/x.png"_s}).exitCode,
        1);
}

struct BadStatement : Kovagrid, testing::WithParamInterface<const char *>
{
};

INSTANTIATE_TEST_SUITE_P(Statements, BadStatement,
                         testing::Values("selec", "delete from orders", "select 1; drop table orders",
                                         "select * from orders; delete from orders", "drop table orders"));

TEST_P(BadStatement, IsOneLineAndExitCode1AndTheFileIsUntouched)
{
    const QByteArray before = digest(database.path());
    const Outcome outcome = runOnOrders({u"--sql"_s, QString::fromUtf8(GetParam()), u"--print"_s});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.output, QString());
    EXPECT_EQ(outcome.errors.count(u'\n'), 1) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains(u"错误描述为："_s)) << outcome.errors.toStdString();
    EXPECT_EQ(digest(database.path()), before);
}

TEST_F(Kovagrid, AWrongPathIsOneLineAndMakesNoFile)
{
    const QString missing = home.filePath(u"missing.db"_s);
    const Outcome outcome = run({u"--connection"_s, u"Provider=SQLite;Data Source="_s + missing, u"--sql"_s,
                                 u"select * from orders"_s});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.errors.count(u'\n'), 1) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains(missing));
    EXPECT_FALSE(QFile::exists(missing));
}

TEST_F(Kovagrid, HelpsOnRequest)
{
    const Outcome outcome = run({u"--help"_s});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.output.startsWith(u"usage: kovagrid"_s));
}

TEST_F(Kovagrid, AStatementWithoutFromIsPrintedLikeAnyOther)
{
    const Outcome outcome = runOnOrders({u"--sql"_s, u"select 1 as one"_s, u"--print"_s});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, u"one\n1\n"_s);
}

struct BadUsage : Kovagrid, testing::WithParamInterface<QStringList>
{
};

INSTANTIATE_TEST_SUITE_P(Arguments, BadUsage,
                         testing::Values(QStringList{u"--nonsense"_s}, QStringList{u"stray"_s},
                                         QStringList{u"--db-type"_s, u"mysql"_s},
                                         QStringList{u"--table-type"_s, u"x"_s},
                                         QStringList{u"--do"_s, u"NoSuchButton"_s},
                                         QStringList{u"--print=x"_s}, QStringList{u"--print"_s, u"-1"_s},
                                         QStringList{u"--sql"_s}));

TEST_P(BadUsage, IsExplainedAndExitCode2)
{
    const Outcome outcome = run(GetParam());
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_TRUE(outcome.errors.contains(u"usage: kovagrid"_s));
    EXPECT_EQ(outcome.output, QString());
}
