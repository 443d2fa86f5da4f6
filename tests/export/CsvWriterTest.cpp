#include "ExportRecords.h"

#include <gtest/gtest.h>

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <cmath>
#include <random>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

using Rows = QList<QStringList>;

// A reader of its own, after RFC 4180.
Rows rowsOf(const QString &text)
{
    Rows rows;
    QStringList row;
    QString value;
    bool isQuoted = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isQuoted && c == u'"' && i + 1 < text.size() && text.at(i + 1) == u'"') {
            value += c;
            ++i;
        } else if (c == u'"') {
            isQuoted = !isQuoted;
        } else if (!isQuoted && c == u',') {
            row.append(std::exchange(value, {}));
        } else if (!isQuoted && c == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n') {
            row.append(std::exchange(value, {}));
            rows.append(std::exchange(row, {}));
            ++i;
        } else {
            value += c;
        }
    }
    EXPECT_FALSE(isQuoted);
    EXPECT_TRUE(row.isEmpty() && value.isEmpty()) << "the last line ends as well";
    return rows;
}

// A value as SQLite stores it: pieces that need quotes or look like something else, and any number.
QString randomValue(std::mt19937 &random)
{
    static const QStringList pieces{
        u","_s,    u"\""_s,         u"\r\n"_s,     u"\n"_s,         u"中文"_s, u"😀"_s,  u"a"_s,
        u"="_s,    u"2024-02-29"_s, u"1"_s,        u"é"_s,          u" "_s,    u"\t"_s, u"12345678"_s,
        u"-1.5"_s, u"True"_s,       u"10:11:12"_s, u"0001-01-01"_s, u"x\"y"_s, u"\r"_s, u"'"_s};
    const auto atMost = [&](int most) { return std::uniform_int_distribution(0, most)(random); };
    switch (atMost(5)) {
    case 0:
        return u"NULL"_s;
    case 1:
        return QString::number(static_cast<qint64>((quint64{random()} << 32 | random()) >> atMost(63)));
    case 2:
        return QString::number((atMost(2000000) - 1000000) / std::pow(10, atMost(6)), 'g', 17);
    case 3:
        return u"x'"_s + QString::fromLatin1(QByteArray(atMost(20), static_cast<char>(atMost(255))).toHex()) +
               u'\'';
    default:
        break;
    }
    QByteArray text;
    for (int count = atMost(6); count > 0; --count)
        text += pieces.at(atMost(static_cast<int>(pieces.size()) - 1)).toUtf8();
    if (atMost(20) == 0)
        text += '\xff'; // no UTF-8
    return u"CAST(x'%1' AS TEXT)"_s.arg(QString::fromLatin1(text.toHex()));
}

QString quoted(const QString &text)
{
    static const QRegularExpression special(u"[,\"\r\n]"_s);
    return text.contains(special) ? u'"' + QString(text).replace(u'"', u"\"\""_s) + u'"' : text;
}

} // namespace

TEST(CsvWriter, WritesWhatAnotherReaderReads)
{
    ExportRecords records(
        u"CREATE TABLE T (\"名,称\" TEXT, N INTEGER, R REAL, D DATE, B BOOLEAN, P BLOB);"
        "INSERT INTO T VALUES ('a,b', 1, 2.5, '2024-02-29', 1, x'00ff'),"
        "('say \"x\"', -7, 0.1, NULL, 0, NULL), ('l1' || char(13, 10) || 'l2', NULL, 1e300, "
        "'0001-01-01', NULL, x''), ('', 9007199254740993, -0.0, '2024-02-29', 1, NULL)"_s);
    records.open(u"SELECT * FROM T"_s);
    const QByteArray bytes = records.write(u"t.csv"_s);
    ASSERT_TRUE(bytes.startsWith("\xef\xbb\xbf"));
    EXPECT_EQ(rowsOf(QString::fromUtf8(bytes.sliced(3))),
              (Rows{{u"名,称"_s, u"N"_s, u"R"_s, u"D"_s, u"B"_s, u"P"_s},
                    {u"a,b"_s, u"1"_s, u"2.5"_s, u"2024-02-29"_s, u"True"_s, u"<2 字节>"_s},
                    {u"say \"x\""_s, u"-7"_s, u"0.1"_s, {}, u"False"_s, {}},
                    {u"l1\r\nl2"_s, {}, u"1E+300"_s, u"0001-01-01"_s, {}, u"<0 字节>"_s},
                    {{}, u"9007199254740993"_s, u"0"_s, u"2024-02-29"_s, u"True"_s, {}}}));
}

