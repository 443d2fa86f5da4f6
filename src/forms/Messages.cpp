#include "forms/Messages.h"

#include "forms/FormTexts.h"

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace KOVAVSFDataGridLib::Messages {

using namespace Qt::StringLiterals;

namespace {

struct Message
{
    QString text;
    QString title;
    QString cause;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButton onEnter = QMessageBox::NoButton;
};

QMessageBox *newBox(QWidget *parent, const Message &message)
{
    auto *const box = new QMessageBox(parent);
    box->setTextFormat(Qt::PlainText);
    box->setText(message.text);
    box->setInformativeText(message.cause);
    if (auto *cause = box->findChild<QLabel *>(u"qt_msgbox_informativelabel"_s))
        cause->setTextFormat(Qt::PlainText); // QMessageBox sets the format only for the main text
    box->setIcon(message.icon);
    box->setWindowTitle(message.title.isEmpty() ? QApplication::applicationDisplayName() : message.title);
    return box;
}

// In the language of the texts, whatever translator the host has installed.
void nameButtons(QMessageBox &box)
{
    const std::pair<QMessageBox::StandardButton, Text> captions[] = {
        {QMessageBox::Ok, FormTexts::Ok},           {QMessageBox::Yes, FormTexts::Yes},
        {QMessageBox::No, FormTexts::No},           {QMessageBox::Save, FormTexts::Save},
        {QMessageBox::Discard, FormTexts::Discard}, {QMessageBox::Cancel, FormTexts::Cancel}};
    for (const auto &[button, caption] : captions) {
        if (QAbstractButton *const named = box.button(button))
            named->setText(caption);
    }
}

int show(QWidget *parent, const Message &message, QMessageBox::StandardButtons buttons,
         QMessageBox::StandardButton onEscape)
{
    // On the heap, because the parent owns it as well: either may go first.
    const QPointer<QMessageBox> box = newBox(parent, message);
    box->setStandardButtons(buttons);
    nameButtons(*box);
    box->setDefaultButton(message.onEnter);
    box->setEscapeButton(onEscape);
    const int answer = box->exec();
    if (!box)
        return onEscape;
    delete box;
    return answer;
}

} // namespace

void show(QWidget *parent, const QString &text, const QString &title, QMessageBox::Icon icon)
{
    show(parent, {text, title, {}, icon}, QMessageBox::Ok, QMessageBox::Ok);
}

void showWithCause(QWidget *parent, const QString &text, const QString &cause)
{
    show(parent, {text, {}, cause}, QMessageBox::Ok, QMessageBox::Ok);
}

bool offer(QWidget *parent, const QString &text, const QString &cause, const QString &button)
{
    const QPointer<QMessageBox> box = newBox(parent, {text, {}, cause});
    box->addButton(QMessageBox::Ok);
    nameButtons(*box);
    const QPointer<QAbstractButton> offered = box->addButton(button, QMessageBox::ActionRole);
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
    box->exec();
    const bool isTaken = box && box->clickedButton() == offered;
    delete box;
    return isTaken;
}

bool ask(QWidget *parent, const QString &text, const QString &title, QMessageBox::Icon icon,
         QMessageBox::StandardButton onEnter)
{
    return show(parent, {text, title, {}, icon, onEnter}, QMessageBox::Yes | QMessageBox::No,
                QMessageBox::No) == QMessageBox::Yes;
}

QMessageBox::StandardButton askToSave(QWidget *parent, const QString &text, const QString &title,
                                      const QString &offered)
{
    const QPointer<QMessageBox> box = newBox(parent, {text, title, {}, QMessageBox::Warning});
    box->setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    nameButtons(*box);
    const QPointer<QAbstractButton> offer =
        offered.isEmpty() ? nullptr : box->addButton(offered, QMessageBox::ActionRole);
    box->setDefaultButton(QMessageBox::Save);
    box->setEscapeButton(QMessageBox::Cancel);
    const int answer = box->exec();
    if (!box)
        return QMessageBox::Cancel;
    const bool isOffered = offer && box->clickedButton() == offer;
    delete box;
    return isOffered ? QMessageBox::NoButton : static_cast<QMessageBox::StandardButton>(answer);
}

void showLater(const QString &text)
{
    auto *const box = newBox(nullptr, {text, {}, {}, QMessageBox::Warning});
    box->setStandardButtons(QMessageBox::Ok);
    nameButtons(*box);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::NonModal);
    box->show();
}

} // namespace KOVAVSFDataGridLib::Messages
