#include "control/input/record/LineBreaks.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar paragraphEnd(0x2029); // a line break, to a text document

// What a text document takes for a line break, and gives back as paragraphEnd. "\r\n" is one as well.
bool isLineBreak(QChar c)
{
    constexpr QChar frameBegin(0xfdd0);
    constexpr QChar frameEnd(0xfdd1);
    return c == u'\n' || c == u'\r' || c == paragraphEnd || c == frameBegin || c == frameEnd;
}

// Where in the text each character of such a document begins, and the end.
std::vector<qsizetype> characterStarts(const QString &text)
{
    std::vector<qsizetype> starts;
    for (qsizetype at = 0; at < text.size(); ++at) {
        starts.push_back(at);
        if (text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n')
            ++at;
    }
    starts.push_back(text.size());
    return starts;
}

} // namespace

QString withLineBreaksOf(const QString &before, const QString &typed)
{
    const std::vector<qsizetype> starts = characterStarts(before);
    const qsizetype length = std::ssize(starts) - 1;
    const auto isSame = [&](qsizetype inBefore, qsizetype inTyped) {
        const QChar was = before[starts[static_cast<std::size_t>(inBefore)]];
        return typed[inTyped] == (isLineBreak(was) ? paragraphEnd : was);
    };
    const qsizetype shorter = std::min(length, typed.size());
    qsizetype head = 0;
    while (head < shorter && isSame(head, head))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && isSame(length - 1 - tail, typed.size() - 1 - tail))
        ++tail;
    QString changed = typed.sliced(head, typed.size() - head - tail);
    changed.replace(paragraphEnd, before.contains("\r\n"_L1) ? u"\r\n"_s : u"\n"_s);
    return before.first(starts[static_cast<std::size_t>(head)]) + changed +
           before.sliced(starts[static_cast<std::size_t>(length - tail)]);
}

bool hasLongWord(const QString &text)
{
    constexpr qsizetype longest = 20'000;
    qsizetype length = 0;
    for (const QChar c : text) {
        length = c.isSpace() ? 0 : length + 1;
        if (length > longest)
            return true;
    }
    return false;
}

} // namespace KOVAVSFDataGridLib
