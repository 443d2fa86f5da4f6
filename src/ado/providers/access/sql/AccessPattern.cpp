#include "ado/providers/access/sql/AccessPattern.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <algorithm>

namespace ADODB {

namespace {

// Folds each code point separately, so that the number of characters does not change.
QList<uint> lettersOf(QByteArrayView utf8)
{
    QList<uint> letters = QString::fromUtf8(utf8).toUcs4();
    for (uint &letter : letters)
        letter = QChar::toCaseFolded(letter);
    return letters;
}

} // namespace

bool AccessPattern::Part::isLike(char32_t other) const
{
    if (kind == AnyOne || kind == Letter)
        return kind == AnyOne || other == letter;
    const bool isListed = std::any_of(set.begin(), set.end(), [&](const Range &range) {
        return other >= range.first && other <= range.second;
    });
    return isListed == (kind == OneOf);
}

AccessPattern AccessPattern::ofAdo(QByteArrayView pattern, char32_t escape)
{
    AccessPattern result;
    bool isEscaped = false;
    for (const uint letter : QString::fromUtf8(pattern).toUcs4()) {
        if (escape != 0 && letter == escape && !isEscaped) {
            isEscaped = true;
            continue;
        }
        if (letter == U'%' && !isEscaped)
            result.m_parts.push_back({Part::AnyText});
        else if (letter == U'_' && !isEscaped)
            result.m_parts.push_back({Part::AnyOne});
        else
            result.m_parts.push_back({Part::Letter, QChar::toCaseFolded(letter)});
        isEscaped = false;
    }
    return result;
}

AccessPattern AccessPattern::ofAccess(QByteArrayView pattern)
{
    AccessPattern result;
    const QList<uint> letters = lettersOf(pattern);
    for (qsizetype i = 0; i < letters.size(); ++i) {
        const qsizetype close = letters[i] == U'[' ? letters.indexOf(U']', i + 1) : -1;
        if (close > i) {
            const bool isNegated = letters[i + 1] == U'!' && close > i + 2;
            Part part{isNegated ? Part::NoneOf : Part::OneOf};
            for (qsizetype from = i + (isNegated ? 2 : 1); from < close; ++from) {
                const bool isRange = from + 2 < close && letters[from + 1] == U'-';
                part.set.push_back({letters[from], letters[isRange ? from + 2 : from]});
                from += isRange ? 2 : 0;
            }
            if (!part.set.empty()) // [] matches the empty text
                result.m_parts.push_back(std::move(part));
            i = close;
        } else if (letters[i] == U'*') {
            result.m_parts.push_back({Part::AnyText});
        } else if (letters[i] == U'?') {
            result.m_parts.push_back({Part::AnyOne});
        } else if (letters[i] == U'#') {
            result.m_parts.push_back({Part::OneOf, 0, {{U'0', U'9'}}});
        } else {
            result.m_parts.push_back({Part::Letter, letters[i]});
        }
    }
    return result;
}

// Backtracks to the last AnyText only. That is enough: whatever an earlier one could match, the last one can
// match too.
bool AccessPattern::matches(QByteArrayView utf8) const
{
    const QList<uint> text = lettersOf(utf8);
    const auto end = m_parts.end();
    auto next = m_parts.begin();
    auto retry = end;
    qsizetype at = 0;
    qsizetype retryAt = 0;
    while (at < text.size()) {
        if (next != end && next->kind == Part::AnyText) {
            retry = next++;
            retryAt = at;
        } else if (next != end && next->isLike(text[at])) {
            ++next;
            ++at;
        } else if (retry != end) {
            next = std::next(retry);
            at = ++retryAt;
        } else {
            return false;
        }
    }
    return std::all_of(next, end, [](const Part &part) { return part.kind == Part::AnyText; });
}

} // namespace ADODB
