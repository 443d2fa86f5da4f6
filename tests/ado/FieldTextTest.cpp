#include "ado/values/FieldText.h"

#include "ado/ValueText.h"
#include "ado/values/FieldValue.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

using namespace ADODB;

namespace {

QByteArray textOf(const RawValue &raw, DataTypeEnum type)
{
    QByteArray text("before");
    appendText(text, raw, type);
    EXPECT_TRUE(text.startsWith("before"));
    return text.sliced(6);
}

QByteArray wanted(const RawValue &raw, DataTypeEnum type)
{
    return ValueText(FieldValue::fromRaw(raw, type)).toUtf8();
}

const std::vector<DataTypeEnum> types{adInteger, adBigInt, adDouble,      adSingle,   adNumeric, adBoolean,
                                      adDBDate,  adDBTime, adDBTimeStamp, adVarWChar, adVariant, adGUID};

} // namespace

TEST(FieldText, IsTheTextOfTheValueWhateverIsStoredAsWhatever)
{
    std::vector<RawValue> values{{}, RawValue::fromBlob("abc"), RawValue::fromBlob("")};
    for (const qint64 integer : {qint64{0}, qint64{1}, qint64{-1}, qint64{5000000000},
                                 std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()})
        values.push_back(RawValue::fromInteger(integer));
    for (const double real :
         {0.0, -0.0, 0.1, 0.30000000000000004, 1e-4, 1e-5, 0.00012345678901234567, 123456.789, 1e14, 1e15,
          999999999999999.0, 999999999999999.9, 123456789012345.67, -2.5, 1e300, 5e-324,
          std::numeric_limits<double>::infinity(), std::nan("")})
        values.push_back(RawValue::fromReal(real));
    for (const char *text : {"",
                             "x",
                             "中文",
                             "\xff\xfe",
                             "true",
                             "1",
                             "0",
                             "2024-02-28",
                             "2024-02-29",
                             "2023-02-29",
                             "2024-13-01",
                             "0001-01-01",
                             "2024-02-28 10:11:12",
                             "2024-02-28T10:11:12",
                             "2024-02-28 10:11",
                             "2024-02-28 10:11:12.500",
                             "2024-02-28 24:00:00",
                             "10:11:12",
                             "10:11",
                             "10:61:12",
                             "10:11:12.25",
                             "12345678901234567890.123",
                             "{00000000-0000-0000-0000-000000000001}"})
        values.push_back(RawValue::fromText(text));
    for (const DataTypeEnum type : types) {
        for (const RawValue &value : values) {
            EXPECT_EQ(textOf(value, type), wanted(value, type))
                << "type " << type << ", kind " << static_cast<int>(value.kind) << ", integer "
                << value.integer << ", real " << value.real << ", bytes " << value.bytes.toByteArray().data();
        }
    }
}

TEST(FieldText, OfAnyDoubleIsThatOfItsValue)
{
    std::mt19937_64 random(20240229);
    for (int i = 0; i < 100000; ++i) {
        const quint64 bits = random();
        double any = 0;
        std::memcpy(&any, &bits, sizeof any);
        const double price = static_cast<double>(static_cast<qint64>(bits % 2000000000) - 1000000000) / 100;
        const double fine = price / 7;
        for (const double value : {any, price, fine}) {
            const RawValue raw = RawValue::fromReal(value);
            ASSERT_EQ(textOf(raw, adDouble), wanted(raw, adDouble)) << value;
        }
    }
}

// Every length, and zeros at every place.
TEST(FieldText, OfAnyIntegerAndDecimalIsThatOfItsValue)
{
    std::vector<qint64> integers;
    for (qint64 power = 1; power <= 100'000'000'000'000'000; power *= 10) {
        for (const qint64 near : {power - 1, power, power + 1, power * 7 + 30, power * 9 + 900})
            integers.insert(integers.end(), {near, -near});
    }
    for (const qint64 integer : integers) {
        const RawValue raw = RawValue::fromInteger(integer);
        ASSERT_EQ(textOf(raw, adBigInt), QByteArray::number(integer));
        for (double power = 1; power <= 1e6; power *= 10) {
            const RawValue decimal = RawValue::fromReal(static_cast<double>(integer) / power);
            ASSERT_EQ(textOf(decimal, adDouble), wanted(decimal, adDouble)) << integer << " / " << power;
        }
    }
}
