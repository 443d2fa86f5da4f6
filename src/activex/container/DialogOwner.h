#pragma once

#include <QtCore/QAbstractNativeEventFilter>

#include <windows.h>

class QWidget;

namespace KOVAVSFDataGridLib::ActiveX {

// Makes the host's window the owner of the dialogs that an embedded widget opens, and centres them over it,
// so that they stay in front of it. Qt does neither, because it does not know the host's window. Exists while
// the widget is embedded.
class DialogOwner final : public QAbstractNativeEventFilter
{
public:
    explicit DialogOwner(QWidget &widget);

    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;

    // Ends all open dialogs as if the user had cancelled them, because the host's window goes away.
    void cancelDialogs();

private:
    QWidget *dialogOf(HWND window) const; // null if the window is not one of the widget's dialogs
    void take(HWND dialog, bool place) const;

    QWidget &m_widget;
};

} // namespace KOVAVSFDataGridLib::ActiveX
