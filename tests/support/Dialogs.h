#pragma once

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QDialog>

// Finds and uses the parts of a dialog like a user.
namespace KovaTest {

// The part with that name; fails the test if there is none.
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

// Shows it and sets the focus to it.
inline void present(QDialog &dialog)
{
    dialog.show();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
}

// Presses a key in the part that has the focus.
inline void key(const QDialog &dialog, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    ASSERT_NE(dialog.focusWidget(), nullptr);
    QTest::keyClick(dialog.focusWidget(), key, modifiers);
}

// The names of the parts reached with the tab key from the current focus, separated by blanks.
inline std::string walkedByTab(const QDialog &dialog, int steps)
{
    QStringList names;
    for (; steps > 0; --steps) {
        names.append(dialog.focusWidget()->objectName());
        key(dialog, Qt::Key_Tab);
    }
    return names.join(QLatin1Char(' ')).toStdString();
}

// The same as the close button of the frame or Alt+F4.
inline void closeFromTheFrame(const QDialog &dialog)
{
    QCloseEvent event;
    QCoreApplication::sendEvent(dialog.windowHandle(), &event);
}

// Enters text like a Chinese input method: first as letters being composed, then committed.
inline void compose(QWidget &editor, const QString &text)
{
    QInputMethodEvent composing(QStringLiteral("pinyin"), {});
    QCoreApplication::sendEvent(&editor, &composing);
    QInputMethodEvent done;
    done.setCommitString(text);
    QCoreApplication::sendEvent(&editor, &done);
}

} // namespace KovaTest
