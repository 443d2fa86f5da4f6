#include "session/find/TextMatcher.h"

#include "ado/values/Utf8.h"

#include <algorithm>
#include <limits>

namespace KOVAVSFDataGridLib {

namespace {

std::size_t place(char byte)
{
    return static_cast<unsigned char>(byte);
}

bool isAscii(const QString &text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
}

} // namespace

TextMatcher::TextMatcher(const QString &text, Case caseOf, Extent extent)
    : m_text(text),
      m_case(caseOf == Case::Exact ? Qt::CaseSensitive : Qt::CaseInsensitive),
      m_isWhole(extent == Extent::Whole),
      m_bytes(text.toUtf8())
{
    const bool hasCase = m_case == Qt::CaseInsensitive && text.toLower() != text.toUpper();
    m_isBytewise = !hasCase || isAscii(text);
    // Exponents, infinity and NaN contain letters.
    static constexpr QStringView ofNumbers = u"0123456789.+-eEinfaINFA";
    m_canMatchNumber = std::ranges::all_of(text, [](QChar c) { return ofNumbers.contains(c); });
    for (std::size_t i = 0; i < m_fold.size(); ++i) {
        const char byte = static_cast<char>(i);
        m_fold[i] = hasCase && byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
    }
    for (char &byte : m_bytes)
        byte = m_fold[place(byte)];
    constexpr qsizetype farthest = std::numeric_limits<quint8>::max();
    m_skip.fill(static_cast<quint8>(std::min(m_bytes.size(), farthest)));
    for (qsizetype i = 0; i + 1 < m_bytes.size(); ++i)
        m_skip[place(m_bytes[i])] = static_cast<quint8>(std::min(m_bytes.size() - 1 - i, farthest));
}

bool TextMatcher::isFoldedAt(const char *text) const
{
    for (const char byte : m_bytes) {
        if (m_fold[place(*text++)] != byte)
            return false;
    }
    return true;
}

bool TextMatcher::matches(QByteArrayView utf8) const
{
    if (isEmpty())
        return false;
    if (!m_isBytewise) {
        const QString text = ADODB::textFromUtf8(utf8);
        return m_isWhole ? text.compare(m_text, m_case) == 0 : text.contains(m_text, m_case);
    }
    const qsizetype length = m_bytes.size();
    if (m_isWhole)
        return utf8.size() == length && isFoldedAt(utf8.data());
    const char last = m_bytes.back();
    for (qsizetype at = 0; at + length <= utf8.size();) {
        const char byte = m_fold[place(utf8[at + length - 1])];
        if (byte == last && isFoldedAt(utf8.data() + at))
            return true;
        at += m_skip[place(byte)];
    }
    return false;
}

void TextMatcher::forEachMatch(const QString &text,
                               const std::function<void(qsizetype start, qsizetype length)> &take) const
{
    if (isEmpty())
        return;
    if (m_isWhole) {
        if (text.compare(m_text, m_case) == 0)
            take(0, text.size());
        return;
    }
    for (qsizetype at = text.indexOf(m_text, 0, m_case); at >= 0;
         at = text.indexOf(m_text, at + m_text.size(), m_case))
        take(at, m_text.size());
}

} // namespace KOVAVSFDataGridLib
