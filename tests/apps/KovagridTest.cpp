#include "support/TestDatabase.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtGui/QImage>
#include <gtest/gtest.h>

#include <array>

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

// Without a display, and with settings and sample data in a temporary folder.
struct Kovagrid : testing::Test
{
    Outcome run(const QStringList &arguments)
    {
        QProcess process;
        start(process, arguments);
        return outcomeOf(process);
    }
    void start(QProcess &process, const QStringList &arguments,
               const QString &program = QString::fromUtf8(KOVAGRID))
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        environment.insert(u"XDG_DATA_HOME"_s, home.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
    }
    static Outcome outcomeOf(QProcess &process)
    {
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
    EXPECT_TRUE(outcome.errors.startsWith(u"Loaded 3 records, 3 fields in "_s))
        << outcome.errors.toStdString();
}

TEST_F(Kovagrid, PrintsAsManyRowsAsAskedFor)
{
    EXPECT_EQ(runOnOrders({u"--print"_s, u"2"_s, u"--sql"_s, u"select ID from orders"_s}).output,
              u"ID\n1\n2\n"_s);
    EXPECT_EQ(runOnOrders({u"--sql"_s, u"select ID from orders"_s, u"--print=0"_s}).output, u"ID\n"_s);
}

TEST_F(Kovagrid, WithoutADisplayItPrintsWhatItLoaded)
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

TEST_F(Kovagrid, HasASampleDatabaseInEnglishWithTheSameRecords)
{
    const Outcome shown = run({u"--lang"_s, u"en"_s, u"--print"_s, u"3"_s});
    ASSERT_EQ(shown.exitCode, 0) << shown.errors.toStdString();
    EXPECT_EQ(shown.lines().size(), 4);
    EXPECT_TRUE(shown.lines().constFirst().contains(u"ship city"_s)) << "a name with a space";
    EXPECT_TRUE(shown.lines().constFirst().contains(u"price ($)"_s)) << "a name with parentheses";
    static const QRegularExpression chinese(u"[\\x{2e80}-\\x{9fff}\\x{ff00}-\\x{ffef}]"_s);
    for (const QString &table : {u"customers"_s, u"products"_s, u"orders"_s}) {
        const Outcome all =
            run({u"--lang"_s, u"en"_s, u"--sql"_s, u"select * from %1 limit 500"_s.arg(table), u"--print"_s});
        EXPECT_GT(all.lines().size(), 20) << all.errors.toStdString();
        EXPECT_FALSE(all.output.contains(chinese)) << all.output.toStdString();
    }
    // The numbers are those of the Chinese one, and the orders fit the customers and the products.
    const QString sums = u"select count(*) as n, cast(sum(%1) as int) as a, sum(%2) as q from %3"_s;
    const Outcome english =
        run({u"--lang"_s, u"en"_s, u"--sql"_s,
             sums.arg(u"amount"_s, u"quantity"_s,
                      u"orders join customers using (customer) join products using (product)"_s),
             u"--print"_s});
    const Outcome inChinese = run({u"--sql"_s, sums.arg(u"金额"_s, u"数量"_s, u"订单"_s), u"--print"_s});
    EXPECT_TRUE(english.lines().value(1).startsWith(u"120000\t"_s)) << english.output.toStdString();
    EXPECT_EQ(english.output, inChinese.output);
}

TEST_F(Kovagrid, MakesItsSampleDatabaseOnceForSeveralFirstStarts)
{
    std::array<QProcess, 4> processes;
    for (QProcess &process : processes)
        start(process, {u"--print"_s, u"3"_s});
    QStringList outputs;
    for (QProcess &process : processes) {
        const Outcome outcome = outcomeOf(process);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();
        outputs.append(outcome.output);
    }
    EXPECT_EQ(outputs.constFirst().count(u'\n'), 4) << outputs.constFirst().toStdString();
    EXPECT_EQ(outputs.removeDuplicates(), 3);
    EXPECT_EQ(QDir(home.filePath(u"kovagrid"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{u"sample.db"_s});
}

TEST_F(Kovagrid, ReplacesASampleDatabaseOfAnOlderKind)
{
    ASSERT_TRUE(QDir(home.path()).mkdir(u"kovagrid"_s));
    ASSERT_TRUE(QFile::copy(database.path(), home.filePath(u"kovagrid/sample.db"_s)));
    const Outcome outcome = run({u"--print"_s, u"3"_s});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.lines().size(), 4);
}

TEST_F(Kovagrid, SaysWhyThereIsNoSampleDatabase)
{
    const QString folder = home.filePath(u"kovagrid"_s);
    QFile file(folder);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(run({}).errors, u"无法建立文件夹：%1\n"_s.arg(folder));
    ASSERT_TRUE(file.remove());
    ASSERT_TRUE(QDir(home.path()).mkpath(u"kovagrid/sample.db"_s));
    const Outcome outcome = run({});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.errors.startsWith(u"无法建立示例数据库：%1/sample.db（"_s.arg(folder)))
        << outcome.errors.toStdString();
}

TEST_F(Kovagrid, SavesAPictureOfItsWindow)
{
    const QString file = home.filePath(u"window.png"_s);
    const Outcome saved = runOnOrders({u"--sql"_s, u"select * from orders"_s, u"--screenshot"_s, file});
    EXPECT_EQ(saved.exitCode, 0);
    EXPECT_TRUE(saved.output.startsWith(u"Loaded 3 records, "_s)) << saved.output.toStdString();
    const QImage picture(file);
    EXPECT_EQ(picture.size(), QSize(1280, 800));
    const Outcome failed =
        runOnOrders({u"--sql"_s, u"select * from orders"_s, u"--screenshot"_s, u"/nowhere/x.png"_s});
    EXPECT_EQ(failed.exitCode, 1);
    EXPECT_EQ(failed.errors, u"无法保存窗口截图：/nowhere/x.png\n"_s);
}

TEST_F(Kovagrid, PressesButtonsOneAfterTheOther)
{
    const QStringList toPrint{u"--sql"_s, u"select * from orders"_s, u"--part"_s, u"select ID from orders"_s,
                              u"--print=1"_s};
    EXPECT_EQ(runOnOrders(toPrint + QStringList{u"--do"_s, u"All,Part"_s}).output, u"ID\n1\n"_s);
    const Outcome outcome = runOnOrders(toPrint + QStringList{u"--do"_s, u" Part, All ,"_s});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.output, u"ID\t名称\tNote\n1\t甲\ta b c\n"_s) << "blanks behind commas don't count";
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
    EXPECT_TRUE(outcome.output.startsWith(u"用法：kovagrid"_s));
}

