#pragma once

#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <windows.h>

class QWidget;
class QWindow;

namespace KOVAVSFDataGridLib::ActiveX {

class DialogOwner;

// A widget as a child of a window that Qt does not know. The container's message loop drives it: Qt's windows
// receive their messages from any loop that runs on their thread.
class EmbeddedWindow : public QObject
{
public:
    // `entered` is called when the user clicks the widget or it gets the focus; `focused` when it gets the
    // focus (true) and loses it (false); `blocked` when a modal Qt dialog opens (true) and when the last one
    // has closed (false).
    EmbeddedWindow(QWidget &widget, std::function<void()> entered, std::function<void(bool)> focused,
                   std::function<void(bool)> blocked);
    ~EmbeddedWindow() override;

    // Positions are in pixels of the parent window's client area. An empty clip means no clipping.
    void attach(HWND parent, const RECT &position, const RECT &clip);
    void detach();
    void place(const RECT &position, const RECT *clip);
    void setKeyboardFocus();
    // Whether the user can work in it.
    void setResponsive(bool on);

    HWND handle() const; // null while detached, and after the end of the host's window
    // Whether a key message is for the widget and not for the container's dialog keys.
    bool wants(const MSG &message) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool tabStaysInside(bool backwards) const;
    void block();
    void unblock();
    void passOn(QEvent &event);
    // Creates a new window if a container destroyed its own without notice, and this one with it.
    void renew();

    QWidget &m_widget;
    const std::function<void()> m_entered;
    const std::function<void(bool)> m_focused;
    const std::function<void(bool)> m_blocked;
    std::unique_ptr<QWindow> m_parent;
    std::unique_ptr<DialogOwner> m_dialogs; // while attached
    bool m_isResponsive = true;
    HWND m_disabled = nullptr; // the host's window, disabled by a modal dialog
};

} // namespace KOVAVSFDataGridLib::ActiveX
