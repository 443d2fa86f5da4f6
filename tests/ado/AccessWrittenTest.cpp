// Files generated for one test each, for what the samples don't contain.
#include "AccessSamples.h"
#include "Printing.h"
#include "Throwing.h"

#include "ado/automation/RecordsetObject.h"
#include "support/AccessWriter.h"

#include <QtCore/QFile>
#include <gtest/gtest.h>

using namespace AdoTest;
using namespace ADODB;
using namespace KovaTest;
using namespace Qt::Literals::StringLiterals;

namespace {

class AccessWrittenTest : public testing::Test
{
protected:
    void open(const QString &more = {})
    {
        path = writeFile(m_folder, writer.file(), u"数据.mdb"_s);
        connection = std::make_shared<Connection>();
        connection->Open(u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path + more);
    }
    QString ask(const QString &sql) const { return cells(connection, sql); }

    void addNames(const QStringList &names)
    {
        QList<QVariantList> records;
        for (const QString &name : names)
            records += QVariantList{name};
        writer.addTable(u"T"_s, {{u"名称"_s, AccessType::Text, 50}}, records);
    }
    QString sorted() const { return ask(u"SELECT 名称 FROM T ORDER BY 名称"_s).replace(u'\n', u' '); }

    AccessWriter writer;
    QString path;
    std::shared_ptr<Connection> connection;

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(AccessWrittenTest, DecimalsHaveTheirPointWhereTheColumnSays)
{
    writer.addTable(u"T"_s,
                    {{u"price"_s, AccessType::Numeric, 0, 10, 2},
                     {u"whole"_s, AccessType::Numeric, 0, 18, 0},
                     {u"long"_s, AccessType::Numeric, 0, 28, 10}},
                    {{u"-168.5"_s, u"123456789012345678"_s, u"123456789012345678.0123456789"_s},
                     {u"12"_s, u"0"_s, u"0.5"_s}});
    open();
    EXPECT_EQ(ask(u"SELECT * FROM T"_s),
              u"-168.5|123456789012345678|123456789012345678.0123456789\n12|0|0.5"_s);
    const auto records = query(connection, u"SELECT * FROM T"_s);
    EXPECT_EQ(records->Fields().Item(0).Type(), adNumeric);
    EXPECT_EQ(records->Fields().Item(0).Precision(), 10);
    EXPECT_EQ(records->Fields().Item(0).NumericScale(), 2);
    EXPECT_EQ(ask(u"SELECT price FROM T WHERE price > 11.5"_s), u"12"_s);
}

TEST_F(AccessWrittenTest, ATableOfMoreThan512PagesIsReadWhole)
{
    QList<QVariantList> records;
    constexpr int count = 12'000;
    for (int i = 0; i < count; ++i)
        records += {i, u"name %1"_s.arg(i).repeated(10)};
    writer.addTable(u"T"_s, {{u"id"_s, AccessType::LongInteger}, {u"t"_s, AccessType::Text, 255}}, records);
    open();
    EXPECT_EQ(ask(u"SELECT COUNT(*), SUM(id), MAX(Len(t)) FROM T"_s),
              u"%1|%2|100"_s.arg(count).arg(qint64{count} * (count - 1) / 2));
}

TEST_F(AccessWrittenTest, APasswordIsRequiredAndNotShown)
{
    addNames({u"x"_s});
    writer.setPassword(u"s3cret密码"_s);
    for (const QString &given : {u""_s, u";Jet OLEDB:Database Password=S3cret密码"_s}) {
        const Error error = errorOf([&] { open(given); });
        EXPECT_TRUE(error.is(dbErrAuthFailed)) << error.what();
        EXPECT_TRUE(error.Description().contains(u"密码"_s)) << error.what();
        EXPECT_TRUE(error.Description().contains(u"数据.mdb"_s)) << error.what();
        EXPECT_FALSE(error.Description().contains(u"3cret"_s)) << error.what();
    }
    open(u";Jet OLEDB:Database Password=s3cret密码"_s);
    EXPECT_EQ(sorted(), u"x"_s);
    EXPECT_FALSE(connection->ConnectionString().contains(u"3cret"_s));
}

TEST_F(AccessWrittenTest, AnEncodedMdbIsReadAndAnEncryptedAccdbIsRefused)
{
    addNames({u"中文"_s});
    writer.setKey(0x12345678);
    open();
    EXPECT_EQ(sorted(), u"中文"_s);
    writer.setVersion(2);
    const Error error = errorOf([&] { open(); });
    EXPECT_TRUE(error.is(adErrOpeningFile));
    EXPECT_TRUE(error.Description().contains(u"加密"_s)) << error.what();
}

TEST_F(AccessWrittenTest, TextsAreSortedInTheGeneralOrder)
{
    addNames({u"zebra"_s, u"Östen"_s, u"ost"_s, u"apple"_s, u"Zeb"_s, u"éclair"_s, u"Eb"_s, u"中"_s, u"10"_s,
              u"_x"_s, u"OSU"_s});
    open();
    EXPECT_EQ(sorted(), u"_x 10 apple Eb éclair ost Östen OSU Zeb zebra 中"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM T WHERE 名称 = 'ÖSTEN' OR 名称 = 'ZEB'"_s), u"2"_s);
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM T WHERE 名称 = 'Osten'"_s), u"0"_s) << "a mark counts";
    EXPECT_EQ(ask(u"SELECT MIN(名称), MAX(名称) FROM T WHERE 名称 > 'a'"_s), u"apple|中"_s);
}

TEST_F(AccessWrittenTest, ChineseIsSortedByItsPronunciation)
{
    writer.setLanguage(0x0804);
    addNames({u"张三"_s, u"上海"_s, u"Zed"_s, u"北京"_s, u"阿里"_s, u"李四"_s, u"abc"_s, u"北京2"_s,
              u"大连"_s, u"7"_s});
    open();
    EXPECT_EQ(sorted(), u"7 abc Zed 阿里 北京 北京2 大连 李四 上海 张三"_s);
}

TEST_F(AccessWrittenTest, SavedQueriesHaveAccesssOwnPatterns)
{
    using enum AccessType;
    constexpr qint32 likes = 1000;
    constexpr qint32 percent = 1001;
    addNames({u"Chai"_s, u"Chang"_s, u"chx"_s, u"C%"_s, u"x"_s});
    writer.addObject(likes, 5, u"Like"_s);
    writer.addObject(percent, 5, u"第一"_s);
    const auto part = [](qint32 query, int attribute, int flag, const QString &expression,
                         const QString &name) {
        return QVariantList{query, attribute, flag, expression, name, {}, QByteArray(1, '\0')};
    };
    writer.addTable(u"MSysQueries"_s,
                    {{u"ObjectId"_s, LongInteger},
                     {u"Attribute"_s, Byte},
                     {u"Flag"_s, Integer},
                     {u"Expression"_s, Memo},
                     {u"Name1"_s, Text, 255},
                     {u"Name2"_s, Text, 255},
                     {u"Order"_s, Binary, 255}},
                    {part(likes, 5, {}, {}, u"T"_s),
                     part(likes, 8, {}, u"T.名称 Like \"ch?*\" And 名称 Not Like \"*[!a-z]*\""_s, {}),
                     part(percent, 5, {}, {}, u"T"_s), part(percent, 3, 0x30, {}, u"40"_s),
                     part(percent, 11, {}, u"T.名称"_s, u"D"_s)});
    open();
    EXPECT_EQ(ask(u"SELECT * FROM [Like]"_s), u"Chai\nChang\nchx"_s);
    EXPECT_EQ(ask(u"SELECT * FROM [Like] WHERE 名称 LIKE 'Ch%g'"_s), u"Chang"_s) << "as through ADO";
    EXPECT_EQ(ask(u"SELECT * FROM 第一"_s), u"x\nchx"_s);
}

TEST_F(AccessWrittenTest, AFileThatIsCutOffMeanwhileEndsTheStatementOnly)
{
    QStringList names;
    for (int i = 0; i < 3000; ++i)
        names += u"name %1"_s.arg(i);
    addNames(names);
    open();
    EXPECT_EQ(ask(u"SELECT COUNT(*) FROM T"_s), u"3000"_s);
    const auto before = query(connection, u"SELECT * FROM T"_s);
    QFile file(path);
    const QByteArray whole = writer.file();
    ASSERT_TRUE(file.resize(3 * 4096));
    const auto second = std::make_shared<Connection>();
    EXPECT_THROW(second->Open(u"Data Source="_s + path), Error);
    EXPECT_EQ(before->CellText(3000, 0), u"name 2999"_s) << "what was read stays";
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(whole), whole.size());
    file.close();
    second->Open(u"Data Source="_s + path);
    EXPECT_EQ(cells(second, u"SELECT COUNT(*) FROM T"_s), u"3000"_s);
}

TEST_F(AccessWrittenTest, TablesOfTheSameNameOrOneOfSqlitesOwnDoNotHideTheOthers)
{
    addNames({u"x"_s});
    for (const QString &name : {u"T"_s, u"sqlite_x"_s, u"t\"]'"_s})
        writer.addTable(name, {{u"a"_s, AccessType::Byte}, {u"A"_s, AccessType::Byte}}, {{1, 2}});
    open();
    EXPECT_EQ(sorted(), u"x"_s);
}

TEST_F(AccessWrittenTest, AFilterByNameComparesWithDatesInAnyWay)
{
    writer.addTable(u"T"_s, {{u"due"_s, AccessType::DateTime}},
                    {{u"1999-12-31 08:00:00"_s}, {u"2000-01-01 00:00:00"_s}, {u"2000-02-01 00:00:00"_s}});
    open();
    const auto recordset = query(connection, u"SELECT * FROM T"_s);
    RecordsetObject *const records = automation(recordset);
    for (const QString &date : {u"#1/1/2000#"_s, u"#2000-01-01#"_s, u"'1/1/2000'"_s, u"'2000-01-01'"_s,
                                u"#2000-01-01 00:00:00#"_s}) {
        records->setProperty("Filter", u"due >= "_s + date);
        EXPECT_EQ(records->property("RecordCount"), QVariant(2)) << date.toStdString();
        records->setProperty("Filter", 0);
    }
}

TEST_F(AccessWrittenTest, AFilterByNameComparesWithTimesAlone)
{
    writer.addTable(u"T"_s, {{u"due"_s, AccessType::DateTime}},
                    {{u"1899-12-30 08:00:00"_s}, {u"1899-12-30 12:00:00"_s}, {u"2000-02-01 12:00:00"_s}});
    open();
    const auto recordset = query(connection, u"SELECT * FROM T"_s);
    RecordsetObject *const records = automation(recordset);
    records->setProperty("Filter", u"due = #12:00 PM#"_s);
    EXPECT_EQ(records->property("RecordCount"), QVariant(1));
    records->setProperty("Filter", u"due >= ##"_s);
    EXPECT_EQ(records->property("Filter"), QVariant(u"due = #12:00 PM#"_s)) << "it is refused";
}
