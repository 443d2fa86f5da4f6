#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringConverter>

#include <optional>

namespace KOVAVSFDataGridLib {

// How the characters of a text file are written.
enum class TextEncoding { Utf8, Utf8WithMark, Gb18030 };

// Turns UTF-8 into an encoding, piece by piece. A piece ends with a whole character.
class Encoder
{
public:
    // Throws ADODB::Error when this system doesn't have the encoding.
    explicit Encoder(TextEncoding encoding);

    static bool isAvailable(TextEncoding encoding);
    // What a file begins with.
    QByteArrayView mark() const;
    // Throws ADODB::Error when the encoding lacks a character. The answer is valid until the next call or as
    // long as `utf8` is.
    QByteArrayView encode(QByteArrayView utf8);

private:
    TextEncoding m_encoding;
    std::optional<QStringEncoder> m_converter; // unless it is UTF-8
    QByteArray m_encoded;
};

} // namespace KOVAVSFDataGridLib
