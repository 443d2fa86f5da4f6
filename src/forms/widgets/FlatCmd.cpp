#include "forms/widgets/FlatCmd.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>

namespace KOVAVSFDataGridLib {

FlatCmd::FlatCmd(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setAttribute(Qt::WA_Hover);
    // Never the button that Enter presses from elsewhere: these are helpers beside a dialog's own buttons.
    setAutoDefault(false);
}

// A dialog would press its default button instead, and be done where the user wants to go on.
void FlatCmd::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

void FlatCmd::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    if (!isEnabled() || !(underMouse() || isDown() || isChecked() || hasFocus())) {
        option.features |= QStyleOptionButton::Flat;
        painter.setRenderHint(QPainter::Antialiasing);
        // Out of the text's colour, as the palette's shades hardly differ from a dark window.
        constexpr float visibility = 0.25f;
        QColor line = option.palette.color(QPalette::ButtonText);
        line.setAlphaF(visibility);
        painter.setPen(line);
        constexpr qreal rounding = 3;
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), rounding, rounding);
    }
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace KOVAVSFDataGridLib
