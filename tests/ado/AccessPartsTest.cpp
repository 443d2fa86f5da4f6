// Reading single values, rows and pages from bytes of the file format.
#include "AccessSamples.h"
#include "Throwing.h"

#include "ado/providers/access/file/AccessRow.h"
#include "ado/providers/access/file/AccessTypes.h"
#include "ado/providers/access/file/AccessValue.h"
#include "ado/providers/access/functions/AccessFormat.h"
#include "ado/providers/access/sql/AccessCollation.h"
#include "ado/providers/access/sql/AccessPattern.h"
#include "ado/providers/access/sql/AccessQuery.h"

#include <gtest/gtest.h>

using namespace AdoTest;
using namespace ADODB;
using namespace Qt::Literals::StringLiterals;

namespace {

template<typename Number>
QByteArray bytesOf(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

// Kind and value as one text, so that 1, '1' and 1.0 are different.
QByteArray described(const RawValue &value)
{
    switch (value.kind) {
    case RawValue::Kind::Null:
        return "null";
    case RawValue::Kind::Integer:
        return "integer " + QByteArray::number(value.integer);
    case RawValue::Kind::Real:
        return "real " + QByteArray::number(value.real, 'g', 17);
    case RawValue::Kind::Text:
        return "text " + value.bytes.toByteArray();
    case RawValue::Kind::Blob:
        return "blob " + value.bytes.toByteArray().toHex();
    }
    return {};
}

class AccessValueTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString path = KovaTest::sampleFile(u"sample.accdb"_s);
        if (path.isEmpty())
            GTEST_SKIP() << "sample.accdb is not here; see sampleFile()";
        file = std::make_unique<AccessFile>(path);
    }

    QByteArray read(AccessType type, QByteArrayView bytes, int scale = 0)
    {
        AccessColumn column;
        column.type = type;
        column.scale = scale;
        return described(AccessValue::fromField(bytes, column, *file, storage));
    }

    std::unique_ptr<AccessFile> file;
    QByteArray storage;
};

} // namespace

TEST_F(AccessValueTest, CurrencyKeepsEveryDigit)
{
    const auto currency = [&](qint64 units) { return read(AccessType::Currency, bytesOf(units)); };
    EXPECT_EQ(currency(0), "integer 0");
    EXPECT_EQ(currency(-10000), "integer -1");
    EXPECT_EQ(currency(323800), "real 32.380000000000003"); // the nearest double; it is shown as 32.38
    EXPECT_EQ(currency(-1), "real -0.0001");
    EXPECT_EQ(currency(std::numeric_limits<qint64>::max()), "text 922337203685477.5807");
    EXPECT_EQ(currency(std::numeric_limits<qint64>::min()), "text -922337203685477.5808");
    EXPECT_EQ(currency(9'223'372'036'854'770'000), "integer 922337203685477");
}

TEST_F(AccessValueTest, DecimalsOf28DigitsAreExact)
{
    const auto decimal = [&](bool isNegative, quint64 low, quint64 high, int scale) {
        return read(AccessType::Numeric,
                    QByteArray(1, isNegative ? '\x80' : '\0') + bytesOf(static_cast<quint32>(high >> 32)) +
                        bytesOf(static_cast<quint32>(high)) + bytesOf(static_cast<quint32>(low >> 32)) +
                        bytesOf(static_cast<quint32>(low)),
                    scale);
    };
    EXPECT_EQ(decimal(false, 0, 0, 4), "integer 0");
    EXPECT_EQ(decimal(true, 15, 0, 1), "real -1.5");
    EXPECT_EQ(decimal(false, 5, 0, 3), "real 0.0050000000000000001");
    EXPECT_EQ(decimal(false, 0, 1, 0), "text 18446744073709551616");
    EXPECT_EQ(decimal(true, 0, 1, 10), "text -1844674407.3709551616");
}

