#include "forms/widgets/GradualControl.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

namespace KOVAVSFDataGridLib {

GradualControl::GradualControl(QWidget *parent) : QWidget(parent) {}

void GradualControl::paintEvent(QPaintEvent *)
{
    constexpr float tint = 0.35f; // light enough for text in the palette's own colour to stay readable
    const QColor full = palette().color(QPalette::Highlight);
    const QColor end = palette().color(QPalette::Window);
    // Opaque colours: a gradient of transparency shows stripes.
    const auto mixed = [](float a, float b) { return b + (a - b) * tint; };
    QLinearGradient gradient(rect().topLeft(), rect().topRight());
    gradient.setColorAt(0,
                        QColor::fromRgbF(mixed(full.redF(), end.redF()), mixed(full.greenF(), end.greenF()),
                                         mixed(full.blueF(), end.blueF())));
    gradient.setColorAt(1, end);
    QPainter(this).fillRect(rect(), gradient);
}

} // namespace KOVAVSFDataGridLib
