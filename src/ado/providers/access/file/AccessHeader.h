#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace ADODB {

// What the first page of an Access file says about the file.
class AccessHeader
{
public:
    static constexpr qint64 size = 0x98;

    // The first size bytes of the file; fewer are no Access file.
    explicit AccessHeader(QByteArray bytes);

    bool isAccess() const;
    // 0 is Access 97, 1 Access 2000 to 2003, 2 and above .accdb; meaningless unless isAccess().
    quint8 version() const;
    // Whether it is an .accdb whose pages only a password can read.
    bool isEncrypted() const;
    // What Access asks for before it opens the file; empty when it asks for nothing.
    QString password() const;
    // The Windows number of the language in whose order texts are sorted.
    quint16 language() const;

private:
    bool isJet3() const { return version() == 0; }

    QByteArray m_bytes;
};

} // namespace ADODB
