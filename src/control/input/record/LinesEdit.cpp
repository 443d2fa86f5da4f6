#include "control/input/record/LinesEdit.h"

#include <QtCore/QList>

#include <algorithm>
#include <iterator>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar paragraphEnd(0x2029); // a line break, to a text document
constexpr qsizetype longestOfWords = 10'000;

// The position in the text of each character that the document shows, and of the end. CR LF is shown as one
// character, all others unchanged.
QList<qsizetype> placesOfShown(const QString &text)
{
    QList<qsizetype> places;
    places.reserve(text.size() + 1);
    for (qsizetype i = 0; i < text.size(); ++i) {
        places.append(i);
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            ++i;
    }
    places.append(text.size());
    return places;
}

// Searching for word boundaries takes quadratic time in
// a line without any: minutes for a picture in Base64.
QTextOption::WrapMode wrapModeFor(const QString &text)
{
    qsizetype begin = 0;
    while (begin < text.size()) {
        const qsizetype end = text.indexOf(u'\n', begin);
        const qsizetype length = (end < 0 ? text.size() : end) - begin;
        if (length > longestOfWords)
            return QTextOption::WrapAnywhere;
        begin += length + 1;
    }
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

} // namespace

void LinesEdit::setText(const QString &text)
{
    setWordWrapMode(wrapModeFor(text));
    setPlainText(text);
    m_text = text;
    m_shown = document()->toRawText(); // toPlainText() would replace non-breaking spaces
}

QString LinesEdit::text() const
{
    const QString shown = document()->toRawText();
    if (shown == m_shown)
        return m_text;
    const qsizetype shorter = std::min(shown.size(), m_shown.size());
    const qsizetype head = std::ranges::mismatch(shown, m_shown).in1 - shown.begin();
    const auto ends = std::mismatch(shown.rbegin(), shown.rbegin() + (shorter - head), m_shown.rbegin());
    const qsizetype tail = ends.first - shown.rbegin();

    const QString lineEnd = m_text.contains("\r\n"_L1) ? u"\r\n"_s : u"\n"_s;
    const auto written = [&lineEnd](QString text) { return text.replace(paragraphEnd, lineEnd); };
    const QList<qsizetype> places = placesOfShown(m_text);
    if (places.size() != m_shown.size() + 1) // the document doesn't show the text character by character
        return written(shown);
    return m_text.first(places[head]) + written(shown.sliced(head, shown.size() - head - tail)) +
           m_text.sliced(places[m_shown.size() - tail]);
}

} // namespace KOVAVSFDataGridLib
