#include "AccessSamples.h"

#include "support/AccessWriter.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace AdoTest {

namespace {

// A table with every type that mdb-export prints unchanged, and one whose definition is longer than a page.
QByteArray writeSample()
{
    using enum ADODB::AccessType;
    KovaTest::AccessWriter writer;
    writer.addTable(
        u"所有类型"_s,
        {{u"编号"_s, LongInteger, 0, 0, 0, true},
         {u"是否"_s, YesNo},
         {u"字节"_s, Byte},
         {u"短"_s, Integer},
         {u"货币"_s, Currency},
         {u"单精度"_s, Single},
         {u"双精度"_s, Double},
         {u"日期"_s, DateTime},
         {u"文本"_s, Text, 50},
         {u"备注"_s, Memo},
         {u"图片"_s, OleObject},
         {u"标识"_s, Guid}},
        {{1, true, 255, -32768, u"922337203685.4775"_s, 0.25, -1.5e300, u"2024-02-29 23:59:58"_s,
          u"O'Neil 茶"_s, u"长"_s.repeated(9000), QByteArray("\0\1\xff", 3).repeated(5000),
          QByteArray::fromHex("00112233445566778899aabbccddeeff")},
         {2, false, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}},
         {3, {}, 0, 0, u"-0.0001"_s, 0, 0, u"1899-12-30 00:00:00"_s, u""_s, u""_s, QByteArray(""), {}}});
    std::vector<KovaTest::AccessField> fields;
    QVariantList values;
    for (int i = 0; i < 255; ++i) {
        fields.push_back({u"a rather long name %1"_s.arg(i), i % 2 == 0 ? LongInteger : Text, 20});
        values += i % 3 == 0 ? QVariant() : QVariant(i);
    }
    writer.addTable(u"Wide"_s, fields, {values, values});
    return writer.file();
}

} // namespace

std::shared_ptr<ADODB::Connection> openAccess(const QString &path)
{
    auto connection = std::make_shared<ADODB::Connection>();
    connection->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path);
    return connection;
}

std::shared_ptr<ADODB::Recordset> query(const std::shared_ptr<ADODB::Connection> &connection,
                                        const QString &sql)
{
    auto recordset = std::make_shared<ADODB::Recordset>();
    recordset->Open(sql, connection, ADODB::adOpenKeyset, ADODB::adLockOptimistic, ADODB::adCmdText);
    return recordset;
}

QString samplePath(const QString &name, const QTemporaryDir &folder)
{
    return name == QLatin1StringView(writtenSample) ? writeFile(folder, writeSample(), name)
                                                    : KovaTest::sampleFile(name);
}

QString writeFile(const QTemporaryDir &folder, const QByteArray &bytes, const QString &name)
{
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return file.fileName();
}

QString cells(const std::shared_ptr<ADODB::Connection> &connection, const QString &sql)
{
    const auto recordset = query(connection, sql);
    QStringList records;
    for (qint64 record = 1; record <= recordset->RecordCount(); ++record) {
        QStringList texts;
        for (int column = 0; column < recordset->Fields().Count(); ++column)
            texts += recordset->CellText(record, column);
        records += texts.join(u'|');
    }
    return records.join(u'\n');
}

} // namespace AdoTest
