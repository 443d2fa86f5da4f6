#include "grid/WholeText.h"

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtGui/QFontMetrics>
#include <QtGui/QScreen>
#include <QtGui/QTextDocument>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

constexpr qsizetype mostShown = 1000; // characters, as much as people read in a tool tip
constexpr qsizetype longestWord = 60; // characters without a break; a tool tip is as wide as its longest word
constexpr QChar breakHere(0x200B);

// A tool tip wraps lines between words, but codes and addresses have no spaces.
QString breakable(const QString &text)
{
    QString broken;
    qsizetype sinceBreak = 0;
    for (const QChar c : text) {
        sinceBreak = c.isSpace() ? 0 : sinceBreak + 1;
        if (sinceBreak > longestWord && !c.isLowSurrogate()) {
            broken += breakHere;
            sinceBreak = 1;
        }
        broken += c;
    }
    return broken;
}

// The height that it takes as a tool tip, which is about this many letters wide.
int heightOfTip(const QString &text, const QFontMetrics &metrics)
{
    constexpr int letters = 70;
    const QRect room(0, 0, letters * metrics.averageCharWidth(), QWIDGETSIZE_MAX);
    return metrics.boundingRect(room, Qt::TextWordWrap | Qt::TextWrapAnywhere, text).height();
}

} // namespace

QString textForTip(const QString &text, const QWidget &widget)
{
    constexpr int borders = 20; // pixels, of the tip and of the document in it
    const int highest = widget.screen()->availableSize().height() / 3 - borders;
    const QFontMetrics metrics(QToolTip::font());
    if (text.size() <= mostShown && heightOfTip(text, metrics) <= highest)
        return text;
    qsizetype fits = 0;
    for (qsizetype step = mostShown; step > 0; step /= 2) {
        if (fits + step <= text.size() && heightOfTip(text.first(fits + step), metrics) <= highest)
            fits += step;
    }
    return text.first(std::min(fits, mostShown)) + u'…';
}

void showWholeText(const QString &text, const QPoint &place, QWidget &widget, const QRect &area)
{
    QToolTip::showText(place,
                       Qt::convertFromPlainText(breakable(textForTip(text, widget)), Qt::WhiteSpaceNormal),
                       &widget, area);
}

} // namespace KOVAVSFDataGridLib
