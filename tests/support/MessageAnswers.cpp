#include "support/MessageAnswers.h"

#include <QtCore/QEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>

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

void MessageAnswers::clear()
{
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
        if (auto *box = qobject_cast<QMessageBox *>(watched))
            QMetaObject::invokeMethod(
                box, [this, box] { answer(*box); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void MessageAnswers::answer(QMessageBox &box)
{
    const std::size_t index = m_shown.size();
    m_shown.push_back({box.text(), box.windowTitle(), box.icon(), box.standardButtons(), box.textFormat(),
                       box.informativeText(), box.standardButton(box.defaultButton())});
    QAbstractButton *button = box.button(index < m_answers.size() ? m_answers[index] : QMessageBox::Ok);
    if (!button)
        button = box.button(QMessageBox::No);
    if (button)
        QTest::mouseClick(button, Qt::LeftButton);
    else
        box.reject();
}

} // namespace KovaTest
