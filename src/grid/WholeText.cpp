#include "grid/WholeText.h"

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtGui/QScreen>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolTip>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

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

QString asTip(const QString &text)
{
    return u"<p style='white-space:pre-wrap'>"_s + breakable(text).toHtmlEscaped() + u"</p>"_s;
}

// Made as Qt makes its tool tips.
int heightOfTip(const QString &tip)
{
    QLabel label;
    label.setFont(QToolTip::font());
    label.setMargin(1 + label.style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, &label));
    label.setIndent(1);
    label.setWordWrap(true);
    label.setText(tip);
    constexpr int extra = 1; // which some fonts get
    return label.sizeHint().height() + extra;
}

} // namespace

QString wholeTextTip(const QString &text, const QWidget &widget)
{
    if (text.isEmpty())
        return {};
    const int highest = widget.screen()->availableSize().height() / 3;
    if (text.size() <= mostShown && heightOfTip(asTip(text)) <= highest)
        return asTip(text);
    qsizetype fits = 0;
    for (qsizetype step = mostShown; step > 0; step /= 2) {
        const qsizetype tried = fits + step;
        if (tried <= std::min(text.size(), mostShown) &&
            heightOfTip(asTip(text.first(tried) + u'…')) <= highest)
            fits = tried;
    }
    return asTip(text.first(fits) + u'…');
}

QString uncutTextTip(const QString &text)
{
    return text.isEmpty() ? QString() : asTip(text);
}

void showWholeText(const QString &text, const QPoint &place, QWidget &widget, const QRect &area)
{
    QToolTip::showText(place, wholeTextTip(text, widget), &widget, area);
}

} // namespace KOVAVSFDataGridLib
