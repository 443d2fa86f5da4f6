#include "activex/container/DialogOwner.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <algorithm>

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

// The window's position, or the one after it is restored from an icon.
RECT placeOf(HWND window)
{
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (IsIconic(window) && GetWindowPlacement(window, &placement))
        return placement.rcNormalPosition;
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

void centre(HWND dialog, HWND owner)
{
    const RECT over = placeOf(owner);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    RECT own{};
    if (!GetWindowRect(dialog, &own) ||
        !GetMonitorInfoW(MonitorFromRect(&over, MONITOR_DEFAULTTONEAREST), &monitor))
        return;
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const RECT &room = monitor.rcWork;
    // If a dialog is larger than the screen, its title stays visible.
    const LONG x = std::max(room.left, std::min((over.left + over.right - width) / 2, room.right - width));
    const LONG y = std::max(room.top, std::min((over.top + over.bottom - height) / 2, room.bottom - height));
    SetWindowPos(dialog, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

DialogOwner::DialogOwner(QWidget &widget) : m_widget(widget)
{
    // QCoreApplication's own function refuses filters in a host that is not Qt's.
    QAbstractEventDispatcher::instance()->installNativeEventFilter(this);
}

bool DialogOwner::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const auto &received = *static_cast<const MSG *>(message);
    // Qt has then set the owner (to none), and the window is not visible yet.
    if (received.message == WM_SHOWWINDOW && received.wParam != FALSE) {
        if (const QWidget *dialog = dialogOf(received.hwnd))
            take(received.hwnd, !dialog->testAttribute(Qt::WA_Moved));
    } else if (received.message == WM_DESTROY) {
        // The host destroyed its window, and with it the system destroyed all windows owned by it. The dialog
        // must be ended too, or its loop would never return.
        if (auto *dialog = qobject_cast<QDialog *>(dialogOf(received.hwnd)); dialog && dialog->isVisible())
            QTimer::singleShot(0, dialog, &QDialog::reject);
    }
    return false;
}

QWidget *DialogOwner::dialogOf(HWND window) const
{
    QWidget *found = QWidget::find(reinterpret_cast<WId>(window));
    if (!found || !found->isWindow() || found == &m_widget || !found->parentWidget())
        return nullptr;
    // A dialog above another one is owned by that one, which Qt handles. Menus and tool tips are not dialogs.
    const bool isDialog = found->windowType() == Qt::Dialog || found->windowType() == Qt::Window;
    return isDialog && found->parentWidget()->window() == &m_widget ? found : nullptr;
}

void DialogOwner::take(HWND dialog, bool place) const
{
    const HWND owner = GetAncestor(reinterpret_cast<HWND>(m_widget.winId()), GA_ROOT);
    if (!owner)
        return;
    SetWindowLongPtrW(dialog, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
    if (place)
        centre(dialog, owner);
}

void DialogOwner::cancelDialogs()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *dialog = qobject_cast<QDialog *>(widget);
        if (!dialog || !dialog->isVisible())
            continue;
        // A message box without a Cancel button ignores close(), but not done().
        for (const QWidget *parent = dialog->parentWidget(); parent; parent = parent->parentWidget()) {
            if (parent == &m_widget) {
                dialog->done(QDialog::Rejected);
                break;
            }
        }
    }
}

} // namespace KOVAVSFDataGridLib::ActiveX
