#include "ExportRecords.h"

#include "ado/Error.h"
#include "export/TextSink.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QIODevice>
#include <QtCore/QThreadPool>

#include <algorithm>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr char series[] =
    "WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 1000) SELECT I FROM N";

void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// A disk with room for some bytes. A write that does not fit is partial, without an error.
class SmallDisk : public QIODevice
{
public:
    explicit SmallDisk(qint64 room) : m_room(room) { open(WriteOnly | Unbuffered); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        if (m_room == 0) {
            setErrorString(u"full"_s);
            return -1;
        }
        const qint64 taken = std::min(size, m_room);
        m_room -= taken;
        return taken;
    }

private:
    qint64 m_room;
};

} // namespace

TEST(ExportFile, SaysWhyADiskTakesNoMore)
{
    SmallDisk disk(10);
    TextSink sink(disk, TextEncoding::Utf8);
    sink.text() += "a longer text";
    try {
        sink.flush();
        ADD_FAILURE() << "it has no room";
    } catch (const ADODB::Error &error) {
        EXPECT_EQ(error.Description(), u"full"_s);
    }
}

TEST(ExportFile, KnowsItsFormatByTheEnding)
{
    EXPECT_EQ(formatOfFile(u"/a.b/c.CSV"_s), ExportFormat::Csv);
    EXPECT_EQ(formatOfFile(u"c.jsonl"_s), ExportFormat::JsonLines);
    EXPECT_EQ(formatOfFile(u"c.htm"_s), ExportFormat::Html);
    for (const ExportFormat format : availableFormats())
        EXPECT_EQ(formatOfFile(u"c"_s + fileEnding(format)), format);
    EXPECT_EQ(formatOfFile(u"csv"_s), std::nullopt);
    EXPECT_EQ(formatOfFile(u"a.txt"_s), std::nullopt);
    EXPECT_TRUE(unknownFormatText(u"/x/a.txt"_s).contains(u"“a.txt”"_s));
}

TEST(ExportFile, LeavesAGoodFileAloneWhenItIsCancelledOrFails)
{
    ExportRecords records;
    records.open(QLatin1StringView(series));
    for (const ExportFormat format : availableFormats()) {
        ExportOptions options;
        options.format = format;
        const QString file = records.path(u"good"_s + fileEnding(format));
        put(file, "good");
        const ExportOutcome outcome = exportToFile(file, options, *records.recordset, records.all(),
                                                   records.columns(), [](qint64 rows) { return rows < 500; });
        EXPECT_FALSE(outcome.isWritten);
        EXPECT_EQ(contentOf(file), "good");
        EXPECT_THROW(exportToFile(file, options, *records.recordset, {1, 2000}, records.columns(),
                                  [](qint64) { return true; }),
                     ADODB::Error)
            << "there are no 2000 records";
        EXPECT_EQ(contentOf(file), "good");
    }
    EXPECT_EQ(QDir(records.folder.path()).entryList(QDir::Files).size(), availableFormats().size())
        << "nothing half is left lying about";
}

// Nothing keeps the disk full with a file that nobody sees any more.
TEST(ExportFile, GivesBackThePlaceOfTheFileThatItReplaces)
{
    const QDir handles(u"/proc/self/fd"_s);
    if (!handles.exists())
        GTEST_SKIP() << "this system doesn't say which files a process keeps";
    ExportRecords records;
    records.open(QLatin1StringView(series));
    const QString file = records.path(u"a.csv"_s);
    put(file, "old");
    QFile old(file);
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    exportToFile(file, {}, *records.recordset, records.all(), records.columns(), [](qint64) { return true; });
    EXPECT_EQ(old.readAll(), "old") << "it is another file";
    old.close();
    EXPECT_TRUE(contentOf(file).contains("1000"));
    QThreadPool::globalInstance()->waitForDone();
    for (const QFileInfo &open : handles.entryInfoList(QDir::System | QDir::Files))
        EXPECT_FALSE(open.symLinkTarget().startsWith(records.folder.path()))
            << qPrintable(open.symLinkTarget());
}

TEST(ExportFile, SaysWhichFileCantBeWritten)
{
    ExportRecords records;
    records.open(QLatin1StringView(series));
    const QString file = records.path(u"no such folder/a.csv"_s);
    try {
        exportToFile(file, {}, *records.recordset, records.all(), records.columns(),
                     [](qint64) { return true; });
        FAIL();
    } catch (const ADODB::Error &error) {
        EXPECT_TRUE(error.Description().contains(QDir::toNativeSeparators(file)));
    }
}

TEST(ExportFile, SaysThatMemoryRanOut)
{
    ExportRecords records;
    records.open(QLatin1StringView(series));
    const QString file = records.path(u"good.csv"_s);
    put(file, "good");
    ExportOptions options;
    options.format = ExportFormat::Csv;
    try {
        exportToFile(file, options, *records.recordset, records.all(), records.columns(),
                     [](qint64) -> bool { throw std::bad_alloc(); });
        ADD_FAILURE();
    } catch (const ADODB::Error &error) {
        EXPECT_TRUE(error.Description().contains(u"内存不足"_s)) << qPrintable(error.Description());
    }
    EXPECT_EQ(contentOf(file), "good");
}

TEST(ExportFile, WritesSomeRecordsAndColumnsInAnyOrder)
{
    ExportRecords records(u"CREATE TABLE T (A, B, C); INSERT INTO T VALUES (1,2,3), (4,5,6), (7,8,9)"_s);
    records.open(u"SELECT * FROM T"_s);
    const ExportColumns all = records.columns();
    ExportOptions options;
    options.encoding = TextEncoding::Utf8;
    exportToFile(records.path(u"t.csv"_s), options, *records.recordset, {2, 3}, {all[2], all[0]},
                 [](qint64) { return true; });
    EXPECT_EQ(contentOf(records.path(u"t.csv"_s)), "C,A\r\n6,4\r\n9,7\r\n");
}
