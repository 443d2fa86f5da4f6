#include "forms/GradualControl.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

namespace KOVAVSFDataGridLib {

GradualControl::GradualControl(QWidget *parent) : QWidget(parent) {}

void GradualControl::paintEvent(QPaintEvent *)
{
    constexpr float tint = 0.35f; // light enough for text in the palette's own colour to stay readable
    QColor start = palette().color(QPalette::Highlight);
    start.setAlphaF(tint);
    QColor end = start;
    end.setAlphaF(0);
    QLinearGradient gradient(rect().topLeft(), rect().topRight());
    gradient.setColorAt(0, start);
    gradient.setColorAt(1, end);
    QPainter(this).fillRect(rect(), gradient);
}

} // namespace KOVAVSFDataGridLib
