#pragma once

#include "../KovaExport.h"
#include "Enums.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <exception>

namespace ADODB {

// The only exception of the data access. A member of this namespace that fails throws it, and leaves its
// object and the database as they were before the call. A description never contains a password.
class KOVA_EXPORT Error : public std::exception
{
public:
    // An error of ADO itself: Number() is 0x800A0000 + `number`.
    Error(ErrorValueEnum number, const QString &description);
    // An error of a provider. `sqlState` has five characters or is empty. `nativeError` is the database
    // library's own number, or 0 if the error is not from the library.
    Error(ProviderErrorEnum number, const QString &description, const QString &source = {},
          const QString &sqlState = {}, qint32 nativeError = 0);
    Error(ErrorValueEnum number, const QString &description, const QString &source, const QString &sqlState,
          qint32 nativeError);
    ~Error() override;

    // The number for hosts: 0x800A0000 + ErrorValueEnum, or a ProviderErrorEnum.
    qint32 Number() const { return m_number; }
    // One or two sentences for the user, in the application's language, followed by the database's own text
    // if it helps.
    QString Description() const { return m_description; }
    // The name of the database; empty for an error of ADO itself.
    QString Source() const { return m_source; }
    // Five characters, or empty if the database gave none.
    QString SQLState() const { return m_sqlState; }
    // The database library's own number, or 0.
    qint32 NativeError() const { return m_nativeError; }

    // Whether it is this error.
    bool is(ErrorValueEnum number) const { return m_number == hresult(number); }
    bool is(ProviderErrorEnum number) const { return m_number == number; }
    // The full number of an ADO error for hosts: 3021 becomes 0x800A0BCD.
    static constexpr qint32 hresult(ErrorValueEnum number) { return -2146828288 + number; }

    // Description() in UTF-8.
    const char *what() const noexcept override { return m_what.constData(); }

private:
    qint32 m_number;
    qint32 m_nativeError = 0;
    QString m_description;
    QString m_source;
    QString m_sqlState;
    QByteArray m_what;
};

} // namespace ADODB
