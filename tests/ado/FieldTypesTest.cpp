#include "TestDatabase.h"
#include "Throwing.h"

#include <QtCore/QDateTime>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::TestDatabase;

namespace {

std::vector<DataTypeEnum> typesOf(const Recordset &recordset)
{
    std::vector<DataTypeEnum> types;
    for (int i = 0; i < recordset.Fields().Count(); ++i)
        types.push_back(recordset.Fields().Item(i).Type());
    return types;
}

TEST(FieldTypes, ComeFromTheDeclarationThroughViewsAndAliases)
{
    const TestDatabase database(
        u"CREATE TABLE t(a TEXT, b BLOB, c BOOLEAN, d DATE, e TIME, f TIMESTAMP, g INTEGER, h BIGINT, i REAL,"
        " j DECIMAL(10,2), k CHAR(3)); CREATE VIEW v AS SELECT a AS z, b, c, d, e, f, g, h, i, j, k FROM t;"_s);
    const std::vector<DataTypeEnum> expected{adVarWChar, adLongVarBinary, adBoolean, adDBDate,
                                             adDBTime,   adDBTimeStamp,   adInteger, adBigInt,
                                             adDouble,   adNumeric,       adWChar};
    EXPECT_EQ(typesOf(*database.open(u"SELECT * FROM t"_s)), expected);
    EXPECT_EQ(typesOf(*database.open(u"SELECT * FROM v AS x"_s)), expected);
    const auto recordset = database.open(u"SELECT j FROM t"_s);
    EXPECT_EQ(recordset->Fields().Item(0).Precision(), 10);
    EXPECT_EQ(recordset->Fields().Item(0).NumericScale(), 2);
}

TEST(FieldTypes, ComeFromTheFirstValueWhereNothingIsDeclared)
{
    const TestDatabase database(u"CREATE TABLE t(a, b, c, d, e, f);"
                                "INSERT INTO t VALUES (NULL, NULL, NULL, NULL, NULL, NULL),"
                                "(1, 5000000000, 1.5, 'x', x'00ff', NULL), ('late', 1, 1, 1, 1, NULL);"_s);
    EXPECT_EQ(
        typesOf(*database.open(u"SELECT * FROM t"_s)),
        (std::vector<DataTypeEnum>{adInteger, adBigInt, adDouble, adVarWChar, adLongVarBinary, adVarWChar}));
    EXPECT_EQ(typesOf(*database.open(u"SELECT count(*), 'x' || 1, a + 0.5 FROM t"_s)),
              (std::vector<DataTypeEnum>{adInteger, adVarWChar, adVarWChar}));
    EXPECT_EQ(typesOf(*database.open(u"SELECT 1 WHERE 0"_s)), (std::vector<DataTypeEnum>{adVarWChar}));
}

TEST(FieldTypes, GiveTypedValuesAndTheirTexts)
{
    const TestDatabase database(
        u"CREATE TABLE t(id INTEGER PRIMARY KEY, b BOOLEAN, d DATE, ti TIME, ts DATETIME, n DECIMAL(10,2), p "
        u"BLOB);"
        "INSERT INTO t VALUES (1, 1, '2024-02-29', '09:05', '2024-02-29 09:05:00.25', 12.50, x'0102'),"
        "(9000000000, 0, 'someday', 'noon', '2024-02-29 09:05:00+08:00', NULL, NULL);"_s);
    const auto recordset = database.open(u"SELECT * FROM t"_s);
    EXPECT_EQ(AdoTest::cellTexts(*recordset),
              u"1|True|2024-02-29|09:05:00|2024-02-29 09:05:00.25|12.5|<2 字节>\n"
              "9000000000|False|someday|noon|2024-02-29 09:05:00+08:00||"_s);
    EXPECT_EQ(recordset->CellValue(1, 0), QVariant(1));
    EXPECT_EQ(recordset->CellValue(1, 1), QVariant(true));
    EXPECT_EQ(recordset->CellValue(1, 2), QVariant(QDate(2024, 2, 29)));
    EXPECT_EQ(recordset->CellValue(1, 3), QVariant(QTime(9, 5)));
    EXPECT_EQ(recordset->CellValue(1, 4),
              QVariant(QDateTime(QDate(2024, 2, 29), QTime(9, 5, 0, 250), Qt::UTC)));
    EXPECT_EQ(recordset->CellValue(1, 5), QVariant(12.5));
    EXPECT_EQ(recordset->CellValue(1, 6), QVariant(QByteArray("\1\2")));
    EXPECT_EQ(recordset->CellValue(2, 0), QVariant(qlonglong{9000000000}));
    EXPECT_FALSE(recordset->CellValue(2, 5).isValid());
    EXPECT_TRUE(recordset->IsNull(2, 5));
    EXPECT_FALSE(recordset->IsNull(1, 5));
}

TEST(FieldTypes, KeepTextsWhole)
{
    const QString longText(1'000'000, u'长');
    const TestDatabase database(u"CREATE TABLE t(a TEXT);"_s);
    database.execute(
        u"INSERT INTO t VALUES ('%1'), (''), ('😀 it''s'), ('a' || char(0) || 'b')"_s.arg(longText));
    const auto recordset = database.open(u"SELECT a FROM t"_s);
    EXPECT_EQ(recordset->CellText(1, 0), longText);
    EXPECT_EQ(recordset->CellText(2, 0), QString());
    EXPECT_FALSE(recordset->IsNull(2, 0));
    EXPECT_EQ(recordset->CellText(3, 0), u"😀 it's"_s);
    EXPECT_EQ(recordset->CellText(4, 0), u"a\0b"_s);
}

} // namespace
