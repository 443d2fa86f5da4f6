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

// A box whose buttons are in the language of the texts, whatever translator the host has installed.
class Box final : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

    void nameButtons()
    {
        const std::pair<StandardButton, Text> captions[] = {
            {Ok, FormTexts::Ok},     {Yes, FormTexts::Yes},         {No, FormTexts::No},
            {Save, FormTexts::Save}, {Discard, FormTexts::Discard}, {Cancel, FormTexts::Cancel}};
        for (const auto &[standard, caption] : captions) {
            if (QAbstractButton *const named = button(standard))
                named->setText(caption);
        }
    }

protected:
    // Qt then writes its own captions, also when the translator came just before the box. Its buttons have
    // had the event when this one is through.
    bool event(QEvent *event) override
    {
        const bool isHandled = QMessageBox::event(event);
        if (event->type() == QEvent::LanguageChange)
            nameButtons();
        return isHandled;
    }
};

Box *newBox(QWidget *parent, const Message &message)
{
    auto *const box = new Box(parent);
    box->setTextFormat(Qt::PlainText);
    box->setText(message.text);
    box->setInformativeText(message.cause);
    if (auto *cause = box->findChild<QLabel *>(u"qt_msgbox_informativelabel"_s))
        cause->setTextFormat(Qt::PlainText); // QMessageBox sets the format only for the main text
    box->setIcon(message.icon);
    box->setWindowTitle(message.title.isEmpty() ? QApplication::applicationDisplayName() : message.title);
    return box;
}

int show(QWidget *parent, const Message &message, QMessageBox::StandardButtons buttons,
         QMessageBox::StandardButton onEscape)
{
    // On the heap, because the parent owns it too: either may be destroyed first.
    const QPointer<Box> box = newBox(parent, message);
    box->setStandardButtons(buttons);
    box->nameButtons();
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
    const QPointer<Box> box = newBox(parent, {text, {}, cause});
    box->addButton(QMessageBox::Ok);
    box->nameButtons();
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
    const QPointer<Box> box = newBox(parent, {text, title, {}, QMessageBox::Warning});
    box->setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box->nameButtons();
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
    box->nameButtons();
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::NonModal);
    box->show();
}

} // namespace KOVAVSFDataGridLib::Messages
