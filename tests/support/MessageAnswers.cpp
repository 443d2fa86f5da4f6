#include "support/MessageAnswers.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <gtest/gtest.h>

namespace KovaTest {

MessageAnswers::MessageAnswers(std::vector<QMessageBox::StandardButton> answers)
    : m_answers(std::move(answers))
{
    qApp->installEventFilter(this);
}

MessageAnswers::~MessageAnswers() = default;

void MessageAnswers::answerNext(QMessageBox::StandardButton answer)
{
    m_answers.resize(m_shown.size(), QMessageBox::Ok);
    m_answers.push_back(answer);
}

void MessageAnswers::pressNext(const QString &caption, std::size_t between)
{
    m_captions.insert(m_shown.size() + between, caption);
}

void MessageAnswers::clear()
{
    m_captions.clear();
    m_answers.clear();
    m_shown.clear();
}

QStringList MessageAnswers::texts() const
{
    QStringList texts;
    for (const ShownMessage &message : m_shown)
        texts.append(message.text);
    return texts;
}

bool MessageAnswers::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (const QPointer<QMessageBox> box = qobject_cast<QMessageBox *>(watched)) {
            // Either may have been destroyed by then.
            QMetaObject::invokeMethod(
                this, [this, box] { return box ? answer(*box) : void(); }, Qt::QueuedConnection);
        }
    }
    return QObject::eventFilter(watched, event);
}

void MessageAnswers::answer(QMessageBox &box)
{
    const std::size_t index = m_shown.size();
    const QList<QAbstractButton *> buttons = box.buttons();
    QStringList captions;
    for (const QAbstractButton *button : buttons)
        captions += button->text();
    m_shown.push_back({box.text(), box.windowTitle(), box.icon(), box.standardButtons(), box.textFormat(),
                       box.informativeText(), box.standardButton(box.defaultButton()), captions});
    QAbstractButton *button = box.button(index < m_answers.size() ? m_answers[index] : QMessageBox::Ok);
    if (!button)
        button = box.button(QMessageBox::No);
    if (m_captions.contains(index)) {
        const qsizetype named = captions.indexOf(m_captions[index]);
        if (named < 0)
            ADD_FAILURE() << "The message has no button " << qUtf8Printable(m_captions[index]);
        else
            button = buttons[named];
    }
    if (button)
        QTest::mouseClick(button, Qt::LeftButton);
    else
        box.reject();
}

} // namespace KovaTest
