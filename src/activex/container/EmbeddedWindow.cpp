#include "activex/container/EmbeddedWindow.h"

#include "activex/container/DialogOwner.h"
#include "control/parts/GridParts.h"

#include <QtCore/QEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <utility>

namespace KOVAVSFDataGridLib::ActiveX {

EmbeddedWindow::EmbeddedWindow(QWidget &widget, std::function<void()> entered,
                               std::function<void(bool)> focused, std::function<void(bool)> blocked)
    : m_widget(widget),
      m_entered(std::move(entered)),
      m_focused(std::move(focused)),
      m_blocked(std::move(blocked))
{
    m_widget.setWindowFlags(Qt::FramelessWindowHint);
    // The container decides on the keyboard focus …
    m_widget.setAttribute(Qt::WA_ShowWithoutActivating);
    // … and on the size; what does not fit is clipped.
    m_widget.setMinimumSize(1, 1);
}

EmbeddedWindow::~EmbeddedWindow()
{
    detach();
}

void EmbeddedWindow::attach(HWND parent, const RECT &position, const RECT &clip)
{
    renew();
    m_parent.reset(QWindow::fromWinId(reinterpret_cast<WId>(parent)));
    m_parent->installEventFilter(this);
    // A window that is not yet a child would be activated by the change of its parent.
    const auto window = reinterpret_cast<HWND>(m_widget.winId());
    const LONG style = GetWindowLongW(window, GWL_STYLE) & ~static_cast<LONG>(WS_POPUP);
    SetWindowLongW(window, GWL_STYLE, style | WS_CHILD);
    m_widget.windowHandle()->setParent(m_parent.get());
    m_widget.windowHandle()->installEventFilter(this);
    m_dialogs = std::make_unique<DialogOwner>(m_widget);
    place(position, &clip);
    m_widget.show();
    place(position, &clip); // showing it may have moved it
    EnableWindow(handle(), m_isResponsive);
}

void EmbeddedWindow::renew()
{
    QWindow *window = m_widget.windowHandle();
    if (!window || IsWindow(reinterpret_cast<HWND>(m_widget.winId())))
        return;
    window->destroy();
    m_widget.setParent(nullptr, m_widget.windowFlags()); // resets the handle
}

void EmbeddedWindow::detach()
{
    if (!m_parent)
        return;
    // Before the host's window is enabled again, because the dialogs are in front of it.
    m_dialogs->cancelDialogs();
    m_dialogs.reset();
    unblock();
    m_widget.hide();
    m_widget.windowHandle()->removeEventFilter(this);
    m_widget.windowHandle()->setParent(nullptr);
    m_parent.reset();
}

void EmbeddedWindow::place(const RECT &position, const RECT *clip)
{
    if (!m_parent)
        return;
    // In physical pixels: the container does not know Qt's scaling.
    SetWindowPos(handle(), nullptr, position.left, position.top, position.right - position.left,
                 position.bottom - position.top, SWP_NOZORDER | SWP_NOACTIVATE);
    RECT visible{};
    if (clip && !IsRectEmpty(clip) && IntersectRect(&visible, &position, clip) &&
        !EqualRect(&visible, &position)) {
        OffsetRect(&visible, -position.left, -position.top);
        SetWindowRgn(handle(), CreateRectRgnIndirect(&visible), TRUE); // the system owns the region now
    } else {
        SetWindowRgn(handle(), nullptr, TRUE);
    }
}

void EmbeddedWindow::setKeyboardFocus()
{
    const HWND window = handle();
    const HWND focused = GetFocus();
    if (window && focused != window && !IsChild(window, focused))
        SetFocus(window);
}

void EmbeddedWindow::setResponsive(bool on)
{
    m_isResponsive = on;
    if (m_parent)
        EnableWindow(handle(), on);
}

HWND EmbeddedWindow::handle() const
{
    const HWND window = m_parent ? reinterpret_cast<HWND>(m_widget.winId()) : nullptr;
    return IsWindow(window) ? window : nullptr; // it is destroyed together with the host's window
}

bool EmbeddedWindow::wants(const MSG &message) const
{
    // Character codes differ from key codes, and keys pressed with Alt belong to the container.
    if (!m_parent || (message.message != WM_KEYDOWN && message.message != WM_KEYUP) ||
        (message.hwnd != handle() && !IsChild(handle(), message.hwnd)))
        return false;
    switch (message.wParam) {
    case VK_TAB:
        return GetKeyState(VK_CONTROL) >= 0 && tabStaysInside(GetKeyState(VK_SHIFT) < 0);
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_HOME:
    case VK_END:
    case VK_DELETE:
        return true;
    case VK_RETURN:
    case VK_ESCAPE: {
        // The grid itself doesn't use these keys, but a form's buttons do.
        const QWidget *focused = QApplication::focusWidget();
        return focused && focused->objectName() != GridParts::gridName;
    }
    default:
        return false;
    }
}

bool EmbeddedWindow::tabStaysInside(bool backwards) const
{
    const QWidget *focused = QApplication::focusWidget();
    if (!focused)
        return false;
    // The focus chain is a ring through the widget itself: after that, the next stop is the container's.
    for (const QWidget *next = focused;;) {
        next = backwards ? next->previousInFocusChain() : next->nextInFocusChain();
        if (next == &m_widget || next == focused)
            return false;
        if (next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) &&
            !next->focusProxy())
            return true;
    }
}

// Qt disables only its own windows while a modal dialog is open; it does not know the host's.
void EmbeddedWindow::block()
{
    const HWND top = GetAncestor(handle(), GA_ROOT);
    if (!top || EnableWindow(top, FALSE))
        return; // the host already has a dialog open
    m_disabled = top;
    m_blocked(true);
}

void EmbeddedWindow::unblock()
{
    if (!m_disabled)
        return;
    EnableWindow(std::exchange(m_disabled, nullptr), TRUE);
    m_blocked(false);
}

// Qt tells changes of the application to windows without a parent only.
void EmbeddedWindow::passOn(QEvent &event)
{
    switch (event.type()) {
    case QEvent::LanguageChange:
    case QEvent::ApplicationFontChange:
    case QEvent::ApplicationPaletteChange:
        QCoreApplication::sendEvent(m_widget.windowHandle(), &event);
        break;
    default:
        break;
    }
}

bool EmbeddedWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_parent.get()) {
        passOn(*event);
    } else if (event->type() == QEvent::MouseButtonPress) {
        // The system neither activates a child window on a click nor gives it the focus.
        setKeyboardFocus();
        m_entered();
    } else if (event->type() == QEvent::FocusIn) {
        m_entered();
        m_focused(true);
    } else if (event->type() == QEvent::FocusOut) {
        m_focused(false);
    } else if (event->type() == QEvent::WindowBlocked) {
        block();
    } else if (event->type() == QEvent::WindowUnblocked) {
        unblock();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace KOVAVSFDataGridLib::ActiveX
