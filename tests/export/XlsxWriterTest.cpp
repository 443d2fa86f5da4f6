#include "ExportRecords.h"

#include "ado/Error.h"
#include "export/writers/XlsxWriter.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct XlsxWriterTest : testing::Test
{
    // The output lines of read_xlsx.py; empty if there is no reader.
    QStringList read(const QString &file, bool sheetsOnly = false)
    {
        QProcess python;
        python.start(QStringLiteral(KOVA_PYTHON),
                     QStringList{QStringLiteral(KOVA_READ_XLSX), records.path(file)} +
                         (sheetsOnly ? QStringList{u"sheets"_s} : QStringList()));
        const bool ran = python.waitForStarted() && python.waitForFinished(60000);
        const QByteArray faults = python.readAllStandardError();
        if (!ran || faults.contains("ModuleNotFoundError"))
            return {};
        EXPECT_EQ(faults, QByteArray());
        return QString::fromUtf8(python.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    }

    ExportRecords records{
        u"CREATE TABLE T (名称 TEXT, N INTEGER, R REAL, D DATE, H TIME, M TIMESTAMP, B BOOLEAN, P BLOB);"
        "INSERT INTO T VALUES ('=1+1', 5, 2.5, '2024-02-29', '10:11:12', '2024-02-29 10:11:12', 1, x'00ff'),"
        "('<a>&' || char(10) || '中', 9007199254740993, -0.5, '1899-12-31', NULL, '9999-12-31 00:00:00', 0, NULL)"_s};
};

} // namespace

TEST_F(XlsxWriterTest, IsReadWithItsTypesByAnotherProgram)
{
    records.open(u"SELECT * FROM T"_s);
    records.write(u"t.xlsx"_s);
    const QStringList lines = read(u"t.xlsx"_s);
    if (lines.isEmpty())
        GTEST_SKIP() << "no reader of workbooks is installed";
    EXPECT_EQ(lines.front().toStdString(), "数据|rows 3|frozen A2|widths [11, 13, 14, 16, 17, 19, 20, 21]");
    for (const QString &cell :
         {u"A1|s|'名称'|General"_s, u"A2|s|'=1+1'|General"_s, u"A3|s|'<a>&\\n中'|General"_s,
          u"B2|n|5|General"_s, u"B3|s|'9007199254740993'|General"_s, u"C2|n|2.5|General"_s,
          u"C3|n|-0.5|General"_s, u"D2|d|datetime.datetime(2024, 2, 29, 0, 0)|yyyy-mm-dd"_s,
          u"D3|s|'1899-12-31'|General"_s, u"E2|d|datetime.time(10, 11, 12)|hh:mm:ss"_s,
          u"F2|d|datetime.datetime(2024, 2, 29, 10, 11, 12)|yyyy-mm-dd hh:mm:ss"_s,
          u"F3|d|datetime.datetime(9999, 12, 31, 0, 0)|yyyy-mm-dd hh:mm:ss"_s, u"G2|b|True|General"_s,
          u"G3|b|False|General"_s, u"H2|s|'<2 字节>'|General"_s})
        EXPECT_TRUE(lines.contains(cell)) << qUtf8Printable(cell) << "\n"
                                          << qUtf8Printable(lines.join(u'\n'));
    EXPECT_EQ(lines.size(), 1 + 8 + 8 + 6) << "Nulls are empty cells";
}

TEST_F(XlsxWriterTest, ContinuesOnFurtherSheets)
{
    records.open(u"WITH N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 25) SELECT I FROM N"_s);
    QFile file(records.path(u"t.xlsx"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    XlsxWriter writer(file, true, 11);
    EXPECT_TRUE(writeRecords(*records.recordset, records.all(), records.columns(), writer,
                             [](qint64) { return true; }));
    file.close();
    const QStringList lines = read(u"t.xlsx"_s);
    if (lines.isEmpty())
        GTEST_SKIP() << "no reader of workbooks is installed";
    EXPECT_EQ(lines.filter(u"rows"_s),
              (QStringList{u"数据|rows 11|frozen A2|widths [11]"_s, u"数据 2|rows 11|frozen A2|widths [11]"_s,
                           u"数据 3|rows 6|frozen A2|widths [11]"_s}));
    EXPECT_EQ(lines.last(), u"A6|n|25|General"_s);
}

TEST_F(XlsxWriterTest, SaysWhatItHadToCut)
{
    records.open(u"SELECT replace(hex(zeroblob(20000)), '0', '中') AS L, hex(zeroblob(16383)) AS S"_s);
    QFile file(records.path(u"t.xlsx"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    XlsxWriter writer(file, true);
    EXPECT_TRUE(writeRecords(*records.recordset, records.all(), records.columns(), writer,
                             [](qint64) { return true; }));
    EXPECT_EQ(writer.cutTexts(), 1);
    EXPECT_EQ(lossesOf(writer), u"有 1 个内容超过 XLSX 单元格的上限（32767 个字符），只写入了前面的部分。"_s);
}

TEST_F(XlsxWriterTest, LeavesNothingOpenWhenItIsGivenUp)
{
    const QDir open(u"/proc/self/fd"_s);
    if (!open.exists())
        GTEST_SKIP() << "this system doesn't show open files";
    records.open(u"SELECT * FROM T"_s);
    const auto giveUp = [&] {
        QFile file(records.path(u"t.xlsx"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        XlsxWriter writer(file, true);
        EXPECT_THROW(
            writeRecords(*records.recordset, {1, 99}, records.columns(), writer, [](qint64) { return true; }),
            ADODB::Error);
    };
    giveUp();
    const auto before = open.entryList().size();
    for (int i = 0; i < 5; ++i)
        giveUp();
    EXPECT_EQ(open.entryList().size(), before);
}
