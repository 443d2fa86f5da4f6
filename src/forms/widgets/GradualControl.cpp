#include "forms/widgets/GradualControl.h"

#include <QtGui/QPainter>

namespace KOVAVSFDataGridLib {

GradualControl::GradualControl(QWidget *parent) : QWidget(parent) {}

void GradualControl::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(rect(), palette().color(QPalette::Window));
}

} // namespace KOVAVSFDataGridLib
