#include "support/WindowAnswers.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <gtest/gtest.h>

namespace KovaTest {

namespace {

void clickItem(QMenu &menu, const QString &name)
{
    for (QAction *action : menu.actions()) {
        // A menu in the menu gets its turn when it is shown.
        if (!name.isEmpty() && action->menu() &&
            action->menu()->findChild<QAction *>(name, Qt::FindDirectChildrenOnly)) {
            QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
            return;
        }
        if (action->objectName() == name && !name.isEmpty()) {
            EXPECT_TRUE(action->isVisible() && action->isEnabled()) << qUtf8Printable(name);
            QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
        }
    }
    if (menu.isVisible())
        QTest::keyClick(&menu, Qt::Key_Escape);
}

} // namespace

WindowAnswers::WindowAnswers(std::deque<Answer> answers) : m_answers(std::move(answers))
{
    qApp->installEventFilter(this);
}

WindowAnswers::~WindowAnswers()
{
    EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " dialogs did not come";
}

void WindowAnswers::clickInMenu(const QString &item)
{
    m_menuItem = item;
    m_wasMenuShown = false;
}

bool WindowAnswers::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show)
        return QObject::eventFilter(watched, event);
    const QPointer<WindowAnswers> self(this); // may be destroyed before the answer's turn
    if (auto *dialog = qobject_cast<QDialog *>(watched); dialog && !qobject_cast<QMessageBox *>(watched))
        QMetaObject::invokeMethod(
            dialog,
            [self, dialog] {
                if (self)
                    self->answer(*dialog);
            },
            Qt::QueuedConnection);
    if (auto *menu = qobject_cast<QMenu *>(watched)) {
        m_wasMenuShown = true;
        QMetaObject::invokeMethod(
            menu,
            [self, menu] {
                if (self)
                    clickItem(*menu, self->m_menuItem);
            },
            Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void WindowAnswers::answer(QDialog &dialog)
{
    const QPointer<QDialog> guard(&dialog);
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected dialog " << qUtf8Printable(dialog.objectName());
    } else {
        const Answer next = std::move(m_answers.front());
        m_answers.pop_front();
        next(dialog);
    }
    QDialog *left = guard.data();
    if (left && left->isVisible()) {
        ADD_FAILURE() << "the dialog stayed open: " << qUtf8Printable(dialog.objectName());
        dialog.done(QDialog::Rejected);
    }
}

} // namespace KovaTest