TEST(CsvWriter, GuardsFormulasUnlessThisIsTurnedOff)
{
    ExportRecords records;
    records.open(u"SELECT '=1+1' AS \"=H\", '-5' AS N, '+1-2' AS P, -5 AS M, '@a,\"b\"' AS Q"_s);
    ExportOptions options;
    options.encoding = TextEncoding::Utf8;
    EXPECT_EQ(records.write(u"t.csv"_s, options),
              "\"'=H\",N,P,M,Q\r\n\"'=1+1\",-5,\"'+1-2\",-5,\"'@a,\"\"b\"\"\"\r\n");
    options.guardsFormulas = false;
    options.hasHeadings = false;
    EXPECT_EQ(records.write(u"t.csv"_s, options), "=1+1,-5,+1-2,-5,\"@a,\"\"b\"\"\"\r\n");
}

TEST(CsvWriter, WritesGb18030AsOtherProgramsReadIt)
{
    if (!Encoder::isAvailable(TextEncoding::Gb18030))
        GTEST_SKIP() << "Qt has been built without it";
    ExportRecords records;
    records.open(u"SELECT '中文é😀' AS 列, '龥' AS B"_s);
    ExportOptions options;
    options.encoding = TextEncoding::Gb18030;
    const QByteArray bytes = records.write(u"t.csv"_s, options);
    EXPECT_TRUE(bytes.startsWith("\xc1\xd0,B\r\n")) << "no mark";
    QProcess iconv;
    iconv.start(u"iconv"_s, {u"-f"_s, u"GB18030"_s, u"-t"_s, u"UTF-8"_s});
    if (!iconv.waitForStarted())
        GTEST_SKIP() << "no iconv to read it with";
    iconv.write(bytes);
    iconv.closeWriteChannel();
    ASSERT_TRUE(iconv.waitForFinished());
    EXPECT_EQ(iconv.readAllStandardOutput(), "列,B\r\n中文é😀,龥\r\n");
}

// Each value is the text that the grid shows, quoted if necessary.
TEST(CsvWriter, WritesTheShownTextsOfAnyValues)
{
    constexpr int rows = 12000; // enough for two threads
    std::mt19937 random(20261122);
    QStringList lines;
    for (int row = 0; row < rows; ++row) {
        QStringList values;
        for (int column = 0; column < 8; ++column)
            values.append(randomValue(random));
        lines.append(u'(' + values.join(u',') + u')');
    }
    ExportRecords records(
        u"CREATE TABLE T (A TEXT, B INTEGER, C REAL, D DATE, E TIMESTAMP, F BOOLEAN, G NUMERIC(12,2),"
        " H TIME); INSERT INTO T VALUES "_s +
        lines.join(u','));
    records.open(u"SELECT * FROM T"_s);
    QString expected;
    for (qint64 record = 1; record <= rows; ++record) {
        QStringList texts;
        for (int column = 0; column < 8; ++column)
            texts.append(quoted(records.recordset->CellText(record, column)));
        expected += texts.join(u',') + u"\r\n"_s;
    }
    const ExportOptions options{
        .encoding = TextEncoding::Utf8, .hasHeadings = false, .guardsFormulas = false};
    EXPECT_TRUE(records.write(u"t.csv"_s, options) == expected.toUtf8());
}
