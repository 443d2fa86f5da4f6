#include "filter/SentenceLabel.h"

#include "filter/FilterTexts.h"

#include <QtGui/QPainter>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

} // namespace

SentenceLabel::SentenceLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setFocusPolicy(Qt::NoFocus);
    setText(FilterTexts::And() + u'\n' + FilterTexts::Or()); // measured in the font that has these characters
    setFixedHeight(sizeHint().height());
    clear();
}

void SentenceLabel::say(const QString &sentence)
{
    setText(sentence);
    setToolTip(sentence);
}

bool SentenceLabel::fits(const QString &text) const
{
    const QRect room = contentsRect();
    return fontMetrics().boundingRect(room, flags, text).height() <= room.height();
}

void SentenceLabel::paintEvent(QPaintEvent *event)
{
    if (fits(text()))
        return QLabel::paintEvent(event);
    const QString ellipsis(u'…');
    qsizetype fitting = 0;
    for (qsizetype cut = text().size(); cut - fitting > 1;) {
        const qsizetype middle = (fitting + cut) / 2;
        (fits(text().left(middle) + ellipsis) ? fitting : cut) = middle;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), flags, text().left(fitting) + ellipsis);
}

} // namespace KOVAVSFDataGridLib