TEST_F(Kovagrid, HelpsInEnglishOnRequest)
{
    for (const QStringList &language : {QStringList{u"--lang"_s, u"en"_s}, QStringList{u"--lang=en"_s}}) {
        const Outcome outcome = run(language + QStringList{u"--help"_s});
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_TRUE(outcome.output.startsWith(u"usage: kovagrid"_s)) << outcome.output.toStdString();
    }
}

TEST_F(Kovagrid, ReportsErrorsInTheChosenLanguage)
{
    const QString missing = home.filePath(u"missing.db"_s);
    const QStringList arguments{u"--connection"_s, u"Provider=SQLite;Data Source="_s + missing, u"--sql"_s,
                                u"select * from orders"_s};
    EXPECT_TRUE(run(arguments).errors.contains(u"找不到数据库文件："_s + missing));
    const Outcome outcome = run(arguments + QStringList{u"--lang"_s, u"en"_s});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.errors.contains(u"Database file not found: "_s + missing))
        << outcome.errors.toStdString();
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
                                         QStringList{u"--lang"_s, u"fr"_s}, QStringList{u"--print=x"_s},
                                         QStringList{u"--size"_s, u"big"_s},
                                         QStringList{u"--print"_s, u"-1"_s}, QStringList{u"--sql"_s}));

TEST_P(BadUsage, IsExplainedAndExitCode2)
{
    const Outcome outcome = run(GetParam());
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_TRUE(outcome.errors.contains(u"用法：kovagrid"_s));
    EXPECT_EQ(outcome.output, QString());
    const Outcome english = run(QStringList{u"--lang=en"_s} + GetParam());
    EXPECT_EQ(english.exitCode, 2);
    // Of two languages the last one applies.
    EXPECT_EQ(english.errors.contains(u"usage: kovagrid"_s), !GetParam().contains(u"--lang"_s));
}

#if defined(Q_OS_LINUX) && !defined(__SANITIZE_ADDRESS__)
// A long value needs several times its length in memory; if that is missing, the program says so and exits.
TEST_F(Kovagrid, ReportsAValueThatIsTooLongForTheMemory)
{
    bool hasFailed = false;
    bool hasLoaded = false;
    for (const char *kibibytes : {"600000", "900000", "1100000", "1200000", "unlimited"}) {
        const QStringList arguments{QString::fromUtf8(KOVAGRID),
                                    u"--connection"_s,
                                    database.connectionString(),
                                    u"--sql"_s,
                                    u"select printf('%.*c', 160000000, 'x') as a"_s,
                                    u"--table-type"_s,
                                    u"sql"_s,
                                    u"--do"_s,
                                    u"SingleRecord,AllRecord"_s};
        QProcess process;
        start(process,
              QStringList{u"-c"_s, u"ulimit -v %1; exec \"$0\" \"$@\""_s.arg(QLatin1StringView(kibibytes))} +
                  arguments,
              u"/bin/sh"_s);
        const Outcome outcome = outcomeOf(process);
        ASSERT_TRUE(outcome.exitCode == 0 || outcome.exitCode == 1) << kibibytes << ": it broke down";
        hasFailed = hasFailed || outcome.exitCode == 1;
        hasLoaded = hasLoaded || outcome.exitCode == 0;
        if (outcome.exitCode == 1) {
            EXPECT_TRUE(outcome.errors.contains(u"内存不足"_s)) << kibibytes << outcome.errors.toStdString();
        }
    }
    EXPECT_TRUE(hasFailed);
    EXPECT_TRUE(hasLoaded);
}
#endif
