#pragma once

#include "export/Encoder.h"

class QIODevice;

namespace KOVAVSFDataGridLib {

// Throws ADODB::Error when the device refuses.
void writeWhole(QIODevice &device, QByteArrayView bytes);

// Gathers text and writes it to a device in larger pieces.
class TextSink
{
public:
    // `device` is open for writing and must outlive this object. Throws as Encoder does.
    TextSink(QIODevice &device, TextEncoding encoding);

    // To be appended to, in UTF-8.
    QByteArray &text() { return m_text; }
    // Writes what has been gathered when it is enough. Throws ADODB::Error when the device refuses.
    void flushWhenFull()
    {
        if (m_text.size() >= pieceSize)
            flush();
    }
    void flush();
    // Writes a larger text, after what has been gathered, without a copy of it.
    void write(QByteArrayView text);

private:
    static constexpr qsizetype pieceSize = qsizetype{256} << 10; // bytes

    QIODevice &m_device;
    Encoder m_encoder;
    QByteArray m_text;
};

} // namespace KOVAVSFDataGridLib
