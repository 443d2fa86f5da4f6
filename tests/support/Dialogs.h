#pragma once

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDialog>

// Finding and using a dialog's parts as a person does.
namespace KovaTest {

// The part of that name; one that isn't there ends the test.
template<typename T = QWidget>
T &part(const QWidget &dialog, const char *name)
{
    auto *found = dialog.findChild<T *>(QLatin1String(name));
    if (!found)
        qFatal("no part of this kind is called %s", name);
    return *found;
}

inline void press(const QWidget &dialog, const char *name)
{
    QTest::mouseClick(&part<QAbstractButton>(dialog, name), Qt::LeftButton);
}

// Shows it and gives it the keyboard.
inline void present(QDialog &dialog)
{
    dialog.show();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
}

// Presses a key in whatever part has the keyboard.
inline void key(const QDialog &dialog, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    ASSERT_NE(dialog.focusWidget(), nullptr);
    QTest::keyClick(dialog.focusWidget(), key, modifiers);
}

// The names of the parts that the tab key reaches from where the keyboard is, with a blank between them.
inline std::string walkedByTab(const QDialog &dialog, int steps)
{
    QStringList names;
    for (; steps > 0; --steps) {
        names.append(dialog.focusWidget()->objectName());
        key(dialog, Qt::Key_Tab);
    }
    return names.join(QLatin1Char(' ')).toStdString();
}

// What the frame's close box and Alt+F4 arrive as.
inline void closeFromTheFrame(const QDialog &dialog)
{
    QCloseEvent event;
    QCoreApplication::sendEvent(dialog.windowHandle(), &event);
}

// Text as an input method for Chinese commits it, first shown as letters being composed.
inline void compose(QWidget &editor, const QString &text)
{
    QInputMethodEvent composing(QStringLiteral("pinyin"), {});
    QCoreApplication::sendEvent(&editor, &composing);
    QInputMethodEvent done;
    done.setCommitString(text);
    QCoreApplication::sendEvent(&editor, &done);
}

} // namespace KovaTest
