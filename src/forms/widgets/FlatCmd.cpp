#include "forms/widgets/FlatCmd.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>

namespace KOVAVSFDataGridLib {

FlatCmd::FlatCmd(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setAttribute(Qt::WA_Hover);
    // Never the default button: these are auxiliary buttons beside a dialog's own buttons.
    setAutoDefault(false);
}

// Otherwise the dialog would press its default button and close, although the user wants to continue.
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
        // Based on the text colour, because the palette's shades hardly differ from a dark window.
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
