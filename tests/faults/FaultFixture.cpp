#include "FaultFixture.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include <cstddef>
#include <cstdio>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // GCC 12 has it without a header
#endif

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

const QString OpenErrorPrefix = u"错误描述为："_s;
const QString LoadFailed = u"数据库打开失败。"_s;

// Everything that a window tells about itself.
QStringList visibleTexts(const QWidget &window)
{
    QStringList texts;
    QList<const QWidget *> widgets{&window};
    widgets += window.findChildren<const QWidget *>();
    for (const QWidget *widget : widgets) {
        texts << widget->windowTitle() << widget->toolTip() << widget->statusTip() << widget->accessibleName()
              << widget->accessibleDescription() << widget->property("text").toString();
    }
    return texts;
}

} // namespace

void FaultFixture::SetUp()
{
    if (connection().isEmpty())
        GTEST_SKIP() << engine.variable << " is not set";
    startServer(); // PgBouncer was once found ended after a test that had frozen it
    OdbcSession(connection())
        .run({u"DROP TABLE IF EXISTS faults"_s,
              u"CREATE TABLE faults AS SELECT g AS id, concat('name ', g) AS name FROM "_s +
                  engine.numbersTo(1000)});
    hands.emplace(connection(), KOVAVSFDataGrid::dbSQLServer);
    ASSERT_TRUE(load(harmless)); // what libraries open once and for all is open now
    filesBefore = openFiles();
    hands->grid.Clear();
}

void FaultFixture::TearDown()
{
    if (IsSkipped())
        return;
    startServer();
    if (HasFailure())
        std::printf("messages: %s\n", qPrintable(hands->messages.texts().join(u'|')));
    for (const ShownMessage &message : hands->messages.shown())
        EXPECT_FALSE((message.text + message.title + message.cause).contains(markerPassword()))
            << "in a message";
    for (const QString &text : visibleTexts(hands->grid))
        EXPECT_FALSE(text.contains(markerPassword())) << "in the window";
    hands->messages.clear();
    hands->grid.PutConnectionString(connection());
    hands->grid.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    EXPECT_TRUE(load(harmless)) << "the next command works";
    EXPECT_EQ(hands->rows(), 3);
    // An operation that waits for a server frees its resources when that responds.
    EXPECT_TRUE(becomesAsFew(filesBefore)) << "left open: " << qPrintable(openFiles().join(u' '))
                                           << " instead of " << qPrintable(filesBefore.join(u' '));
}

bool FaultFixture::load(const QString &statement)
{
    return hands->load(statement, {});
}

void FaultFixture::run(const QString &statement) const
{
    OdbcSession(connection()).run(statement);
}

QString FaultFixture::ask(const QString &statement) const
{
    return OdbcSession(connection()).ask(statement);
}

void FaultFixture::endOthers() const
{
    OdbcSession session(connection());
    engine.endOthers(session);
}

QString FaultFixture::openError()
{
    const QStringList texts = hands->messages.texts();
    hands->messages.clear();
    EXPECT_EQ(texts.size(), 1) << qUtf8Printable(texts.join(u'|'));
    const QString text = texts.value(0);
    EXPECT_TRUE(text.startsWith(OpenErrorPrefix)) << qUtf8Printable(text);
    EXPECT_FALSE(text.contains(markerPassword()));
    return text.mid(OpenErrorPrefix.size());
}

QString FaultFixture::loadError()
{
    QStringList texts = hands->messages.texts();
    hands->messages.clear();
    EXPECT_EQ(texts.size(), 2) << qUtf8Printable(texts.join(u'|'));
    EXPECT_EQ(texts.value(1), LoadFailed);
    const QString text = texts.value(0);
    EXPECT_TRUE(text.startsWith(OpenErrorPrefix)) << qUtf8Printable(text);
    EXPECT_FALSE(text.contains(markerPassword()));
    return text.mid(OpenErrorPrefix.size());
}

void FaultFixture::expectAsLoaded() const
{
    EXPECT_EQ(hands->rows(), 1000);
    EXPECT_EQ(hands->columns(), QStringList({u"id"_s, u"name"_s}));
    EXPECT_EQ(hands->texts(u"name"_s).last(), u"name 1000"_s);
    EXPECT_EQ(hands->statement(), u"SELECT * FROM faults"_s);
    EXPECT_TRUE(hands->table->isEnabled());
}

QStringList openFiles()
{
    QStringList files;
    const QDir folder(u"/proc/self/fd"_s);
    for (const QFileInfo &handle :
         folder.entryInfoList(QDir::System | QDir::AllEntries | QDir::NoDotAndDotDot)) {
        // "file", "socket:[number]", "pipe:[number]"; "anon_inode:" is what Qt's threads wait with, and those
        // come and go.
        const QString file = handle.symLinkTarget();
        if (!file.isEmpty() && !file.contains(u"anon_inode:"))
            files += file;
    }
    return files;
}

bool becomesAsFew(const QStringList &before)
{
    return QTest::qWaitFor([&] { return openFiles().size() <= before.size(); });
}

qint64 memoryInUse()
{
#ifdef __SANITIZE_ADDRESS__ // which keeps for a while what has been released
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes() >> 20);
#else
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr qint64 pagesPerMiB = 256;
    return file.readAll().split(' ').value(1).toLongLong() / pagesPerMiB;
#endif
}

} // namespace KovaTest
