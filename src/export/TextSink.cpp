#include "export/TextSink.h"

#include "ado/Error.h"

#include <QtCore/QIODevice>

namespace KOVAVSFDataGridLib {

TextSink::TextSink(QIODevice &device, TextEncoding encoding) : m_device(device), m_encoder(encoding)
{
    m_text.reserve(2 * pieceSize);
    write(m_encoder.mark());
}

void TextSink::flush()
{
    write(m_encoder.encode(m_text));
    m_text.resize(0); // which keeps the room
}

void TextSink::write(QByteArrayView bytes)
{
    if (m_device.write(bytes.data(), bytes.size()) != bytes.size())
        throw ADODB::Error(ADODB::adErrWriteFile, m_device.errorString());
}

} // namespace KOVAVSFDataGridLib
