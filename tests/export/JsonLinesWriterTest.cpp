#include "ExportRecords.h"

#include <gtest/gtest.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

TEST(JsonLinesWriter, WritesObjectsThatAnotherReaderReads)
{
    ExportRecords records(
        u"CREATE TABLE T (名称 TEXT, N INTEGER, R REAL, D DATE, B BOOLEAN, P BLOB, M NUMERIC);"
        "INSERT INTO T VALUES ('a\"\\' || char(10, 9, 1) || '中', 9007199254740993, "
        "0.30000000000000004, '2024-02-29', 1, x'00ff', 12.5), (NULL,NULL,NULL,NULL,NULL,NULL,"
        "'no number'), ('1', 0, 1e999, 'x', 0, x'', 7)"_s);
    records.open(u"SELECT * FROM T"_s);
    const QList<QByteArray> lines = records.write(u"t.jsonl"_s).trimmed().split('\n');
    ASSERT_EQ(lines.size(), 3);
    QList<QJsonObject> objects;
    for (const QByteArray &line : lines) {
        QJsonParseError error{};
        objects.append(QJsonDocument::fromJson(line, &error).object());
        EXPECT_EQ(error.error, QJsonParseError::NoError) << line.data();
    }
    EXPECT_EQ(objects[0][u"名称"].toString(), u"a\"\\\n\t\u0001中"_s);
    EXPECT_EQ(objects[0][u"N"].toInteger(), 9007199254740993);
    EXPECT_EQ(objects[0][u"R"].toDouble(), 0.30000000000000004);
    EXPECT_EQ(objects[0][u"D"].toString(), u"2024-02-29"_s);
    EXPECT_EQ(objects[0][u"B"], QJsonValue(true));
    EXPECT_EQ(objects[0][u"P"].toString(), u"AP8="_s);
    EXPECT_EQ(objects[0][u"M"].toDouble(), 12.5);
    EXPECT_TRUE(objects[1][u"N"].isNull());
    EXPECT_EQ(objects[1][u"M"].toString(), u"no number"_s);
    EXPECT_EQ(objects[2][u"名称"].toString(), u"1"_s) << "a text stays one";
    EXPECT_TRUE(objects[2][u"R"].isNull()) << "JSON has no infinity";
}

TEST(JsonLinesWriter, DistinguishesColumnsOfTheSameName)
{
    ExportRecords records;
    records.open(u"SELECT 1 AS A, 2 AS A_2, 3 AS A, 4 AS A"_s);
    const QJsonObject object = QJsonDocument::fromJson(records.write(u"t.jsonl"_s)).object();
    EXPECT_EQ(object.size(), 4);
    EXPECT_EQ(object[u"A"].toInt(), 1);
    EXPECT_EQ(object[u"A_2"].toInt(), 2);
    EXPECT_EQ(object[u"A_3"].toInt(), 3);
    EXPECT_EQ(object[u"A_4"].toInt(), 4);
}
