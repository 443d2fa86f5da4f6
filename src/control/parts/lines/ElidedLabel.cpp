#include "control/parts/lines/ElidedLabel.h"

#include "grid/WholeText.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QToolTip>

namespace KOVAVSFDataGridLib {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, width());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || shownText() == text())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), wholeTextTip(text(), *this), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    // A style paints disabled text paler only for its own colour roles.
    painter.drawItemText(rect(), Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(), shownText(),
                         isEnabled() ? foregroundRole() : QPalette::WindowText);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

} // namespace KOVAVSFDataGridLib
