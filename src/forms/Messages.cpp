#include "forms/Messages.h"

#include <QtWidgets/QApplication>

namespace KOVAVSFDataGridLib::Messages {

namespace {

int show(QWidget *parent, const QString &text, const QString &title, QMessageBox::Icon icon,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton onEscape)
{
    QMessageBox box(parent);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setIcon(icon);
    box.setWindowTitle(title.isEmpty() ? QApplication::applicationDisplayName() : title);
    box.setStandardButtons(buttons);
    box.setEscapeButton(onEscape);
    return box.exec();
}

} // namespace

void tell(QWidget *parent, const QString &text, const QString &title, QMessageBox::Icon icon)
{
    show(parent, text, title, icon, QMessageBox::Ok, QMessageBox::Ok);
}

bool ask(QWidget *parent, const QString &text, const QString &title, QMessageBox::Icon icon)
{
    return show(parent, text, title, icon, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

} // namespace KOVAVSFDataGridLib::Messages
