#pragma once

#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <windows.h>

class QWidget;
class QWindow;

namespace KOVAVSFDataGridLib::ActiveX {

class DialogOwner;

// A widget as a child of a window that Qt knows nothing about. The container's message loop drives it: Qt's
// own windows take their messages from whatever loop runs on the thread.
class EmbeddedWindow : public QObject
{
public:
    // `entered` is called when the user clicks into the widget or the keyboard arrives in it; `focused` when
    // the keyboard arrives (true) and when it leaves (false); `blocked` when a modal dialog of Qt's opens
    // (true) and when the last one has gone (false).
    EmbeddedWindow(QWidget &widget, std::function<void()> entered, std::function<void(bool)> focused,
                   std::function<void(bool)> blocked);
    ~EmbeddedWindow() override;

    // Positions are pixels of the parent window's client area. An empty clip does not clip.
    void attach(HWND parent, const RECT &position, const RECT &clip);
    void detach();
    void place(const RECT &position, const RECT *clip);
    void setKeyboardFocus();

    HWND handle() const; // null while detached
    // Whether a key message is for the widget rather than for the container's dialog keys.
    bool wants(const MSG &message) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool tabStaysInside(bool backwards) const;
    void block();
    void unblock();
    // Makes a new window where a container destroyed its own without a word, and this one with it.
    void renew();

    QWidget &m_widget;
    const std::function<void()> m_entered;
    const std::function<void(bool)> m_focused;
    const std::function<void(bool)> m_blocked;
    std::unique_ptr<QWindow> m_parent;
    std::unique_ptr<DialogOwner> m_dialogs; // while attached
    HWND m_disabled = nullptr;              // the host's window that a modal dialog keeps from the user
};

} // namespace KOVAVSFDataGridLib::ActiveX
