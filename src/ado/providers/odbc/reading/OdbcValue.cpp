#include "ado/providers/odbc/reading/OdbcValue.h"

#include <charconv>
#include <cstring>
#include <limits>

namespace ADODB {

using OdbcTypes::Form;

namespace {

template<typename T>
T numberAt(const char *at)
{
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

// A text becomes a number only if it contains nothing else.
void appendWhole(RowStore &rows, QByteArrayView text)
{
    qint64 number = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    if (error == std::errc() && end == text.end())
        rows.addInteger(number);
    else
        rows.addText(text);
}

void appendApproximate(RowStore &rows, QByteArrayView text)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (ok)
        rows.addReal(number);
    else
        rows.addText(text);
}

} // namespace

OdbcLayout OdbcLayout::of(Form form)
{
    switch (form) {
    case Form::Integer:
        return {SQL_C_SBIGINT, sizeof(qint64), 0};
    case Form::Unsigned:
        return {SQL_C_UBIGINT, sizeof(quint64), 0};
    case Form::Real:
        return {SQL_C_DOUBLE, sizeof(double), 0};
    case Form::Boolean:
        return {SQL_C_BIT, 1, 0};
    case Form::Digits:
    case Form::Guid:
        return {SQL_C_CHAR, 0, 1};
    case Form::Bytes:
        return {SQL_C_BINARY, 0, 0};
    case Form::Whole:
    case Form::Approximate:
    case Form::Text:
        break;
    }
    return {SQL_C_WCHAR, 0, sizeof(SQLWCHAR)};
}

void OdbcValue::append(RowStore &rows, Form form, const char *value, SQLLEN length)
{
    switch (form) {
    case Form::Integer:
        return rows.addInteger(numberAt<qint64>(value));
    case Form::Unsigned: {
        const auto number = numberAt<quint64>(value);
        return number <= static_cast<quint64>(std::numeric_limits<qint64>::max())
                   ? rows.addInteger(static_cast<qint64>(number))
                   : rows.addText(QByteArray::number(number));
    }
    case Form::Real:
        return rows.addReal(numberAt<double>(value));
    case Form::Boolean:
        return rows.addInteger(*value != 0 ? 1 : 0);
    case Form::Digits:
        return rows.addText({value, length});
    case Form::Guid: {
        const QByteArray braced = '{' + QByteArray(value, length).toLower() + '}';
        return rows.addText(length == 36 ? QByteArrayView(braced) : QByteArrayView(value, length));
    }
    case Form::Bytes:
        return rows.addBlob({value, length});
    case Form::Whole:
        return appendWhole(rows, utf8(value, length));
    case Form::Approximate:
        return appendApproximate(rows, utf8(value, length));
    case Form::Text:
        return rows.addText(utf8(value, length));
    }
}

QByteArrayView OdbcValue::utf8(const char *value, SQLLEN length)
{
    const QStringView text(reinterpret_cast<const char16_t *>(value), length / SQLLEN{sizeof(char16_t)});
    const auto room = static_cast<std::size_t>(m_encoder.requiredSpace(text.size()));
    if (m_utf8.size() < room)
        m_utf8.resize(room);
    const char *end = m_encoder.appendToBuffer(m_utf8.data(), text);
    return {m_utf8.data(), end};
}

} // namespace ADODB
