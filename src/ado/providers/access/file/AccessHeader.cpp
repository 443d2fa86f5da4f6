#include "ado/providers/access/file/AccessHeader.h"

#include "ado/providers/access/file/AccessPage.h"

#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

constexpr qsizetype versionAt = 0x14;
constexpr qsizetype maskedFrom = 0x18;
constexpr qsizetype encryptionKeyAt = 0x3e;
constexpr qsizetype passwordAt = 0x42;
constexpr qsizetype dateAt = 0x72;
constexpr quint8 firstAccdb = 2;

// RC4 with a fixed key that Access uses for all its files. It hides the bytes, but protects nothing.
void unmask(QByteArray &bytes, qsizetype from)
{
    constexpr std::array<quint8, 4> key{0xc7, 0xda, 0x39, 0x6b};
    std::array<quint8, 256> state{};
    std::iota(state.begin(), state.end(), quint8{0});
    quint8 j = 0;
    for (std::size_t i = 0; i < state.size(); ++i) {
        j = static_cast<quint8>(j + state[i] + key[i % key.size()]);
        std::swap(state[i], state[j]);
    }
    quint8 i = 0;
    j = 0;
    for (qsizetype at = from; at < bytes.size(); ++at) {
        j = static_cast<quint8>(j + state[++i]);
        std::swap(state[i], state[j]);
        bytes[at] = static_cast<char>(bytes[at] ^ state[static_cast<quint8>(state[i] + state[j])]);
    }
}

} // namespace

AccessHeader::AccessHeader(QByteArray bytes) : m_bytes(std::move(bytes))
{
    unmask(m_bytes, maskedFrom);
}

bool AccessHeader::isAccess() const
{
    const QByteArrayView kind = QByteArrayView(m_bytes).sliced(std::min<qsizetype>(4, m_bytes.size()));
    return m_bytes.size() >= size && m_bytes.startsWith(QByteArrayView("\0\1\0\0", 4)) &&
           (kind.startsWith("Standard Jet DB") || kind.startsWith("Standard ACE DB"));
}

quint8 AccessHeader::version() const
{
    return AccessBytes::number<quint8>(m_bytes, versionAt);
}

bool AccessHeader::isEncrypted() const
{
    return version() >= firstAccdb && AccessBytes::number<quint32>(m_bytes, encryptionKeyAt) != 0;
}

QString AccessHeader::password() const
{
    if (isJet3()) {
        constexpr qsizetype length = 20;
        const QByteArray text = m_bytes.sliced(passwordAt, length);
        return QString::fromLatin1(text.left(text.indexOf('\0')));
    }
    // Masked a second time, with the file's creation date.
    constexpr qsizetype units = 20;
    const auto day = static_cast<quint32>(static_cast<qint64>(AccessBytes::number<double>(m_bytes, dateAt)));
    QString text;
    for (qsizetype i = 0; i < units; ++i) {
        const auto mask = static_cast<char16_t>(i % 2 == 0 ? day : day >> 16);
        const auto unit = AccessBytes::number<char16_t>(m_bytes, passwordAt + 2 * i);
        if (unit == mask)
            break;
        text += QChar(static_cast<char16_t>(unit ^ mask));
    }
    return text;
}

quint16 AccessHeader::language() const
{
    return AccessBytes::number<quint16>(m_bytes, isJet3() ? 0x3a : 0x6e);
}

} // namespace ADODB
