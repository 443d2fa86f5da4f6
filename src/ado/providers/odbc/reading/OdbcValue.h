#pragma once

#include "ado/providers/odbc/reading/OdbcTypes.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QStringEncoder>

#include <vector>

namespace ADODB {

// How a driver returns values of a form.
struct OdbcLayout
{
    SQLSMALLINT cType;
    SQLLEN size;       // of a value in bytes; 0 if the size varies
    SQLLEN terminator; // bytes of the terminating zero of a text

    static OdbcLayout of(OdbcTypes::Form form);
};

// Converts values from a driver and appends them to rows.
class OdbcValue
{
public:
    // `length` is in bytes, without the terminator; not SQL_NULL_DATA.
    void append(RowStore &rows, OdbcTypes::Form form, const char *value, SQLLEN length);

private:
    QByteArrayView utf8(const char *value, SQLLEN length);

    QStringEncoder m_encoder{QStringEncoder::Utf8, QStringEncoder::Flag::Stateless};
    std::vector<char> m_utf8;
};

} // namespace ADODB
