#pragma once

// ODBC's headers. On Windows they need windows.h first.
#include <QtCore/QString>
#ifdef Q_OS_WIN
#include <QtCore/qt_windows.h>
#endif

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <cstdint>

namespace ADODB {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "ODBC's wide characters must be UTF-16");

inline bool succeeded(SQLRETURN code)
{
    return code == SQL_SUCCESS || code == SQL_SUCCESS_WITH_INFO;
}

// For attributes that are numbers passed in a pointer argument.
inline SQLPOINTER asPointer(std::uintptr_t number)
{
    return reinterpret_cast<SQLPOINTER>(number); // NOLINT(performance-no-int-to-ptr): never dereferenced
}

// ODBC declares input texts as non-const but does not write to them. The text must outlive the call.
inline SQLWCHAR *wide(const QString &text)
{
    return const_cast<SQLWCHAR *>(reinterpret_cast<const SQLWCHAR *>(text.constData()));
}

} // namespace ADODB
