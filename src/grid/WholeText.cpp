#include "grid/WholeText.h"

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtGui/QTextDocument>
#include <QtWidgets/QToolTip>

namespace KOVAVSFDataGridLib {

namespace {

constexpr qsizetype mostShown = 1000; // characters, as many as can be read in passing
constexpr qsizetype longestWord = 60; // characters that go on one line; a tip is as wide as its longest word
constexpr QChar BreakHere(0x200B);

// A tip wraps its lines between words. Codes and addresses have none.
QString breakable(const QString &text)
{
    QString broken;
    qsizetype sinceBreak = 0;
    for (const QChar c : text) {
        sinceBreak = c.isSpace() ? 0 : sinceBreak + 1;
        if (sinceBreak > longestWord && !c.isLowSurrogate()) {
            broken += BreakHere;
            sinceBreak = 1;
        }
        broken += c;
    }
    return broken;
}

} // namespace

void showWholeText(const QString &text, const QPoint &place, QWidget &widget, const QRect &area)
{
    const bool isTooLong = text.size() > mostShown;
    const QString shown = isTooLong ? text.first(mostShown) + u'…' : text;
    QToolTip::showText(place, Qt::convertFromPlainText(breakable(shown), Qt::WhiteSpaceNormal), &widget,
                       area);
}

} // namespace KOVAVSFDataGridLib
