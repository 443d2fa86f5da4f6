#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ADODB {

// The first page of an Access file, which describes the file.
class AccessHeader
{
public:
    static constexpr qint64 size = 0x98;

    // The first `size` bytes of the file. With fewer bytes, isAccess() is false.
    explicit AccessHeader(QByteArray bytes);

    bool isAccess() const;
    // 0 is Access 97, 1 is Access 2000 to 2003, 2 and above is .accdb. Undefined unless isAccess().
    quint8 version() const;
    // Whether it is an .accdb whose pages are encrypted with a password.
    bool isEncrypted() const;
    // The database password; empty if there is none.
    QString password() const;
    // The Windows language ID (LCID) that defines the sort order of texts.
    quint16 language() const;

private:
    bool isJet3() const { return version() == 0; }

    QByteArray m_bytes;
};

} // namespace ADODB
