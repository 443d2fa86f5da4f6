#include "export/TextSink.h"

#include "ado/Error.h"

#include <QtCore/QIODevice>

namespace KOVAVSFDataGridLib {

// When the disk becomes full, the first write is partial; only a second one returns the error.
void writeWhole(QIODevice &device, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 written = device.write(bytes.data(), bytes.size());
        if (written <= 0)
            throw ADODB::Error(ADODB::adErrWriteFile, device.errorString());
        bytes = bytes.sliced(written);
    }
}

TextSink::TextSink(QIODevice &device, TextEncoding encoding) : m_device(device), m_encoder(encoding)
{
    m_text.reserve(2 * pieceSize);
    writeWhole(m_device, m_encoder.mark());
}

void TextSink::flush()
{
    writeWhole(m_device, m_encoder.encode(m_text));
    m_text.resize(0); // keeps the capacity
}

void TextSink::write(QByteArrayView text)
{
    flush();
    writeWhole(m_device, m_encoder.encode(text));
}

} // namespace KOVAVSFDataGridLib
