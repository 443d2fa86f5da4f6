#include "Printing.h"

#include "ado/providers/sqlite/SqliteTypes.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

struct TypeCase
{
    QString declaration;
    DataTypeEnum type;
    qint32 size = -1; // not looked at when negative
    qint32 precision = -1;
    qint32 scale = 0;
};

TEST(SqliteTypes, GivesEachDeclaredTypeItsAdoNumber)
{
    const std::vector<TypeCase> cases{
        {u"TEXT"_s, adVarWChar, 0},
        {u"VARCHAR(20)"_s, adVarWChar, 20},
        {u"nvarchar ( 30 )"_s, adVarWChar, 30},
        {u"CHAR(5)"_s, adWChar, 5},
        {u"character(5)"_s, adWChar, 5},
        {u"CHARACTER VARYING(9)"_s, adVarWChar, 9},
        {u"CLOB"_s, adVarWChar, 0},
        {u"BLOB"_s, adLongVarBinary, 0},
        {u"BOOLEAN"_s, adBoolean, 2},
        {u"bool"_s, adBoolean, 2},
        {u"DATE"_s, adDBDate},
        {u"TIME"_s, adDBTime},
        {u"TIMESTAMP"_s, adDBTimeStamp},
        {u"timestamp without time zone"_s, adDBTimeStamp},
        {u"DateTime"_s, adDBTimeStamp},
        {u"INTEGER"_s, adInteger, 4, 10},
        {u"INT"_s, adInteger},
        {u"MEDIUMINT"_s, adInteger},
        {u"BIGINT"_s, adBigInt, 8, 19},
        {u"SMALLINT"_s, adSmallInt, 2, 5},
        {u"TINYINT"_s, adUnsignedTinyInt, 1, 3},
        {u"REAL"_s, adDouble, 8, 15},
        {u"FLOAT"_s, adDouble},
        {u"DOUBLE PRECISION"_s, adDouble},
        {u"NUMERIC"_s, adNumeric},
        {u"DECIMAL(10,2)"_s, adNumeric, -1, 10, 2},
        {u"NUMERIC( 7 )"_s, adNumeric, -1, 7, 0},
        {u"MONEY"_s, adNumeric},
    };
    for (const TypeCase &c : cases) {
        FieldInfo field;
        SqliteTypes::applyDeclaration(field, c.declaration);
        EXPECT_EQ(field.type, c.type) << c.declaration.toStdString();
        if (c.size >= 0) {
            EXPECT_EQ(field.definedSize, c.size) << c.declaration.toStdString();
        }
        if (c.precision >= 0) {
            EXPECT_EQ(field.precision, c.precision) << c.declaration.toStdString();
        }
        EXPECT_EQ(field.numericScale, c.scale) << c.declaration.toStdString();
    }
}

TEST(SqliteTypes, TakesTheTypeOfAValueWhereNoneIsDeclared)
{
    const auto typeOf = [](const RawValue &value) {
        FieldInfo field;
        SqliteTypes::applyValue(field, value);
        return field.type;
    };
    EXPECT_EQ(typeOf(RawValue::fromInteger(2147483647)), adInteger);
    EXPECT_EQ(typeOf(RawValue::fromInteger(2147483648)), adBigInt);
    EXPECT_EQ(typeOf(RawValue::fromReal(1)), adDouble);
    EXPECT_EQ(typeOf(RawValue::fromText("1")), adVarWChar);
    EXPECT_EQ(typeOf(RawValue::fromBlob("1")), adLongVarBinary);
}

} // namespace
