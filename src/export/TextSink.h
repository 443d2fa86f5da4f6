#pragma once

#include "export/Encoder.h"

class QIODevice;

namespace KOVAVSFDataGridLib {

// Throws ADODB::Error if writing to the device fails.
void writeWhole(QIODevice &device, QByteArrayView bytes);

// Buffers text and writes it to a device in larger pieces.
class TextSink
{
public:
    // `device` must be open for writing and outlive this object. Throws the errors of Encoder.
    TextSink(QIODevice &device, TextEncoding encoding);

    // The buffer, to which UTF-8 text is appended.
    QByteArray &text() { return m_text; }
    // Writes the buffer if it is large enough. Throws ADODB::Error if writing to the device fails.
    void flushWhenFull()
    {
        if (m_text.size() >= pieceSize)
            flush();
    }
    void flush();
    // Writes the buffer and then a larger text, without copying it.
    void write(QByteArrayView text);

private:
    static constexpr qsizetype pieceSize = qsizetype{256} << 10; // bytes

    QIODevice &m_device;
    Encoder m_encoder;
    QByteArray m_text;
};

} // namespace KOVAVSFDataGridLib
