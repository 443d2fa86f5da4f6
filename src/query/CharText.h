#pragma once

#include <QtCore/QString>

#include <algorithm>

// Substrings and searches by 1-based character positions. Position 0 means "not found".
namespace KOVAVSFDataGridLib::CharText {

// Precondition of both: count >= 0. If the count exceeds the text's length, they return the whole text.
inline QString First(const QString &text, qsizetype count)
{
    Q_ASSERT(count >= 0);
    return text.first(std::min(count, text.size()));
}

inline QString Last(const QString &text, qsizetype count)
{
    Q_ASSERT(count >= 0);
    return text.last(std::min(count, text.size()));
}

// The characters from `position` (>= 1) on; empty after the end.
inline QString From(const QString &text, qsizetype position)
{
    Q_ASSERT(position >= 1);
    return text.mid(position - 1);
}

// The position of the first `part` at or after `from`; case-sensitive. An empty part is found at `from`, but
// nothing is found in an empty text.
inline qsizetype Find(const QString &text, const QString &part, qsizetype from = 1)
{
    return text.isEmpty() ? 0 : text.indexOf(part, from - 1) + 1;
}

// The position of the first `word`, ignoring case. Characters are converted to upper case one by one, because
// the upper case of a whole text can be longer than the text ("ß" becomes "SS"), which would shift all later
// positions.
inline qsizetype findUpper(const QString &text, const QString &word)
{
    const auto isAscii = [](QChar c) { return c.unicode() < 0x80; };
    const auto asciiUpper = [](QChar c) { return c >= u'a' && c <= u'z' ? c.unicode() - 32 : +c.unicode(); };
    // Qt's table is slow, and nearly every character is ASCII.
    const auto sameLetter = [&](QChar a, QChar b) {
        return a == b ||
               (isAscii(a) && isAscii(b) ? asciiUpper(a) == asciiUpper(b) : a.toUpper() == b.toUpper());
    };
    const auto found = std::search(text.cbegin(), text.cend(), word.cbegin(), word.cend(), sameLetter);
    return found == text.cend() ? 0 : found - text.cbegin() + 1;
}

// The text without the spaces (U+0020, nothing else) at both ends.
inline QString trim(const QString &text)
{
    const auto isBlank = [](QChar c) { return c == u' '; };
    const auto begin = std::find_if_not(text.cbegin(), text.cend(), isBlank);
    const auto end = std::find_if_not(text.crbegin(), std::make_reverse_iterator(begin), isBlank).base();
    return text.mid(begin - text.cbegin(), end - begin);
}

} // namespace KOVAVSFDataGridLib::CharText
