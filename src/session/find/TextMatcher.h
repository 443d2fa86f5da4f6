#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <array>
#include <functional>

namespace KOVAVSFDataGridLib {

// What is looked for in texts, prepared for millions of them.
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
    // Calls `take` with start and length of each place that matches, from left to right.
    void forEachMatch(const QString &text,
                      const std::function<void(qsizetype start, qsizetype length)> &take) const;

private:
    bool isFoldedAt(const char *text) const;

    const QString m_text;
    const Qt::CaseSensitivity m_case;
    const bool m_isWhole;
    bool m_canMatchNumber = false;
    // UTF-8 is compared byte by byte, where that is enough: not for letters beyond ASCII whose case is
    // ignored.
    bool m_isBytewise = true;
    QByteArray m_bytes; // folded
    std::array<char, 256> m_fold;
    std::array<quint8, 256> m_skip; // how far to go on when this is the last byte of a place that differs
};

} // namespace KOVAVSFDataGridLib
