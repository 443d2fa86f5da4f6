#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringConverter>

#include <optional>

namespace KOVAVSFDataGridLib {

// The encoding of a text file.
enum class TextEncoding { Utf8, Utf8WithMark, Gb18030 };

// Converts UTF-8 to an encoding, piece by piece. A piece must not end inside a character.
class Encoder
{
public:
    // Throws ADODB::Error if the system doesn't support the encoding.
    explicit Encoder(TextEncoding encoding);

    static bool isAvailable(TextEncoding encoding);
    // The byte order mark at the start of a file.
    QByteArrayView mark() const;
    // Throws ADODB::Error if the encoding lacks a character. The result is valid until the next call and
    // while `utf8` is valid.
    QByteArrayView encode(QByteArrayView utf8);

private:
    TextEncoding m_encoding;
    std::optional<QStringEncoder> m_converter; // not for UTF-8
    QByteArray m_encoded;
};

} // namespace KOVAVSFDataGridLib