TEST_F(AccessValueTest, NumbersAndGuids)
{
    EXPECT_EQ(read(AccessType::Byte, "\xff"), "integer 255");
    EXPECT_EQ(read(AccessType::Integer, bytesOf(qint16{-2})), "integer -2");
    EXPECT_EQ(read(AccessType::LongInteger, bytesOf(qint32{-70000})), "integer -70000");
    EXPECT_EQ(read(AccessType::LargeNumber, bytesOf(qint64{-5'000'000'000})), "integer -5000000000");
    EXPECT_EQ(read(AccessType::Single, bytesOf(0.05F)), "real 0.050000000000000003");
    EXPECT_EQ(read(AccessType::Double, bytesOf(0.1)), "real 0.10000000000000001");
    EXPECT_EQ(read(AccessType::Binary, QByteArrayView("\0\1", 2)), "blob 0001");
    EXPECT_EQ(read(AccessType::Guid, QByteArray::fromHex("00112233445566778899aabbccddeeff")),
              "text {33221100-5544-7766-8899-AABBCCDDEEFF}");
    EXPECT_ADO_ERROR(adErrReadFile, read(AccessType::LongInteger, "abc"));
}

TEST_F(AccessValueTest, TextsAreCompressedOrNot)
{
    EXPECT_EQ(read(AccessType::Text, "\xff\xfe"
                                     "Caf\xe9"),
              "text Café");
    EXPECT_EQ(read(AccessType::Text, QByteArrayView("\xff\xfe"
                                                    "a\0\x2d\x4e\0b",
                                                    8)),
              "text a中b");
    EXPECT_EQ(read(AccessType::Text, QByteArrayView("\x2d\x4e\x3d\xd8\x00\xde", 6)), "text 中😀");
    EXPECT_EQ(read(AccessType::Text, ""), "text ");
    EXPECT_EQ(
        read(AccessType::Memo, bytesOf(quint32{0x80000002}) + QByteArray(8, '\0') + QByteArray("x\0", 2)),
        "text x");
    EXPECT_ADO_ERROR(adErrReadFile,
                     read(AccessType::Memo, bytesOf(quint32{0x3fffffff}) + QByteArray(8, '\0')));
    EXPECT_ADO_ERROR(adErrReadFile,
                     read(AccessType::OleObject, bytesOf(quint32{100}) + QByteArray(8, '\xff')));
}

TEST(AccessDateTest, DaysAreCountedFrom1899)
{
    const std::pair<double, QByteArray> dates[] = {{0, "1899-12-30 00:00:00"},
                                                   {0.25, "1899-12-30 06:00:00"},
                                                   {-1.25, "1899-12-29 06:00:00"},
                                                   {43861, "2020-01-31 00:00:00"},
                                                   {43861 + 1.0 / 3, "2020-01-31 08:00:00"},
                                                   {43861.999999999, "2020-02-01 00:00:00"},
                                                   {43861 + 0.5 / 86400, "2020-01-31 00:00:00.5"},
                                                   {-657434, "0100-01-01 00:00:00"},
                                                   {2958465, "9999-12-31 00:00:00"},
                                                   {2958466, ""},
                                                   {1e300, ""},
                                                   {std::numeric_limits<double>::quiet_NaN(), ""}};
    for (const auto &[days, text] : dates)
        EXPECT_EQ(AccessValue::dateText(days), text) << days;
}

TEST(AccessRowTest, LongRowsOfJet3JumpOverEach256Bytes)
{
    // Two texts of 300 bytes: 3 columns, the first fixed.
    QByteArray row = QByteArray(1, '\3') + bytesOf(qint16{7}) + QByteArray(300, 'a') + QByteArray(300, 'b');
    const auto end = static_cast<char>(603 - 512);
    row += QByteArray(1, end) + static_cast<char>(303 - 256) + '\3'; // the starts, the last one first
    row += QByteArray("\2\1", 2);                                    // the columns at which 256 are added
    row += QByteArray("\2\7", 2);                                    // variable columns, nothing is Null
    AccessColumn first;
    first.isFixed = true;
    first.size = 2;
    AccessColumn second;
    second.number = 1;
    AccessColumn third;
    third.number = 2;
    third.variableNumber = 1;
    AccessColumn younger;
    younger.number = 3;
    const AccessRow read(row, true, true);
    EXPECT_EQ(*read.field(first), bytesOf(qint16{7}));
    EXPECT_EQ(*read.field(second), QByteArray(300, 'a'));
    EXPECT_EQ(*read.field(third), QByteArray(300, 'b'));
    EXPECT_FALSE(read.field(younger));
    EXPECT_ADO_ERROR(adErrReadFile, AccessRow("\x80", true, true));
    EXPECT_ADO_ERROR(adErrReadFile, AccessRow("", true, false));
}

TEST(AccessPageTest, RowsFillThePageFromItsEnd)
{
    AccessPage page;
    page.size = 32;
    page.rowCountOffset = 12;
    page.buffer[12] = 3;
    page.buffer[14] = 28;                           // bytes 28 to 32
    page.buffer[16] = 20, page.buffer[17] = '\x80'; // deleted
    page.buffer[18] = 20, page.buffer[19] = '\x40'; // empty, elsewhere
    EXPECT_EQ(page.rows(), 3);
    EXPECT_EQ(page.row(0).bytes.size(), 4);
    EXPECT_FALSE(page.row(0).isDeleted);
    EXPECT_TRUE(page.row(1).isDeleted);
    EXPECT_EQ(page.row(1).bytes.size(), 8);
    EXPECT_TRUE(page.row(2).isElsewhere);
    EXPECT_ADO_ERROR(adErrReadFile, page.row(3));
    page.buffer[14] = 40;
    EXPECT_ADO_ERROR(adErrReadFile, page.row(0));
}

TEST(AccessCollationTest, LetterCaseIsIgnoredInEveryScript)
{
    using namespace AccessCollation;
    EXPECT_EQ(compareTexts("Straße", "STRAßE"), 0);
    EXPECT_EQ(compareTexts("ÄB", "äb"), 0);
    EXPECT_LT(compareTexts("a", "B"), 0);
    EXPECT_GT(compareTexts("b", "A"), 0);
    EXPECT_LT(compareTexts("a", "ab"), 0);
    EXPECT_LT(compareTexts("", "中"), 0);
    EXPECT_EQ(compareDates("2020-01-31", "2020-01-31 00:00:00"), 0);
    EXPECT_LT(compareDates("2020-01-31", "2020-01-31 00:00:01"), 0);
    EXPECT_LT(compareDates("2020-01-31 23:59:59", "2020-02-01"), 0);
}

TEST(AccessPatternTest, AdoHasPercentAndUnderline)
{
    const auto isLike = [](QByteArrayView text, QByteArrayView pattern, char32_t escape) {
        return AccessPattern::ofAdo(pattern, escape).matches(text);
    };
    EXPECT_TRUE(isLike("München", "m_NCH%", 0));
    EXPECT_TRUE(isLike("", "%", 0));
    EXPECT_FALSE(isLike("", "_", 0));
    EXPECT_TRUE(isLike("aXbXc", "%x%x%", 0));
    EXPECT_FALSE(isLike("aXb", "%x%x%", 0));
    EXPECT_TRUE(isLike("abcabd", "%abd", 0));
    EXPECT_TRUE(isLike("😀", "_", 0));
    EXPECT_TRUE(isLike("50%", "50!%", U'!'));
    EXPECT_FALSE(isLike("500", "50!%", U'!'));
    EXPECT_TRUE(isLike("[a]", "[a]", 0));
    // Takes no time, although each % could match anything.
    EXPECT_FALSE(isLike(QByteArray(20000, 'a'), "%a%a%a%a%a%a%a%a%a%a%b", 0));
}

TEST(AccessPatternTest, AccessHasStarsAndSets)
{
    const auto isLike = [](QByteArrayView text, QByteArrayView pattern) {
        return AccessPattern::ofAccess(pattern).matches(text);
    };
    EXPECT_TRUE(isLike("München", "m?N*"));
    EXPECT_FALSE(isLike("München", "n*"));
    EXPECT_TRUE(isLike("50%_x", "*%_*"));
    EXPECT_TRUE(isLike("A7", "[a-c]#"));
    EXPECT_FALSE(isLike("D7", "[a-c]#"));
    EXPECT_FALSE(isLike("AB", "[a-c]#"));
    EXPECT_TRUE(isLike("D7", "[!A-c]7"));
    EXPECT_TRUE(isLike("what?", "what[?]"));
    EXPECT_FALSE(isLike("whats", "what[?]"));
    EXPECT_TRUE(isLike("a-b!", "a[x-]b[!]"));
    EXPECT_TRUE(isLike("[a", "[a"));
    EXPECT_TRUE(isLike("ab", "a[]b"));
    EXPECT_TRUE(isLike("", "*"));
}

TEST(AccessFormatTest, DatesAndNumbers)
{
    const QDateTime moment(QDate(2020, 2, 9), QTime(7, 5, 3), Qt::UTC);
    EXPECT_EQ(AccessFormat::date(moment, u"yyyy-mm-dd hh:nn:ss"_s), u"2020-02-09 07:05:03"_s);
    EXPECT_EQ(AccessFormat::date(moment, u"d mmm yy, h:mm"_s), u"9 Feb 20, 7:05"_s);
    EXPECT_EQ(AccessFormat::date(moment, u"Short Date"_s), u"2020-02-09"_s);
    EXPECT_EQ(AccessFormat::number(1234.5, u"0"_s), u"1235"_s);
    EXPECT_EQ(AccessFormat::number(-1234.5, u"Standard"_s), u"-1,234.50"_s);
    EXPECT_EQ(AccessFormat::number(0.125, u"0.0#%"_s), u"12.5%"_s);
    EXPECT_EQ(AccessFormat::number(7, u"No 000"_s), u"No 007"_s);
}

TEST(AccessTypesTest, ADeclarationContainsAllThatTheFieldReports)
{
    AccessColumn column;
    column.type = AccessType::Numeric;
    column.precision = 18;
    column.scale = 4;
    FieldInfo decimal;
    AccessTypes::applyDeclaration(decimal, AccessTypes::declaration(column).section(u" COLLATE"_s, 0, 0));
    EXPECT_EQ(decimal.type, adNumeric);
    EXPECT_EQ(decimal.precision, 18);
    EXPECT_EQ(decimal.numericScale, 4);

    const std::pair<AccessType, DataTypeEnum> types[] = {{AccessType::YesNo, adBoolean},
                                                         {AccessType::Byte, adUnsignedTinyInt},
                                                         {AccessType::Integer, adSmallInt},
                                                         {AccessType::LongInteger, adInteger},
                                                         {AccessType::Currency, adCurrency},
                                                         {AccessType::Single, adSingle},
                                                         {AccessType::Double, adDouble},
                                                         {AccessType::DateTime, adDate},
                                                         {AccessType::Binary, adVarBinary},
                                                         {AccessType::Text, adVarWChar},
                                                         {AccessType::OleObject, adLongVarBinary},
                                                         {AccessType::Memo, adLongVarWChar},
                                                         {AccessType::Guid, adGUID},
                                                         {AccessType::Numeric, adNumeric},
                                                         {AccessType::Complex, adInteger},
                                                         {AccessType::LargeNumber, adBigInt},
                                                         {static_cast<AccessType>(0x77), adVarBinary}};
    for (const auto &[access, ado] : types) {
        AccessColumn typed;
        typed.type = access;
        typed.isKey = true;
        typed.isAutoNumber = true;
        FieldInfo field;
        AccessTypes::applyDeclaration(field, AccessTypes::declaration(typed).section(u" COLLATE"_s, 0, 0));
        EXPECT_EQ(field.type, ado);
        EXPECT_TRUE(field.attributes & adFldKeyColumn);
        EXPECT_TRUE(field.attributes & adFldRowID);
    }
}

TEST(AccessQueryTest, OuterJoinsFollowTheTablesTheyKeep)
{
    using Row = AccessQuery::Row;
    AccessQuery query;
    query.rows = {Row{AccessQuery::TableRow, 0, {}, u"A"_s, {}, "1"},
                  Row{AccessQuery::TableRow, 0, {}, u"B b"_s, u"B"_s, "2"},
                  Row{AccessQuery::ColumnRow, 0, u"A.x"_s, u"y"_s, {}, "1"},
                  Row{AccessQuery::JoinRow, 3, u"A.i = B.i"_s, u"B"_s, u"A"_s, "1"},
                  Row{AccessQuery::WhereRow, 0, u"A.x > 1"_s, {}, {}, "1"},
                  Row{AccessQuery::OrderRow, 0, u"A.x"_s, u"D"_s, {}, "1"}};
    EXPECT_EQ(query.select(),
              u"SELECT A.x AS [y] FROM [A] LEFT JOIN [B b] AS [B] ON A.i = B.i WHERE (A.x > 1)"
              " ORDER BY A.x DESC"_s);
    query.rows.push_back(Row{AccessQuery::KindRow, 5, {}, {}, {}, {}});
    EXPECT_EQ(query.select(), QString()) << "it deletes";
    query.rows.back() = Row{AccessQuery::ParameterRow, 8, {}, u"p"_s, {}, {}};
    EXPECT_EQ(query.select(), QString());
}
