#include "forms/FlatCmd.h"

#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>

namespace KOVAVSFDataGridLib {

FlatCmd::FlatCmd(const QString &text, QWidget *parent) : QPushButton(text, parent)
{
    setAttribute(Qt::WA_Hover);
    // Never the button that Enter presses from elsewhere: these are helpers beside a dialog's own buttons.
    setAutoDefault(false);
}

void FlatCmd::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    if (!isEnabled() || !(underMouse() || isDown() || isChecked() || hasFocus()))
        option.features |= QStyleOptionButton::Flat;
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

} // namespace KOVAVSFDataGridLib
