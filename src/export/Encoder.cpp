#include "export/Encoder.h"

#include "ado/Error.h"
#include "ado/values/Utf8.h"
#include "export/ExportTexts.h"

namespace KOVAVSFDataGridLib {

namespace {

constexpr char gb18030Name[] = "GB18030";

} // namespace

Encoder::Encoder(TextEncoding encoding) : m_encoding(encoding)
{
    if (encoding != TextEncoding::Gb18030)
        return;
    m_converter.emplace(gb18030Name);
    if (!m_converter->isValid()) {
        throw ADODB::Error(ADODB::adErrFeatureNotAvailable,
                           ExportTexts::NoEncoding.arg(QLatin1StringView(gb18030Name)));
    }
}

bool Encoder::isAvailable(TextEncoding encoding)
{
    return encoding != TextEncoding::Gb18030 || QStringEncoder(gb18030Name).isValid();
}

QByteArrayView Encoder::mark() const
{
    return m_encoding == TextEncoding::Utf8WithMark ? QByteArrayView("\xef\xbb\xbf") : QByteArrayView();
}

QByteArrayView Encoder::encode(QByteArrayView utf8)
{
    if (!m_converter)
        return utf8;
    m_encoded = m_converter->encode(ADODB::textFromUtf8(utf8));
    if (m_converter->hasError()) {
        throw ADODB::Error(ADODB::adErrWriteFile,
                           ExportTexts::CantEncode.arg(QLatin1StringView(gb18030Name)));
    }
    return m_encoded;
}

} // namespace KOVAVSFDataGridLib
