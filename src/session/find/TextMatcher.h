#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <array>
#include <functional>

namespace KOVAVSFDataGridLib {

// A search text, prepared for searching millions of texts.
class TextMatcher
{
public:
    enum class Case { Ignored, Exact };
    enum class Extent { Part, Whole };

    // An empty text matches nothing.
    TextMatcher(const QString &text, Case caseOf, Extent extent);

    bool isEmpty() const { return m_text.isEmpty(); }
    // Whether the text of a number can match.
    bool canMatchNumber() const { return m_canMatchNumber; }
    bool matches(QByteArrayView utf8) const;
    // Calls `take` with the start and length of each match, from left to right.
    void forEachMatch(const QString &text,
                      const std::function<void(qsizetype start, qsizetype length)> &take) const;

private:
    bool isFoldedAt(const char *text) const;

    const QString m_text;
    const Qt::CaseSensitivity m_case;
    const bool m_isWhole;
    bool m_canMatchNumber = false;
    // Whether comparing UTF-8 byte by byte is sufficient:
    // not for non-ASCII letters if the case is ignored.
    bool m_isBytewise = true;
    QByteArray m_bytes; // folded
    std::array<char, 256> m_fold;
    std::array<quint8, 256> m_skip; // how far to advance if this is the last byte of a place without a match
};

} // namespace KOVAVSFDataGridLib
