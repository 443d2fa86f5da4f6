// Values between what a database stores, what a field shows and what a user types.
#include "FuzzInput.h"

#include "ado/ValueText.h"
#include "ado/values/FieldValue.h"
#include "ado/values/Instant.h"

#include <cstring>

using namespace ADODB;
using KovaTest::Require;

namespace {

RawValue rawFrom(const QVariant &stored, QByteArray &bytes)
{
    switch (stored.typeId()) {
    case QMetaType::LongLong:
        return RawValue::fromInteger(stored.toLongLong());
    case QMetaType::Double:
        return RawValue::fromReal(stored.toDouble());
    case QMetaType::QString:
        bytes = stored.toString().toUtf8();
        return RawValue::fromText(bytes);
    case QMetaType::QByteArray:
        bytes = stored.toByteArray();
        return RawValue::fromBlob(bytes);
    default:
        Require(!stored.isValid());
        return {};
    }
}

// What is accepted for a field is stored in a way that shows it again.
void checkStored(const QVariant &given, DataTypeEnum type)
{
    bool ok = false;
    const QVariant value = FieldValue::convert(given, type, &ok);
    if (!ok)
        return;
    QByteArray bytes;
    const RawValue raw = rawFrom(FieldValue::toStorage(value), bytes);
    const QVariant shown = FieldValue::fromRaw(raw, type);
    if (type != adSingle) // which is shown with fewer digits than it was given
        Require(ValueText(shown) == ValueText(value));
}

// What is a time to the fields is one for comparisons, and the same.
void checkInstant(QByteArrayView bytes)
{
    const auto instant = Instant::ofText(bytes);
    Require(!instant || instant->compare(*instant) == 0);
    const QVariant moment = FieldValue::fromRaw(RawValue::fromText(bytes), adDBTimeStamp);
    if (moment.typeId() == QMetaType::QDateTime)
        Require(instant && instant->compare(*Instant::of(moment)) == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static constexpr DataTypeEnum types[] = {
        adSmallInt,    adInteger, adSingle,   adDouble,       adCurrency,      adDate,          adBoolean,
        adBigInt,      adGUID,    adBinary,   adChar,         adNumeric,       adDBDate,        adDBTime,
        adDBTimeStamp, adVarChar, adVarWChar, adLongVarWChar, adLongVarBinary, adUnsignedBigInt};
    if (size < 1)
        return 0;
    const DataTypeEnum type = types[data[0] % std::size(types)];
    const QByteArrayView bytes(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size - 1));
    checkInstant(bytes);
    qint64 integer = 0;
    double real = 0;
    if (bytes.size() >= 8) {
        std::memcpy(&integer, bytes.data(), sizeof integer);
        std::memcpy(&real, bytes.data(), sizeof real);
    }
    for (const RawValue &raw : {RawValue(), RawValue::fromInteger(integer), RawValue::fromReal(real),
                                RawValue::fromText(bytes), RawValue::fromBlob(bytes)}) {
        const QVariant value = FieldValue::fromRaw(raw, type);
        Require((raw.kind == RawValue::Kind::Null) == !value.isValid());
        ValueText(value);
    }
    checkStored(QString::fromUtf8(bytes), type);
    checkStored(bytes.toByteArray(), type);
    checkStored(QVariant::fromValue(integer), type);
    checkStored(real, type);
    checkStored(QVariant(), type);
    return 0;
}
