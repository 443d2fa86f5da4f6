#pragma once

#include <QtCore/QByteArrayView>

namespace ADODB {

// One cell as the database stores it. The bytes are owned by the source of the value.
struct RawValue
{
    enum class Kind : quint8 { Null, Integer, Real, Text, Blob };

    Kind kind = Kind::Null;
    qint64 integer = 0;
    double real = 0;
    QByteArrayView bytes; // UTF-8 for Text

    bool isNumber() const { return kind == Kind::Integer || kind == Kind::Real; }

    static RawValue fromInteger(qint64 value) { return {Kind::Integer, value, 0, {}}; }
    static RawValue fromReal(double value) { return {Kind::Real, 0, value, {}}; }
    static RawValue fromText(QByteArrayView utf8) { return {Kind::Text, 0, 0, utf8}; }
    static RawValue fromBlob(QByteArrayView bytes) { return {Kind::Blob, 0, 0, bytes}; }
};

} // namespace ADODB
