#pragma once

#include <QtCore/QObject>

#include <functional>
#include <memory>
#include <windows.h>

class QWidget;
class QWindow;

namespace KOVAVSFDataGridLib::ActiveX {

// A widget as a child of a window that Qt knows nothing about. The container's message loop drives it: Qt's
// own windows take their messages from whatever loop runs on the thread.
class EmbeddedWindow : public QObject
{
public:
    // `entered` is called when the user clicks into the widget or the keyboard arrives in it.
    EmbeddedWindow(QWidget &widget, std::function<void()> entered);
    ~EmbeddedWindow() override;

    // Positions are pixels of the parent window's client area. An empty clip does not clip.
    void attach(HWND parent, const RECT &position, const RECT &clip);
    void detach();
    void place(const RECT &position, const RECT *clip);
    void takeFocus();

    HWND handle() const; // null while detached
    // Whether a key message is for the widget rather than for the container's dialog keys.
    bool wants(const MSG &message) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool tabStaysInside(bool backwards) const;

    QWidget &m_widget;
    const std::function<void()> m_entered;
    std::unique_ptr<QWindow> m_parent;
};

} // namespace KOVAVSFDataGridLib::ActiveX
