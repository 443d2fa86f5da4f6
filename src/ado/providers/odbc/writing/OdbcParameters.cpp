#include "ado/providers/odbc/writing/OdbcParameters.h"

#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/values/DateText.h"
#include "ado/values/Utf8.h"

#include <algorithm>

namespace ADODB {

void OdbcParameters::bind(const RawValue &value, const OdbcTypes::Declared &type)
{
    Parameter &parameter = *m_parameters.emplace_back(std::make_unique<Parameter>());
    SQLSMALLINT cType = SQL_C_WCHAR;
    SQLPOINTER address = nullptr;
    SQLLEN units = 0; // digits, characters or bytes
    switch (value.kind) {
    case RawValue::Kind::Null:
        parameter.length = SQL_NULL_DATA;
        break;
    case RawValue::Kind::Integer:
        parameter.integer = value.integer;
        cType = SQL_C_SBIGINT;
        address = &parameter.integer;
        break;
    case RawValue::Kind::Real:
        parameter.real = value.real;
        cType = SQL_C_DOUBLE;
        address = &parameter.real;
        break;
    case RawValue::Kind::Text:
        parameter.text = textFromUtf8(value.bytes);
        units = parameter.text.size();
        parameter.length = units * SQLLEN{sizeof(SQLWCHAR)};
        address = wide(parameter.text);
        break;
    case RawValue::Kind::Blob:
        parameter.bytes = value.bytes.toByteArray();
        units = parameter.bytes.size();
        parameter.length = units;
        cType = SQL_C_BINARY;
        address = parameter.bytes.data();
        break;
    }
    // A driver drops the time zone of a value that is bound as a timestamp.
    const bool isZoned = type.sqlType == SQL_TYPE_TIMESTAMP && value.kind == RawValue::Kind::Text &&
                         DateText::isZonedMoment(value.bytes);
    const int sqlType = isZoned ? SQL_VARCHAR : type.sqlType;
    const auto size = static_cast<SQLULEN>(std::max<qint64>({type.size, units, 1}));
    m_statement.check(SQLBindParameter(m_statement.get(), static_cast<SQLUSMALLINT>(m_parameters.size()),
                                       SQL_PARAM_INPUT, cType, static_cast<SQLSMALLINT>(sqlType), size,
                                       static_cast<SQLSMALLINT>(type.scale), address,
                                       std::max<SQLLEN>(parameter.length, 0), &parameter.length));
}

RawValue rawValue(const QVariant &value, QByteArray &utf8)
{
    switch (value.typeId()) {
    case QMetaType::LongLong:
        return RawValue::fromInteger(value.toLongLong());
    case QMetaType::Double:
        return RawValue::fromReal(value.toDouble());
    case QMetaType::QString:
        utf8 = value.toString().toUtf8();
        return RawValue::fromText(utf8);
    case QMetaType::QByteArray:
        utf8 = value.toByteArray();
        return RawValue::fromBlob(utf8);
    default:
        return {};
    }
}

} // namespace ADODB
