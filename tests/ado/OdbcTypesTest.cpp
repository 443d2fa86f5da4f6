// The ADO types of a driver's types, as in ADO's own ODBC bridge.
#include "OdbcEngines.h"
#include "TestDatabase.h"

#include "ado/providers/odbc/reading/OdbcTypes.h"

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

FieldInfo fieldOf(const OdbcTypes::Declared &declared)
{
    FieldInfo field;
    OdbcTypes::apply(field, declared);
    return field;
}

TEST(OdbcTypes, AreAdosForEachOfOdbcs)
{
    struct Case
    {
        int sqlType;
        int type;
        int unsignedType;
    };
    // As numbers, which users of both libraries know.
    const Case cases[] = {
        {1, 129, 129},    {12, 200, 200},   {-1, 201, 201},   {-8, 130, 130},   {-9, 202, 202},
        {-10, 203, 203},  {2, 131, 131},    {3, 131, 131},    {-7, 11, 11},     {-6, 16, 17},
        {5, 2, 18},       {4, 3, 19},       {-5, 20, 21},     {7, 4, 4},        {6, 5, 5},
        {8, 5, 5},        {91, 133, 133},   {92, 134, 134},   {93, 135, 135},   {9, 133, 133},
        {10, 134, 134},   {11, 135, 135},   {-2, 128, 128},   {-3, 204, 204},   {-4, 205, 205},
        {-11, 72, 72},    {-150, 202, 202}, {-151, 205, 205}, {-152, 203, 203}, {-154, 134, 134},
        {-155, 135, 135}, {110, 200, 200},  {-999, 200, 200},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(fieldOf({c.sqlType, 10, 0, false}).type, c.type) << c.sqlType;
        EXPECT_EQ(fieldOf({c.sqlType, 10, 0, true}).type, c.unsignedType) << c.sqlType;
    }
}

TEST(OdbcTypes, KeepSizesDigitsAndWhatGoesWithThem)
{
    const FieldInfo number = fieldOf({SQL_DECIMAL, 38, 10, false});
    EXPECT_EQ(number.precision, 38);
    EXPECT_EQ(number.numericScale, 10);
    EXPECT_EQ(number.definedSize, 19);
    EXPECT_NE(number.attributes & adFldFixed, 0);
    const FieldInfo text = fieldOf({SQL_WVARCHAR, 60, 0, false});
    EXPECT_EQ(text.definedSize, 60);
    EXPECT_EQ(text.attributes & (adFldFixed | adFldLong), 0);
    const FieldInfo picture = fieldOf({SQL_LONGVARBINARY, qint64{1} << 32, 0, false});
    EXPECT_EQ(picture.definedSize, 0x7fffffff);
    EXPECT_NE(picture.attributes & adFldLong, 0);
    EXPECT_NE(fieldOf({SQL_WCHAR, 3, 0, false}).attributes & adFldFixed, 0);
    EXPECT_EQ(fieldOf({SQL_INTEGER, 11, 0, false}).definedSize, 4);
}

using Column = std::pair<const char *, DataTypeEnum>; // its type in the server's SQL and in ADO

const std::vector<Column> postgreSqlColumns{{"SMALLINT", adSmallInt},
                                            {"INTEGER", adInteger},
                                            {"BIGINT", adBigInt},
                                            {"REAL", adSingle},
                                            {"DOUBLE PRECISION", adDouble},
                                            {"NUMERIC(10,2)", adNumeric},
                                            {"BOOLEAN", adBoolean},
                                            {"CHAR(3)", adWChar},
                                            {"VARCHAR(40)", adVarWChar},
                                            {"TEXT", adVarWChar},
                                            {"BYTEA", adLongVarBinary},
                                            {"DATE", adDBDate},
                                            {"TIME", adDBTime},
                                            {"TIMESTAMP", adDBTimeStamp},
                                            {"TIMESTAMPTZ", adDBTimeStamp},
                                            {"UUID", adGUID},
                                            {"JSON", adVarWChar}};

const std::vector<Column> mariaDbColumns{{"TINYINT", adTinyInt},
                                         {"TINYINT UNSIGNED", adUnsignedTinyInt},
                                         {"SMALLINT", adSmallInt},
                                         {"SMALLINT UNSIGNED", adUnsignedSmallInt},
                                         {"INT", adInteger},
                                         {"INT UNSIGNED", adUnsignedInt},
                                         {"BIGINT", adBigInt},
                                         {"BIGINT UNSIGNED", adUnsignedBigInt},
                                         {"FLOAT", adSingle},
                                         {"DOUBLE", adDouble},
                                         {"DECIMAL(10,2)", adNumeric},
                                         {"BIT(1)", adBoolean},
                                         {"CHAR(3)", adWChar},
                                         {"VARCHAR(40)", adVarWChar},
                                         {"LONGTEXT", adLongVarWChar},
                                         {"BINARY(4)", adBinary},
                                         {"VARBINARY(9)", adVarBinary},
                                         {"LONGBLOB", adLongVarBinary},
                                         {"DATE", adDBDate},
                                         {"TIME", adDBTime},
                                         {"DATETIME(6)", adDBTimeStamp}};

class OdbcServerTypes : public AdoTest::OnOdbc
{
};

KOVA_ON_ODBC_SERVERS(OdbcServerTypes);

TEST_P(OdbcServerTypes, ComeThroughTheDriver)
{
    const std::vector<Column> &columns = is("MariaDB") ? mariaDbColumns : postgreSqlColumns;
    QStringList declarations;
    for (const auto &[declaration, type] : columns)
        declarations += u"c%1 "_s.arg(declarations.size()) + QLatin1StringView(declaration);
    execute(u"CREATE TABLE kova_a("_s + declarations.join(u", "_s) + u')');
    const auto recordset = open(u"SELECT * FROM kova_a"_s);
    ASSERT_EQ(recordset->Fields().Count(), static_cast<int>(columns.size()));
    for (int i = 0; i < recordset->Fields().Count(); ++i) {
        const auto &[declaration, type] = columns[static_cast<std::size_t>(i)];
        EXPECT_EQ(recordset->Fields().Item(i).Type(), type) << declaration;
    }
}

// One that is too large for a signed integer is a text, as it is everywhere else.
TEST_P(OdbcServerTypes, KeepLargeNumbersWithoutASign)
{
    if (!is("MariaDB"))
        GTEST_SKIP() << "the other has none";
    execute(u"CREATE TABLE kova_a (id BIGINT UNSIGNED PRIMARY KEY, n BIGINT UNSIGNED)"_s);
    execute(u"INSERT INTO kova_a VALUES (1,0),(2,9223372036854775807),(3,9223372036854775808),"
            "(18446744073709551615,18446744073709551615),(5,NULL)"_s);
    const auto records = open(u"SELECT * FROM kova_a ORDER BY id"_s);
    EXPECT_EQ(AdoTest::cellTexts(*records), u"1|0\n2|9223372036854775807\n3|9223372036854775808\n5|\n"
                                            "18446744073709551615|18446744073709551615"_s);
    records->MoveLast();
    records->Fields().Item(1).PutValue(7);
    records->Update();
    EXPECT_EQ(ask(u"SELECT n FROM kova_a WHERE id = 18446744073709551615"_s), u"7"_s);
}

} // namespace
