#include "Printing.h"

#include "ado/values/FieldValue.h"

#include <QtCore/QDateTime>
#include <gtest/gtest.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

struct Stored
{
    RawValue raw;
    DataTypeEnum type;
    QVariant value;
};

TEST(FieldValue, DecodesByTheFieldsTypeAndLosesNothing)
{
    const QDateTime moment(QDate(2024, 1, 2), QTime(3, 4), Qt::UTC);
    const std::vector<Stored> cases{
        {{}, adInteger, QVariant()},
        {RawValue::fromInteger(7), adInteger, 7},
        {RawValue::fromInteger(5000000000), adInteger, qlonglong{5000000000}},
        {RawValue::fromInteger(7), adBigInt, qlonglong{7}},
        {RawValue::fromInteger(2), adBoolean, true},
        {RawValue::fromInteger(0), adBoolean, false},
        {RawValue::fromText("TRUE"), adBoolean, true},
        {RawValue::fromText("maybe"), adBoolean, u"maybe"_s},
        {RawValue::fromReal(1.5), adInteger, 1.5},
        {RawValue::fromText("x"), adInteger, u"x"_s},
        {RawValue::fromInteger(3), adDouble, 3},
        {RawValue::fromText("2024-01-02"), adDBDate, QDate(2024, 1, 2)},
        {RawValue::fromText("2024-01-02 03:04:00"), adDBDate, moment},
        {RawValue::fromText("no date"), adDBDate, u"no date"_s},
        {RawValue::fromText("03:04"), adDBTime, QTime(3, 4)},
        {RawValue::fromText("2024-01-02T03:04"), adDBTimeStamp, moment},
        {RawValue::fromText("2024-01-02 03:04:00+08:00"), adDBTimeStamp, u"2024-01-02 03:04:00+08:00"_s},
        {RawValue::fromInteger(1704164640), adDBTimeStamp, 1704164640},
        {RawValue::fromText("2024-01-02"), adVarWChar, u"2024-01-02"_s},
        {RawValue::fromText("\xe4\xb8\xad"), adVarWChar, u"中"_s},
        {RawValue::fromBlob("ab"), adLongVarBinary, QByteArray("ab")},
        {RawValue::fromBlob("ab"), adVarWChar, QByteArray("ab")},
    };
    for (const Stored &c : cases) {
        const QVariant value = FieldValue::fromRaw(c.raw, c.type);
        EXPECT_EQ(value, c.value) << c.type;
        EXPECT_EQ(value.typeId(), c.value.typeId()) << c.type;
    }
}

struct Given
{
    QVariant value;
    DataTypeEnum type;
    QVariant held; // an invalid one with fits = true is Null
    bool fits = true;
};

TEST(FieldValue, ConvertsWhatAHostGivesOrRefusesIt)
{
    const std::vector<Given> cases{
        {QVariant(), adInteger, QVariant()},
        {u" 42 "_s, adInteger, 42},
        {u"5000000000"_s, adInteger, qlonglong{5000000000}},
        {3.0, adInteger, 3},
        {3.5, adInteger, {}, false},
        {1e300, adBigInt, {}, false},
        {u""_s, adInteger, {}, false},
        {u"abc"_s, adInteger, {}, false},
        {true, adInteger, 1},
        {u"12.5"_s, adNumeric, 12.5},
        {u"9007199254740993"_s, adNumeric, qlonglong{9007199254740993}},
        {u"12,5"_s, adDouble, {}, false},
        {u"false"_s, adBoolean, false},
        {2, adBoolean, true},
        {u"perhaps"_s, adBoolean, {}, false},
        {QDate(2024, 1, 2), adDBDate, QDate(2024, 1, 2)},
        {u"2024-01-02"_s, adDBDate, QDate(2024, 1, 2)},
        {u"2024-02-30"_s, adDBDate, {}, false},
        {QDateTime(QDate(2024, 1, 2), QTime(3, 4), Qt::UTC), adDBTime, QTime(3, 4)},
        {QDate(2024, 1, 2), adDBTimeStamp, QDateTime(QDate(2024, 1, 2), QTime(0, 0), Qt::UTC)},
        {u"2024-01-02 03:04:05.123456"_s, adDBTimeStamp, u"2024-01-02 03:04:05.123456"_s},
        {u"2024-01-02 03:04:05.120000"_s, adDBTimeStamp,
         QDateTime(QDate(2024, 1, 2), QTime(3, 4, 5, 120), Qt::UTC)},
        {u"03:04:05.120000"_s, adDBTime, QTime(3, 4, 5, 120)},
        {12, adVarWChar, u"12"_s},
        {QDate(2024, 1, 2), adVarWChar, u"2024-01-02"_s},
        {u""_s, adVarWChar, u""_s},
        {QByteArray("x"), adVarWChar, {}, false},
        {QByteArray("x"), adLongVarBinary, QByteArray("x")},
        {u"x"_s, adLongVarBinary, {}, false},
    };
    for (const Given &c : cases) {
        bool ok = !c.fits;
        const QVariant held = FieldValue::convert(c.value, c.type, &ok);
        EXPECT_EQ(ok, c.fits) << c.type << ' ' << c.value.toString().toStdString();
        if (c.fits) {
            EXPECT_EQ(held, c.held) << c.type;
            EXPECT_EQ(held.typeId(), c.held.typeId()) << c.type;
        }
    }
}

TEST(FieldValue, StoresWhatADatabaseWithoutTypesCanHold)
{
    EXPECT_EQ(FieldValue::toStorage(true), QVariant(qlonglong{1}));
    EXPECT_EQ(FieldValue::toStorage(7).typeId(), QMetaType::LongLong);
    EXPECT_EQ(FieldValue::toStorage(0.5F), QVariant(0.5));
    EXPECT_EQ(FieldValue::toStorage(QDate(2024, 1, 2)), QVariant(u"2024-01-02"_s));
    EXPECT_EQ(FieldValue::toStorage(QByteArray("x")), QVariant(QByteArray("x")));
    EXPECT_FALSE(FieldValue::toStorage(QVariant()).isValid());
}

} // namespace
