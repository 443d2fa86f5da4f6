#include "ado/providers/access/functions/AccessCall.h"

#include "ado/ValueText.h"
#include "ado/providers/access/file/AccessValue.h"
#include "ado/values/FieldValue.h"

namespace ADODB {

QString AccessCall::text(int index) const
{
    const RawValue value = rawValue(m_values[index]);
    return value.kind == RawValue::Kind::Text ? QString::fromUtf8(value.bytes)
                                              : ValueText(FieldValue::fromRaw(value, adVariant));
}

double AccessCall::number(int index) const
{
    return isText(index) ? AccessValue::days(text(index).toUtf8()).value_or(real(index)) : real(index);
}

bool AccessCall::isDate(int index) const
{
    return isText(index) && AccessValue::days(text(index).toUtf8());
}

bool AccessCall::hasNull() const
{
    for (int i = 0; i < count(); ++i) {
        if (isNull(i))
            return true;
    }
    return false;
}

void AccessCall::answerDate(double days)
{
    const QByteArray date = AccessValue::dateText(days);
    if (!date.isEmpty())
        setResult(m_context, RawValue::fromText(date));
}

void AccessCall::answer(const QString &value)
{
    setResult(m_context, RawValue::fromText(value.toUtf8()));
}

RawValue rawValue(sqlite3_value *value)
{
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return RawValue::fromInteger(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return RawValue::fromReal(sqlite3_value_double(value));
    case SQLITE_TEXT: {
        const void *text = sqlite3_value_text(value);
        return RawValue::fromText({static_cast<const char *>(text), sqlite3_value_bytes(value)});
    }
    case SQLITE_BLOB: {
        const void *bytes = sqlite3_value_blob(value);
        return RawValue::fromBlob({static_cast<const char *>(bytes), sqlite3_value_bytes(value)});
    }
    default:
        return {};
    }
}

void setResult(sqlite3_context *context, const RawValue &value)
{
    const auto size = static_cast<sqlite3_uint64>(value.bytes.size());
    const char *const bytes = size > 0 ? value.bytes.data() : "";
    switch (value.kind) {
    case RawValue::Kind::Null:
        return sqlite3_result_null(context);
    case RawValue::Kind::Integer:
        return sqlite3_result_int64(context, value.integer);
    case RawValue::Kind::Real:
        return sqlite3_result_double(context, value.real);
    case RawValue::Kind::Text:
        return sqlite3_result_text64(context, bytes, size, SQLITE_TRANSIENT, SQLITE_UTF8);
    case RawValue::Kind::Blob:
        return sqlite3_result_blob64(context, bytes, size, SQLITE_TRANSIENT);
    }
}

} // namespace ADODB
